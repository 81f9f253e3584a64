// SPDX-License-Identifier: MIT
#pragma once

#include <QTimer>

#include <chrono>

namespace velto {

/// Measures how long the event loop of this thread is held up, from now on.
///
/// Time that the thread only spent waiting for a processor does not count: that is the machine's doing.
class LoopWatch {
public:
    LoopWatch();

    [[nodiscard]] std::chrono::milliseconds longestStall() const { return m_longest; }

private:
    void check();

    QTimer m_timer;
    std::chrono::steady_clock::time_point m_last;
    std::chrono::nanoseconds m_lastQueued{};
    std::chrono::milliseconds m_longest{};
};

} // namespace velto
