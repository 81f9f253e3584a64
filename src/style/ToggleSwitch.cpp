// SPDX-License-Identifier: MIT
#include "style/ToggleSwitch.h"

#include "style/Colors.h"
#include "style/Drawing.h"
#include "style/Motion.h"
#include "style/TextStyle.h"

#include <QPainter>

#include <algorithm>

namespace velto {

namespace {

constexpr QSize trackSize(38, 22);
constexpr double knobInset = 2;
constexpr double focusedKnobInset = 5; ///< Inside the mark of the focus.
constexpr int gap = 10;
constexpr int knobDuration = 180;

} // namespace

ToggleSwitch::ToggleSwitch(const QString& title) : QCheckBox(title)
{
    followFont(*this, [] { return textFont(TextStyle::body); });
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    m_knob.setDuration(knobDuration);
    m_knob.setEasingCurve(QEasingCurve::OutCubic);
    moveKnob(false);
    connect(this, &QAbstractButton::toggled, this, &ToggleSwitch::moveKnob);
    connect(&m_knob, &QVariantAnimation::valueChanged, this, qOverload<>(&QWidget::update));
}

QSize ToggleSwitch::sizeHint() const
{
    const int textWidth = std::max(lineWidth(*this, text()), lineWidth(*this, m_roomFor));
    return {(textWidth > 0 ? textWidth + gap : 0) + trackSize.width(),
        std::max(trackSize.height(), fontMetrics().height()) + 2};
}

void ToggleSwitch::hideEvent(QHideEvent* event)
{
    m_knob.setCurrentTime(m_knob.duration());
    QCheckBox::hideEvent(event);
}

void ToggleSwitch::paintEvent(QPaintEvent*)
{
    const double position = m_knob.currentValue().toDouble();
    const bool isRightToLeft = layoutDirection() == Qt::RightToLeft;
    const QRectF track(isRightToLeft ? 0 : width() - trackSize.width(), (height() - trackSize.height()) / 2.0,
        trackSize.width(), trackSize.height());
    const double radius = track.height() / 2;

    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    if (!isEnabled())
        painter.setOpacity(disabledOpacity);
    painter.setPen(color(ColorName::label, *this));
    const auto textRect = isRightToLeft ? QRectF(track.right() + gap, 0, width() - track.right() - gap, height())
                                        : QRectF(0, 0, track.left() - gap, height());
    drawLine(painter, textRect, isRightToLeft ? Qt::AlignRight : Qt::AlignLeft, text());

    painter.setPen(Qt::NoPen);
    painter.setBrush(mixed(color(ColorName::controlOutline, *this), color(ColorName::accent, *this), position));
    painter.drawRoundedRect(track, radius, radius);

    const auto knobColor = color(ColorName::knob, *this);
    const bool isFocused = showsFocus(*this);
    const double inset = isFocused ? focusedKnobInset : knobInset;
    const double diameter = track.height() - 2 * inset;
    const double travel = track.width() - 2 * inset - diameter;
    const double along = travel * (isRightToLeft ? 1 - position : position);
    painter.setBrush(knobColor);
    painter.drawEllipse(QRectF(track.left() + inset + along, track.top() + inset, diameter, diameter));

    if (isFocused) {
        painter.setPen(QPen(knobColor, 2));
        painter.setBrush(Qt::NoBrush);
        painter.drawRoundedRect(track.adjusted(2, 2, -2, -2), radius - 2, radius - 2);
    }
}

void ToggleSwitch::moveKnob(bool isOn)
{
    const auto from = m_knob.currentValue().isValid() ? m_knob.currentValue().toDouble() : 0.0;
    m_knob.stop();
    m_knob.setStartValue(from);
    m_knob.setEndValue(isOn ? 1.0 : 0.0);
    if (mayAnimate(*this))
        m_knob.start();
    else
        m_knob.setCurrentTime(m_knob.duration());
    update();
}

} // namespace velto
