// SPDX-License-Identifier: MIT
#pragma once

#include "style/AnimatedView.h"
#include "style/Colors.h"
#include "style/Motion.h"

#include <QString>

namespace velto {

/// The name of the phase, bold. A new name fades in while the old one fades out, and is announced.
class PhaseTitle : public AnimatedView {
    Q_OBJECT

public:
    PhaseTitle();

    void setTitle(const QString& title, ColorName color);
    [[nodiscard]] QString spokenText() const override { return m_title.text; }
    /// What screen readers speak when it shows, wherever the focus is.
    [[nodiscard]] QAccessible::Role spokenRole() const override { return QAccessible::Notification; }

    [[nodiscard]] QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    struct Title {
        QString text;
        ColorName color = ColorName::label;
        bool operator==(const Title&) const = default;
    };

    Title m_title;
    Title m_previous;
    Motion m_fade{QEasingCurve::InOutQuad, this};
};

} // namespace velto
