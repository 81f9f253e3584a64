// SPDX-License-Identifier: MIT
#pragma once

#include "platform/RunLoop.h"

#include <algorithm>
#include <chrono>
#include <cstddef>
#include <functional>
#include <memory>
#include <utility>
#include <vector>

namespace velto {

/// A run loop whose time passes only when a test says so.
///
///     PomodoroTimer timer{settings, runLoop, players};
///     timer.start();
///     runLoop.advance(60s); // sixty ticks, at once
class FakeRunLoop final : public RunLoop {
public:
    using Milliseconds = std::chrono::milliseconds;

    Subscription every(Milliseconds interval, std::function<void()> work) override
    {
        return add(m_timers, {m_now + interval, interval, std::move(work)});
    }

    Subscription after(Milliseconds delay, std::function<void()> work) override
    {
        return add(m_timers, {m_now + delay, Milliseconds::zero(), std::move(work)});
    }

    Subscription nextTurn(std::function<void()> work) override
    {
        return add(m_turn, {m_now, Milliseconds::zero(), std::move(work)});
    }

    /// Lets `duration` pass: everything due in it runs at its time, in the order of the deadlines,
    /// equal ones in the order requested. What waits for the next turn runs first and after each.
    void advance(Milliseconds duration)
    {
        const auto end = m_now + duration;
        runTurns();
        for (auto timer = earliest(); timer && timer->deadline <= end; timer = earliest()) {
            m_now = std::max(m_now, timer->deadline);
            if (timer->interval > Milliseconds::zero())
                timer->deadline += timer->interval;
            else
                std::erase(m_timers, timer);
            timer->work();
            runTurns();
        }
        m_now = end;
    }

    /// Runs what waits for the next turn, and what that puts there, until nothing waits.
    void runTurns()
    {
        while (!m_turn.empty()) {
            for (const auto& work : std::exchange(m_turn, {})) {
                if (work->alive)
                    work->work();
            }
        }
    }

    /// Repeating timers and delayed actions that would still run.
    [[nodiscard]] std::size_t liveTimers() const { return m_timers.size(); }
    /// Works that wait for the next turn.
    [[nodiscard]] std::size_t waitingWorks() const { return m_turn.size(); }

private:
    struct Timer {
        Milliseconds deadline;
        Milliseconds interval; ///< Zero for what runs once.
        std::function<void()> work;
        bool alive = true; ///< Not cancelled; for works whose turn has begun.
    };
    using Timers = std::vector<std::shared_ptr<Timer>>;

    static Subscription add(Timers& timers, Timer timer)
    {
        timers.push_back(std::make_shared<Timer>(std::move(timer)));
        return Subscription([&timers, weak = std::weak_ptr(timers.back())] {
            if (const auto cancelled = weak.lock()) {
                cancelled->alive = false;
                std::erase(timers, cancelled);
            }
        });
    }

    [[nodiscard]] std::shared_ptr<Timer> earliest() const
    {
        const auto found = std::ranges::min_element(m_timers, {}, [](const auto& timer) { return timer->deadline; });
        return found == m_timers.end() ? nullptr : *found;
    }

    Milliseconds m_now{0};
    Timers m_timers;
    Timers m_turn;
};

} // namespace velto
