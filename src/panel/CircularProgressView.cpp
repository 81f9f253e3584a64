// SPDX-License-Identifier: MIT
#include "panel/CircularProgressView.h"

#include <QAccessibleWidget>
#include <QPaintEvent>
#include <QPainter>

#include <algorithm>
#include <cmath>
#include <numbers>
#include <utility>

namespace velto {

namespace {

constexpr double trackOpacity = 0.1;

/// Per cent of the phase that have elapsed.
class RingInterface final : public QAccessibleWidget, public QAccessibleValueInterface {
public:
    explicit RingInterface(CircularProgressView* ring) : QAccessibleWidget(ring, QAccessible::ProgressBar) { }

    void* interface_cast(QAccessible::InterfaceType type) override
    {
        return type == QAccessible::ValueInterface ? static_cast<QAccessibleValueInterface*>(this)
                                                   : QAccessibleWidget::interface_cast(type);
    }

    QString text(QAccessible::Text kind) const override
    {
        switch (kind) {
        case QAccessible::Name:
            return ring().spokenText();
        case QAccessible::Value:
            return QStringLiteral("%1%").arg(currentValue().toInt());
        default:
            return QAccessibleWidget::text(kind);
        }
    }

    QRect rect() const override
    {
        const auto frame = ring().contentsRect();
        return {ring().mapToGlobal(frame.topLeft()), frame.size()};
    }

    QVariant currentValue() const override { return static_cast<int>(std::clamp(ring().progress(), 0.0, 1.0) * 100); }
    void setCurrentValue(const QVariant&) override { }
    QVariant maximumValue() const override { return 100; }
    QVariant minimumValue() const override { return 0; }
    QVariant minimumStepSize() const override { return 1; }

private:
    CircularProgressView& ring() const { return *static_cast<CircularProgressView*>(widget()); }
};

} // namespace

CircularProgressView::CircularProgressView(int diameter)
{
    constexpr int outside = lineWidth / 2;
    setContentsMargins(outside, outside, outside, outside);
    setFixedSize(diameter + 2 * outside, diameter + 2 * outside);
    m_track.addEllipse(rect());
    m_track.addEllipse(rect().adjusted(lineWidth, lineWidth, -lineWidth, -lineWidth));
    connect(&m_arcMotion, &QVariantAnimation::valueChanged, this, &CircularProgressView::redrawArc);
    connect(&m_colorMotion, &QVariantAnimation::valueChanged, this, qOverload<>(&QWidget::update));
}

void CircularProgressView::setProgress(double progress)
{
    if (progress == m_progress)
        return;
    m_from = drawnProgress();
    m_progress = progress;
    run(m_arcMotion);
    redrawArc();
}

double CircularProgressView::drawnProgress() const
{
    return m_from + (std::min(m_progress, 1.0) - m_from) * m_arcMotion.value();
}

void CircularProgressView::setColor(ColorName color)
{
    if (color == m_color)
        return;
    m_fromColor = drawnColor();
    m_color = color;
    run(m_colorMotion);
    update();
}

QString CircularProgressView::spokenText() const
{
    return tr("Progress");
}

QAccessibleInterface* CircularProgressView::makeAccessible()
{
    return new RingInterface(this);
}

void CircularProgressView::paintEvent(QPaintEvent* event)
{
    const QRectF circle = contentsRect();
    // The inside, where digits move, is empty.
    if (std::ranges::all_of(event->region(), [&](const QRectF& part) { return isInside(part); }))
        return;
    const auto color = drawnColor();
    const double progress = drawnProgress();

    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setBrush(Qt::NoBrush);
    auto trackColor = color;
    trackColor.setAlphaF(trackOpacity);
    painter.fillPath(m_track, trackColor);

    if (progress <= 0)
        return;
    painter.setPen(QPen(color, lineWidth, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    if (progress >= 1) {
        painter.drawEllipse(circle);
    } else {
        QPainterPath arc;
        arc.arcMoveTo(circle, 90);
        arc.arcTo(circle, 90, -360 * progress);
        painter.drawPath(arc);
    }
}

QColor CircularProgressView::drawnColor() const
{
    const auto target = color(m_color, *this);
    return m_colorMotion.value() < 1 ? mixed(m_fromColor, target, m_colorMotion.value()) : target;
}

QPointF CircularProgressView::pointAt(double fraction) const
{
    const double angle = 2 * std::numbers::pi * fraction;
    const QRectF circle = contentsRect();
    return circle.center() + QPointF(std::sin(angle), -std::cos(angle)) * (circle.width() / 2);
}

bool CircularProgressView::isInside(const QRectF& part) const
{
    const QPointF center = QRectF(contentsRect()).center();
    const double x = std::max(std::abs(part.left() - center.x()), std::abs(part.right() - center.x()));
    const double y = std::max(std::abs(part.top() - center.y()), std::abs(part.bottom() - center.y()));
    return std::hypot(x, y) < contentsRect().width() / 2.0 - lineWidth / 2.0;
}

void CircularProgressView::redrawArc()
{
    // Of a long phase a second is less than a point, which needs no frames of its own.
    constexpr double seen = 0.25;
    const double way = std::abs(drawnProgress() - m_redrawn) * std::numbers::pi * (width() - lineWidth);
    if (way == 0 || (m_arcMotion.value() < 1 && way < seen))
        return;
    const double before = std::exchange(m_redrawn, drawnProgress());
    constexpr double shortWay = 0.05;
    if (std::abs(m_redrawn - before) > shortWay) {
        update();
        return;
    }
    const auto from = pointAt(before);
    const auto to = pointAt(m_redrawn);
    constexpr double reach = lineWidth / 2.0 + 2;
    const QRectF ends({std::min(from.x(), to.x()), std::min(from.y(), to.y())},
        QPointF(std::max(from.x(), to.x()), std::max(from.y(), to.y())));
    update(ends.adjusted(-reach, -reach, reach, reach).toAlignedRect());
}

} // namespace velto
