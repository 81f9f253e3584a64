// SPDX-License-Identifier: MIT
#pragma once

#include <QTimer>

#include <deque>
#include <functional>

namespace velto {

/// Runs work in order: at once as long as there is little of it, else some every 10 ms, so that everything
/// else gets its turn in between. Main thread only.
class Throttle {
public:
    static constexpr int mostWaiting = 10'000;

    Throttle();

    /// False when too much work is waiting already; `work` is then dropped.
    [[nodiscard]] bool run(std::function<void()> work);

private:
    void runWaiting();

    std::deque<std::function<void()>> m_waiting;
    QTimer m_timer;
    int m_runs = 0; ///< Since the timer's latest tick.
};

} // namespace velto
