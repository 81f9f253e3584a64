// SPDX-License-Identifier: MIT
#include "panel/PhaseTitle.h"

#include "style/Drawing.h"
#include "style/TextStyle.h"

#include <QAccessible>
#include <QPainter>

#include <algorithm>
#include <utility>

namespace velto {

PhaseTitle::PhaseTitle()
{
    followFont(*this, [] { return textFont(TextStyle::title); });
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    connect(&m_fade, &QVariantAnimation::valueChanged, this, qOverload<>(&QWidget::update));
}

void PhaseTitle::setTitle(const QString& title, ColorName color)
{
    const Title wanted{title, color};
    if (wanted == m_title)
        return;
    m_previous = std::exchange(m_title, wanted);
    run(m_fade);
    updateGeometry();
    update();
    if (isSeen()) {
        for (const auto kind : {QAccessible::NameChanged, QAccessible::ObjectShow}) {
            QAccessibleEvent announcement(this, kind);
            QAccessible::updateAccessibility(&announcement);
        }
    }
}

QSize PhaseTitle::sizeHint() const
{
    return {std::max(lineWidth(*this, m_title.text), lineWidth(*this, m_previous.text)), fontMetrics().height()};
}

void PhaseTitle::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    const auto draw = [&](const Title& title, double opacity) {
        if (opacity <= 0)
            return;
        painter.setOpacity(opacity);
        painter.setPen(color(title.color, *this));
        drawLine(painter, rect(), Qt::AlignHCenter, title.text);
    };
    draw(m_previous, 1 - m_fade.value());
    draw(m_title, m_fade.value());
}

} // namespace velto
