// SPDX-License-Identifier: MIT
#pragma once

#include <array>

#include <QRect>
#include <QRectF>

class QScreen;

namespace velto {

// Between Qt's points and the pixels of the X screen. Qt leaves a screen's origin where it is and scales from there.

/// The screen that holds `point`, else the main one. Null when there is none.
[[nodiscard]] QScreen* screenAt(QPoint point);
[[nodiscard]] QScreen* screenAtPixel(QPoint pixel);

/// The pixels of `area`, a part of `screen` in points.
[[nodiscard]] QRect toPixels(const QRect& area, const QScreen& screen);

/// The strips between `inner` and the edges of `outer`: top, bottom, left, right. Some are empty.
[[nodiscard]] std::array<QRect, 4> edgesAround(const QRect& inner, const QRect& outer);

/// A rectangle of pixels in points of the screen at its centre.
[[nodiscard]] QRectF toPoints(const QRect& pixels);

} // namespace velto
