// SPDX-License-Identifier: MIT
#pragma once

#include "style/AnimatedView.h"
#include "style/Colors.h"
#include "style/Motion.h"

#include <QPainterPath>

namespace velto {

/// The ring: an arc that grows clockwise from twelve o'clock, on a pale full circle.
///
/// Its frame is `contentsRect()`; the stroke is centred on the circle's edge, half of it outside.
class CircularProgressView : public AnimatedView {
    Q_OBJECT

public:
    static constexpr int lineWidth = 12;

    explicit CircularProgressView(int diameter);

    /// Fraction elapsed. 1 or more is a full circle, 0 or less is no arc.
    void setProgress(double progress);
    [[nodiscard]] double progress() const { return m_progress; }
    /// The fraction drawn at this moment, on its way to `progress()`.
    [[nodiscard]] double drawnProgress() const;

    void setColor(ColorName color);

    [[nodiscard]] QString spokenText() const override;
    [[nodiscard]] QAccessibleInterface* makeAccessible() override;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    [[nodiscard]] QColor drawnColor() const;
    [[nodiscard]] QPointF pointAt(double fraction) const;
    void redrawArc();
    /// Whether the ring does not touch `part`.
    [[nodiscard]] bool isInside(const QRectF& part) const;

    QPainterPath m_track;
    double m_progress = 0;
    double m_from = 0;    ///< Where the arc's motion began.
    double m_redrawn = 0; ///< When painting was last requested.
    ColorName m_color = ColorName::label;
    QColor m_fromColor;
    Motion m_arcMotion{QEasingCurve::Linear, this};
    Motion m_colorMotion{QEasingCurve::InOutQuad, this};
};

} // namespace velto
