// SPDX-License-Identifier: MIT
#include "desktop/session/QtRunLoop.h"

#include <QBasicTimer>
#include <QCoreApplication>
#include <QEvent>
#include <QPointer>
#include <QTimerEvent>

#include <algorithm>
#include <chrono>
#include <memory>
#include <utility>

using namespace std::chrono_literals;
using std::chrono::milliseconds;
using std::chrono::steady_clock;

namespace velto {

namespace {

/// Work to be done at a given time, and perhaps at fixed intervals from then on.
class Job final : public QObject {
public:
    /// An `interval` of zero means once.
    Job(QObject& parent, steady_clock::time_point moment, milliseconds interval, std::function<void()> work) :
        QObject(&parent),
        m_moment(moment),
        m_interval(interval),
        m_work(std::make_shared<std::function<void()>>(std::move(work)))
    {
        arm();
    }

    void cancel()
    {
        m_timer.stop();
        m_work.reset();
        // It may be running just now.
        deleteLater();
    }

protected:
    void timerEvent(QTimerEvent* event) override
    {
        if (event->timerId() != m_timer.timerId())
            return;
        m_timer.stop();
        const auto now = steady_clock::now();
        if (now < m_moment) {
            arm();
            return;
        }

        // The work may drop this object or spin a loop of its own.
        const auto work = m_work;
        if (m_interval > 0ms) {
            m_moment += ((now - m_moment) / m_interval + 1) * m_interval;
            arm();
        } else {
            m_work.reset();
        }
        (*work)();
    }

private:
    void arm()
    {
        const auto wait = std::chrono::ceil<milliseconds>(m_moment - steady_clock::now());
        m_timer.start(static_cast<int>(std::clamp<milliseconds>(wait, 0ms, 1h).count()), Qt::PreciseTimer, this);
    }

    steady_clock::time_point m_moment;
    milliseconds m_interval;
    std::shared_ptr<std::function<void()>> m_work;
    QBasicTimer m_timer;
};

/// Work to be done once the event being handled now is over.
class Turn final : public QObject {
public:
    Turn(QObject& parent, std::function<void()> work) : QObject(&parent), m_work(std::move(work))
    {
        QCoreApplication::postEvent(this, new QEvent(QEvent::User));
    }

    void cancel()
    {
        m_work = nullptr;
        deleteLater();
    }

protected:
    void customEvent(QEvent* /*event*/) override
    {
        deleteLater();
        // The work may drop this object.
        if (const auto work = std::exchange(m_work, nullptr))
            work();
    }

private:
    std::function<void()> m_work;
};

template <class Scheduled>
Subscription handleOf(Scheduled* scheduled)
{
    return Subscription([scheduled = QPointer(scheduled)] {
        if (scheduled)
            scheduled->cancel();
    });
}

} // namespace

Subscription QtRunLoop::every(std::chrono::milliseconds interval, std::function<void()> work)
{
    interval = std::max(interval, 1ms);
    return handleOf(new Job(m_scheduled, steady_clock::now() + interval, interval, std::move(work)));
}

Subscription QtRunLoop::after(std::chrono::milliseconds delay, std::function<void()> work)
{
    return handleOf(new Job(m_scheduled, steady_clock::now() + delay, 0ms, std::move(work)));
}

Subscription QtRunLoop::nextTurn(std::function<void()> work)
{
    return handleOf(new Turn(m_scheduled, std::move(work)));
}

} // namespace velto
