// SPDX-License-Identifier: MIT
#include "style/PopUpCard.h"

#include "style/Colors.h"
#include "style/ContinuousRect.h"
#include "style/Drawing.h"

#include <QWidget>

namespace velto {

namespace {

constexpr double cornerRadius = 10;
constexpr double highlightRadius = 6;

} // namespace

int PopUpCard::rowHeight(const QWidget& card)
{
    return card.fontMetrics().height() + 10;
}

void PopUpCard::draw(QPainter& painter, const QWidget& card)
{
    auto background = color(ColorName::windowBackground, card);
    // In the dark a card over another one is told by its face.
    if (themeOf(card.palette()) == Theme::dark)
        background = mixed(background, color(ColorName::label, card), 0.05);
    if (!card.mask().isEmpty())
        painter.fillRect(card.rect(), background);
    painter.setRenderHint(QPainter::Antialiasing);
    drawBezel(painter, card.rect(), cornerRadius, background, color(ColorName::controlOutline, card));
}

void PopUpCard::cut(QWidget& card, bool isCut)
{
    if (isCut)
        card.setMask(QRegion(continuousRoundedRect(card.rect(), cornerRadius).toFillPolygon().toPolygon()));
    else
        card.clearMask();
}

void PopUpCard::drawHighlight(QPainter& painter, const QRectF& row, const QWidget& card)
{
    drawBezel(painter, row, highlightRadius, color(ColorName::accent, card));
}

void PopUpCard::drawCheckMark(QPainter& painter, QPointF center, const QColor& color)
{
    painter.setPen(QPen(color, 1.8, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter.drawPolyline(QPolygonF{center + QPointF(-4, 0.5), center + QPointF(-1.3, 3.2), center + QPointF(4, -3.5)});
}

} // namespace velto
