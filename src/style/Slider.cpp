// SPDX-License-Identifier: MIT
#include "style/Slider.h"

#include "style/Colors.h"
#include "style/Drawing.h"

#include <QMouseEvent>
#include <QPainter>
#include <QStyle>

#include <cmath>

namespace velto {

namespace {

constexpr double knobDiameter = 18;
constexpr double trackHeight = 4;
constexpr double focusMargin = 2;

} // namespace

Slider::Slider(int minimum, int maximum) : QSlider(Qt::Horizontal)
{
    setRange(minimum, maximum);
    setFocusPolicy(Qt::StrongFocus);
}

QSize Slider::sizeHint() const
{
    return {120, static_cast<int>(knobDiameter + 2 * focusMargin)};
}

void Slider::paintEvent(QPaintEvent*)
{
    const double middle = height() / 2.0;
    const double knob = knobCenter();
    const QRectF track(focusMargin, middle - trackHeight / 2, width() - 2 * focusMargin, trackHeight);
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
    painter.setPen(Qt::NoPen);
    painter.setBrush(color(ColorName::controlOutline, *this));
    painter.drawRoundedRect(track, trackHeight / 2, trackHeight / 2);
    painter.setBrush(accent);
    painter.drawRoundedRect(filled, trackHeight / 2, trackHeight / 2);

    const bool isFocused = showsFocus(*this);
    painter.setPen(QPen(isFocused ? accent : color(ColorName::controlOutline, *this), isFocused ? 3 : 1));
    painter.setBrush(color(ColorName::knob, *this));
    painter.drawEllipse(QPointF(knob, middle), knobDiameter / 2 - 0.5, knobDiameter / 2 - 0.5);
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
    if (!isOnKnob)
        moveTo(event->position().x());
}

void Slider::mouseMoveEvent(QMouseEvent* event)
{
    if (isSliderDown())
        moveTo(event->position().x() - m_grabOffset);
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

double Slider::knobCenter() const
{
    const double margin = focusMargin + knobDiameter / 2;
    const double range = static_cast<double>(maximum()) - minimum();
    double fraction = range > 0 ? (sliderPosition() - minimum()) / range : 0;
    if (layoutDirection() == Qt::RightToLeft)
        fraction = 1 - fraction;
    return margin + fraction * (width() - 2 * margin);
}

void Slider::moveTo(double x)
{
    const double margin = focusMargin + knobDiameter / 2;
    const double range = static_cast<double>(maximum()) - minimum();
    double fraction = std::clamp((x - margin) / std::max(width() - 2 * margin, 1.0), 0.0, 1.0);
    if (layoutDirection() == Qt::RightToLeft)
        fraction = 1 - fraction;
    setSliderPosition(minimum() + static_cast<int>(std::lround(fraction * range)));
}

} // namespace velto
