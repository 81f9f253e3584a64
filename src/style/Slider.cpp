// SPDX-License-Identifier: MIT
#include "style/Slider.h"

#include "style/Colors.h"
#include "style/Drawing.h"

#include <QAccessibleWidget>
#include <QMouseEvent>
#include <QPainter>
#include <QStyle>

#include <algorithm>
#include <cmath>

namespace velto {

namespace {

constexpr double knobDiameter = 18;
constexpr double trackHeight = 5;

class SliderInterface final : public QAccessibleWidget, public QAccessibleValueInterface {
public:
    explicit SliderInterface(Slider* slider) : QAccessibleWidget(slider, QAccessible::Slider) { }

    void* interface_cast(QAccessible::InterfaceType type) override
    {
        return type == QAccessible::ValueInterface ? static_cast<QAccessibleValueInterface*>(this)
                                                   : QAccessibleWidget::interface_cast(type);
    }

    QVariant currentValue() const override { return slider().sliderPosition(); }
    void setCurrentValue(const QVariant& value) override { slider().choose(value.toDouble()); }
    QVariant maximumValue() const override { return slider().maximum(); }
    QVariant minimumValue() const override { return slider().minimum(); }
    QVariant minimumStepSize() const override { return 1; }

private:
    Slider& slider() const { return *static_cast<Slider*>(widget()); }
};

QAccessibleInterface* makeInterface(const QString&, QObject* object)
{
    auto* slider = qobject_cast<Slider*>(object);
    return slider ? new SliderInterface(slider) : nullptr;
}

} // namespace

Slider::Slider(int minimum, int maximum) : QSlider(Qt::Horizontal)
{
    QAccessible::installFactory(makeInterface);
    setRange(minimum, maximum);
    setFocusPolicy(Qt::StrongFocus);
    connect(this, &QSlider::actionTriggered, this, [this] { emit chosen(sliderPosition()); });
}

void Slider::showValue(double value)
{
    setValue(positionOf(value));
}

QSize Slider::sizeHint() const
{
    return {120, static_cast<int>(knobDiameter) + 4};
}

void Slider::paintEvent(QPaintEvent*)
{
    const double middle = height() / 2.0;
    const double knob = knobCenter();
    const QRectF track(0, middle - trackHeight / 2, width(), trackHeight);
    auto filled = track;
    if (layoutDirection() == Qt::RightToLeft)
        filled.setLeft(knob);
    else
        filled.setRight(knob);
    const auto accent = color(ColorName::accent, *this);

    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    if (!isEnabled())
        painter.setOpacity(disabledOpacity);
    painter.setPen(QPen(color(ColorName::controlOutline, *this), 1));
    painter.setBrush(color(ColorName::control, *this));
    painter.drawRoundedRect(track.adjusted(0.5, 0.5, -0.5, -0.5), trackHeight / 2 - 0.5, trackHeight / 2 - 0.5);
    painter.setPen(Qt::NoPen);
    painter.setBrush(accent);
    painter.drawRoundedRect(filled, trackHeight / 2, trackHeight / 2);

    const bool isFocused = showsFocus(*this);
    const double edge = isFocused ? 3 : 1;
    painter.setPen(QPen(isFocused ? accent : color(ColorName::controlOutline, *this), edge));
    painter.setBrush(color(ColorName::knob, *this));
    painter.drawEllipse(QPointF(knob, middle), (knobDiameter - edge) / 2, (knobDiameter - edge) / 2);
}

void Slider::mousePressEvent(QMouseEvent* event)
{
    if (event->button() != Qt::LeftButton) {
        event->ignore();
        return;
    }
    const double distance = event->position().x() - knobCenter();
    const bool isOnKnob = std::abs(distance) <= knobDiameter / 2;
    m_grabOffset = isOnKnob ? distance : 0;
    setSliderDown(true);
    moveTo(isOnKnob ? sliderPosition() : positionAt(event->position().x()));
}

void Slider::mouseMoveEvent(QMouseEvent* event)
{
    if (isSliderDown())
        moveTo(positionAt(event->position().x() - m_grabOffset));
}

void Slider::mouseReleaseEvent(QMouseEvent* event)
{
    if (event->button() == Qt::LeftButton)
        setSliderDown(false);
}

void Slider::wheelEvent(QWheelEvent* event)
{
    event->ignore();
}

int Slider::positionOf(double value) const
{
    return static_cast<int>(
        std::lround(std::clamp(value, static_cast<double>(minimum()), static_cast<double>(maximum()))));
}

double Slider::knobCenter() const
{
    const double margin = knobDiameter / 2;
    const double range = static_cast<double>(maximum()) - minimum();
    double fraction = range > 0 ? (sliderPosition() - minimum()) / range : 0;
    if (layoutDirection() == Qt::RightToLeft)
        fraction = 1 - fraction;
    return margin + fraction * (width() - 2 * margin);
}

int Slider::positionAt(double x) const
{
    const double margin = knobDiameter / 2;
    const double range = static_cast<double>(maximum()) - minimum();
    double fraction = std::clamp((x - margin) / std::max(width() - 2 * margin, 1.0), 0.0, 1.0);
    if (layoutDirection() == Qt::RightToLeft)
        fraction = 1 - fraction;
    return minimum() + static_cast<int>(std::lround(fraction * range));
}

void Slider::moveTo(int position)
{
    if (position == sliderPosition())
        emit chosen(sliderPosition());
    else
        setSliderPosition(position);
}

} // namespace velto
