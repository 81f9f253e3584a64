// SPDX-License-Identifier: MIT
#pragma once

#include <QVariantAnimation>

class QWidget;

namespace velto {

/// The way from 0 to 1 in the time that every change takes. At its end until it is started.
class Motion : public QVariantAnimation {
    Q_OBJECT

public:
    static constexpr int usualDuration = 350; ///< Milliseconds.

    Motion(QEasingCurve::Type curve, QObject* parent);

    [[nodiscard]] double value() const { return currentValue().toDouble(); }
    void finish() { setCurrentTime(duration()); }
};

/// Whether `widget` may move now: somebody can see it and does not ask for less motion.
[[nodiscard]] bool mayAnimate(const QWidget& widget);

} // namespace velto
