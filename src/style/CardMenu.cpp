// SPDX-License-Identifier: MIT
#include "style/CardMenu.h"

#include "style/Colors.h"
#include "style/Drawing.h"
#include "style/PopUpCard.h"
#include "style/TextStyle.h"

#include <QPainter>
#include <QProxyStyle>
#include <QStyleOptionMenuItem>

#include <cmath>

namespace velto {

namespace {

constexpr int separatorHeight = 11;
constexpr int arrowWidth = 20;
constexpr int symbolSide = 16;

QString titleOf(const QStyleOptionMenuItem& item)
{
    return QString(item.text).replace(QLatin1String("&&"), QLatin1String("&"));
}

class MenuStyle final : public QProxyStyle {
public:
    MenuStyle() : QProxyStyle(QStringLiteral("Fusion")) { }

    int pixelMetric(PixelMetric metric, const QStyleOption* option, const QWidget* widget) const override
    {
        if (metric == PM_MenuHMargin || metric == PM_MenuVMargin)
            return PopUpCard::padding;
        if (metric == PM_MenuPanelWidth || metric == PM_SubMenuOverlap)
            return 0;
        return QProxyStyle::pixelMetric(metric, option, widget);
    }

    QSize sizeFromContents(
        ContentsType type, const QStyleOption* option, const QSize& size, const QWidget* widget) const override
    {
        const auto* item = qstyleoption_cast<const QStyleOptionMenuItem*>(option);
        if (type != CT_MenuItem || !item || !widget)
            return QProxyStyle::sizeFromContents(type, option, size, widget);
        if (item->menuItemType == QStyleOptionMenuItem::Separator)
            return {1, separatorHeight}; // QMenu leaves out what has no width
        return {PopUpCard::checkWidth + lineWidth(*widget, titleOf(*item)) + arrowWidth, PopUpCard::rowHeight(*widget)};
    }

    void drawPrimitive(
        PrimitiveElement element, const QStyleOption* option, QPainter* painter, const QWidget* widget) const override
    {
        if (element == PE_PanelMenu && widget)
            PopUpCard::draw(*painter, *widget);
        else if (element != PE_FrameMenu)
            QProxyStyle::drawPrimitive(element, option, painter, widget);
    }

    void drawControl(
        ControlElement element, const QStyleOption* option, QPainter* painter, const QWidget* widget) const override
    {
        const auto* item = qstyleoption_cast<const QStyleOptionMenuItem*>(option);
        if (element == CE_MenuItem && item && widget)
            drawItem(*painter, *item, *widget);
        else if (element != CE_MenuEmptyArea)
            QProxyStyle::drawControl(element, option, painter, widget);
    }

private:
    static void drawItem(QPainter& painter, const QStyleOptionMenuItem& item, const QWidget& menu)
    {
        const QRectF row = item.rect;
        if (item.menuItemType == QStyleOptionMenuItem::Separator) {
            painter.fillRect(QRectF(row.left() + PopUpCard::textMargin, std::floor(row.center().y()),
                                 row.width() - 2 * PopUpCard::textMargin, 1),
                color(ColorName::separator, menu));
            return;
        }
        const bool isEnabled = item.state & QStyle::State_Enabled;
        const bool isHighlighted = isEnabled && item.state & QStyle::State_Selected;
        const bool isRightToLeft = item.direction == Qt::RightToLeft;
        const auto content = isHighlighted ? QColor(Qt::white) : color(ColorName::label, menu);
        const auto fromStart = [&](double x) { return isRightToLeft ? row.right() - x : row.left() + x; };

        painter.save();
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setFont(menu.font());
        if (isHighlighted)
            PopUpCard::drawHighlight(painter, row, menu);
        if (!isEnabled)
            painter.setOpacity(disabledOpacity);
        const QPointF mark(fromStart(PopUpCard::checkWidth / 2.0), row.center().y());
        if (item.checked)
            PopUpCard::drawCheckMark(painter, mark, content);
        else if (!item.icon.isNull())
            item.icon.paint(&painter,
                QRectF(mark.x() - symbolSide / 2.0, mark.y() - symbolSide / 2.0, symbolSide, symbolSide).toRect(),
                Qt::AlignCenter, isHighlighted ? QIcon::Selected : QIcon::Normal);
        painter.setPen(content);
        drawLine(painter,
            isRightToLeft ? row.adjusted(arrowWidth, 0, -PopUpCard::checkWidth, 0)
                          : row.adjusted(PopUpCard::checkWidth, 0, -arrowWidth, 0),
            isRightToLeft ? Qt::AlignRight : Qt::AlignLeft, titleOf(item));
        if (item.menuItemType == QStyleOptionMenuItem::SubMenu) {
            const double direction = isRightToLeft ? -1 : 1;
            const QPointF tip(fromStart(row.width() - PopUpCard::textMargin), row.center().y());
            painter.setPen(QPen(content, 1.5, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
            painter.setBrush(Qt::NoBrush);
            painter.drawPolyline(
                QPolygonF{tip + QPointF(-3.5 * direction, -3.5), tip, tip + QPointF(-3.5 * direction, 3.5)});
        }
        painter.restore();
    }
};

} // namespace

CardMenu::CardMenu(bool isCut, QWidget* parent) : QMenu(parent), m_isCut(isCut)
{
    auto* style = new MenuStyle;
    style->setParent(this);
    setStyle(style);
    followFont(*this, [] { return textFont(TextStyle::body); });
    setWindowFlags(windowFlags() | Qt::FramelessWindowHint | Qt::NoDropShadowWindowHint);
    if (!isCut)
        setAttribute(Qt::WA_TranslucentBackground);
}

void CardMenu::resizeEvent(QResizeEvent* event)
{
    QMenu::resizeEvent(event);
    PopUpCard::cut(*this, m_isCut);
}

} // namespace velto
