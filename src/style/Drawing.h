// SPDX-License-Identifier: MIT
#pragma once

#include "style/Colors.h"

#include <QPainter>
#include <QRectF>
#include <QRegion>
#include <QString>

class QWidget;

namespace velto {

/// How strongly a control that is disabled shows.
inline constexpr double disabledOpacity = 0.4;

/// The height of a control around one line of `widget`'s text.
[[nodiscard]] int controlHeight(const QWidget& widget);

/// The whole points that one line of `text` takes in `widget`'s font.
[[nodiscard]] int lineWidth(const QWidget& widget, const QString& text);

/// Whether the keyboard's user should see that `widget` has the focus.
[[nodiscard]] bool showsFocus(const QWidget& widget);

/// Marks the focus just inside `rect`, whose corners have `radius`.
void drawFocusRing(QPainter& painter, const QRectF& rect, double radius, const QColor& color);

/// The rounded face of a control with a thin edge, if `outline` is valid.
void drawBezel(QPainter& painter, const QRectF& rect, double radius, const QColor& face, const QColor& outline = {});

/// A card as large as `widget`: the window's background in continuous corners, with an outline inside the edge. Only
/// what is in `exposed` is drawn.
void drawCard(QWidget& widget, const QRegion& exposed, double radius = 18, ColorName outline = ColorName::cardOutline);

/// One line whose capital letters stand in the vertical middle of `rect`; too long a line ends in dots.
void drawLine(QPainter& painter, const QRectF& rect, Qt::Alignment horizontally, const QString& text);

} // namespace velto
