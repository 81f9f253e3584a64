// SPDX-License-Identifier: MIT
#include "style/ScrollBar.h"

#include "style/Colors.h"

#include <QPainter>
#include <QProxyStyle>
#include <QStyleOptionSlider>

#include <algorithm>

namespace velto {

namespace {

constexpr int extent = 12;
constexpr int shortestThumb = 32;

/// The usual bar without its arrows: the groove is all of it.
class ScrollBarStyle final : public QProxyStyle {
public:
    ScrollBarStyle() : QProxyStyle(QStringLiteral("Fusion")) { }

    int pixelMetric(PixelMetric metric, const QStyleOption* option, const QWidget* widget) const override
    {
        if (metric == PM_ScrollBarExtent)
            return extent;
        if (metric == PM_ScrollBarSliderMin)
            return shortestThumb;
        return QProxyStyle::pixelMetric(metric, option, widget);
    }

    QRect subControlRect(ComplexControl control, const QStyleOptionComplex* option, SubControl part,
        const QWidget* widget) const override
    {
        const auto* bar = qstyleoption_cast<const QStyleOptionSlider*>(option);
        if (control != CC_ScrollBar || !bar)
            return QProxyStyle::subControlRect(control, option, part, widget);

        const int length = bar->rect.height();
        const int range = bar->maximum - bar->minimum;
        const int thumb = range == 0
            ? length
            : std::clamp(static_cast<int>(1.0 * length * bar->pageStep / (range + bar->pageStep)), shortestThumb,
                std::max(shortestThumb, length));
        const int start
            = sliderPositionFromValue(bar->minimum, bar->maximum, bar->sliderPosition, length - thumb, bar->upsideDown);
        const auto slice = [&](int from, int to) { return QRect(0, from, bar->rect.width(), to - from); };
        switch (part) {
        case SC_ScrollBarSlider:
            return slice(start, start + thumb);
        case SC_ScrollBarSubPage:
            return slice(0, start);
        case SC_ScrollBarAddPage:
            return slice(start + thumb, length);
        case SC_ScrollBarGroove:
            return bar->rect;
        default:
            return {};
        }
    }
};

} // namespace

ScrollBar::ScrollBar() : QScrollBar(Qt::Vertical)
{
    auto* slim = new ScrollBarStyle;
    slim->setParent(this);
    setStyle(slim);
    setAttribute(Qt::WA_Hover);
}

void ScrollBar::paintEvent(QPaintEvent*)
{
    QStyleOptionSlider option;
    initStyleOption(&option);
    const bool isInUse = isSliderDown() || underMouse();
    const int inset = isInUse ? 3 : 4;
    const QRectF thumb = style()
                             ->subControlRect(QStyle::CC_ScrollBar, &option, QStyle::SC_ScrollBarSlider, this)
                             .adjusted(inset, inset, -inset, -inset);
    const double radius = std::min(thumb.width(), thumb.height()) / 2;

    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(color(isInUse ? ColorName::secondaryLabel : ColorName::controlOutline, *this));
    painter.drawRoundedRect(thumb, radius, radius);
}

} // namespace velto
