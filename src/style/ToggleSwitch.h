// SPDX-License-Identifier: MIT
#pragma once

#include <QCheckBox>
#include <QVariantAnimation>

namespace velto {

/// A title and a switch after it. Pressing anywhere on it, or Space, flips it.
class ToggleSwitch : public QCheckBox {
    Q_OBJECT

public:
    explicit ToggleSwitch(const QString& title);

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override { return sizeHint(); }

protected:
    void hideEvent(QHideEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    [[nodiscard]] bool hitButton(const QPoint& position) const override { return rect().contains(position); }

private:
    void moveKnob(bool isOn);

    QVariantAnimation m_knob; ///< From 0 (off) to 1 (on).
};

} // namespace velto
