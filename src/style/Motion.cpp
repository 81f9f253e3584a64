// SPDX-License-Identifier: MIT
#include "style/Motion.h"

#include <QAnimationDriver>
#include <QApplication>
#include <QBasicTimer>
#include <QPointer>
#include <QWidget>

namespace velto {

namespace {

/// Two of three frames of the usual screen, which the eye takes for motion. Qt would draw 62 a second, in step with no
/// screen either.
class FrameClock final : public QAnimationDriver {
public:
    using QAnimationDriver::QAnimationDriver;
    // Otherwise Qt switches to its own clock, and warns that it can no longer start one.
    ~FrameClock() override { FrameClock::stop(); }

protected:
    void start() override
    {
        QAnimationDriver::start();
        m_timer.start(1000 / 40, Qt::PreciseTimer, this);
    }

    void stop() override
    {
        m_timer.stop();
        QAnimationDriver::stop();
    }

    void timerEvent(QTimerEvent*) override { advance(); }

private:
    QBasicTimer m_timer;
};

void installFrameClock()
{
    static QPointer<FrameClock> clock;
    if (clock)
        return;
    clock = new FrameClock(qApp);
    clock->install();
}

} // namespace

Motion::Motion(QEasingCurve::Type curve, QObject* parent) : QVariantAnimation(parent)
{
    installFrameClock();
    setDuration(usualDuration);
    setEasingCurve(curve);
    setStartValue(0.0);
    setEndValue(1.0);
    finish();
}

bool mayAnimate(const QWidget& widget)
{
    return widget.isVisible() && QApplication::isEffectEnabled(Qt::UI_General);
}

} // namespace velto
