// SPDX-License-Identifier: MIT
#pragma once

#include <QColor>
#include <QFont>
#include <QRectF>
#include <QString>

#include <vector>

class QWidget;

namespace velto {

/// A run of text as it was drawn. Rectangles are in points, from the corner of the view that was asked for.
struct DrawnText {
    QString text;
    QRectF ink;  ///< What its glyphs cover.
    QRectF room; ///< Where it may be drawn: beyond, it is clipped.
    QFont font;
    QColor color;
};

/// All text that `view` draws, whole or not. Text that is drawn as shapes is not among it.
[[nodiscard]] std::vector<DrawnText> drawnTexts(QWidget& view);

} // namespace velto
