// SPDX-License-Identifier: MIT
#include "style/ScrollIndicator.h"

#include "style/Colors.h"

#include <QPainter>
#include <QStyleOptionSlider>

namespace velto {

namespace {

constexpr int barWidth = 14;
constexpr double handleWidth = 6;

} // namespace

ScrollIndicator::ScrollIndicator()
{
    setOrientation(Qt::Vertical);
    setAttribute(Qt::WA_Hover);
    setAttribute(Qt::WA_OpaquePaintEvent, false);
}

QSize ScrollIndicator::sizeHint() const
{
    return {barWidth, QScrollBar::sizeHint().height()};
}

void ScrollIndicator::paintEvent(QPaintEvent*)
{
    QStyleOptionSlider option;
    initStyleOption(&option);
    const QRectF handle = style()->subControlRect(QStyle::CC_ScrollBar, &option, QStyle::SC_ScrollBarSlider, this);
    const bool isEmphasized = underMouse() || isSliderDown();

    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(color(isEmphasized ? ColorName::secondaryLabel : ColorName::controlOutline, *this));
    const double x = (width() - handleWidth) / 2;
    painter.drawRoundedRect(
        QRectF(x, handle.top() + 2, handleWidth, handle.height() - 4), handleWidth / 2, handleWidth / 2);
}

} // namespace velto
