// SPDX-License-Identifier: MIT
#pragma once

#include <QPainter>
#include <QRectF>

class QWidget;

namespace velto {

/// What pop-up windows that offer choices are drawn with: a card, its rows, and the mark of what is chosen.
struct PopUpCard {
    static constexpr int padding = 5; ///< Between the card's edge and its rows.
    static constexpr int checkWidth = 24;
    static constexpr int textMargin = 8;

    [[nodiscard]] static int rowHeight(const QWidget& card);

    /// All of `card`, which draws corners only where it is not cut to its shape.
    static void draw(QPainter& painter, const QWidget& card);
    /// With `isCut` the window has its shape without translucent pixels.
    static void cut(QWidget& card, bool isCut);

    static void drawHighlight(QPainter& painter, const QRectF& row, const QWidget& card);
    static void drawCheckMark(QPainter& painter, QPointF center, const QColor& color);
};

} // namespace velto
