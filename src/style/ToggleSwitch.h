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

    /// As wide as one with that title, if this is wider: switches below each other then stand in one line.
    void makeRoomFor(const QString& title) { m_roomFor = title; }

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override { return sizeHint(); }

protected:
    void hideEvent(QHideEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    [[nodiscard]] bool hitButton(const QPoint& position) const override { return rect().contains(position); }

private:
    void moveKnob(bool isOn);

    QString m_roomFor;
    QVariantAnimation m_knob; ///< From 0 (off) to 1 (on).
};

} // namespace velto
