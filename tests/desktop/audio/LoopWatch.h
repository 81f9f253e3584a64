// SPDX-License-Identifier: MIT
#pragma once

#include <QTimer>

#include <chrono>

namespace velto {

/// Measures how long the event loop of this thread is held up, from now on.
///
/// Time that the thread only spent waiting for a processor does not count: that is the machine's doing.
/// A busy machine may also hold up a thread now and then for the sake of another; what blocks on the
/// network or on a server does so for longer, or again and again.
class LoopWatch {
public:
    LoopWatch();

    /// Whether it was never held up for more than 50 ms, but for two short moments at most.
    [[nodiscard]] bool ranSmoothly() const;
    [[nodiscard]] std::chrono::milliseconds longestStall() const { return m_longest; }

private:
    void check();

    QTimer m_timer;
    std::chrono::steady_clock::time_point m_last;
    std::chrono::nanoseconds m_lastQueued{};
    std::chrono::milliseconds m_longest{};
    int m_stalls = 0; ///< Longer than 50 ms.
};

} // namespace velto
