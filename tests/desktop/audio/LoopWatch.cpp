// SPDX-License-Identifier: MIT
#include "LoopWatch.h"

#include <algorithm>
#include <fstream>

namespace velto {

using namespace std::chrono_literals;

namespace {

/// For how long this thread could have run, but had to wait for a processor.
std::chrono::nanoseconds timeQueued()
{
    std::ifstream file("/proc/thread-self/schedstat");
    std::int64_t running = 0;
    std::int64_t queued = 0;
    file >> running >> queued;
    return std::chrono::nanoseconds(queued);
}

} // namespace

LoopWatch::LoopWatch() : m_last(std::chrono::steady_clock::now()), m_lastQueued(timeQueued())
{
    m_timer.setTimerType(Qt::PreciseTimer);
    m_timer.callOnTimeout([this] { check(); });
    m_timer.start(5ms);
}

bool LoopWatch::ranSmoothly() const
{
    return m_stalls <= 2 && m_longest < 400ms;
}

void LoopWatch::check()
{
    const auto now = std::chrono::steady_clock::now();
    const auto queued = timeQueued();
    const auto stall = now - m_last - (queued - m_lastQueued) - m_timer.intervalAsDuration();
    m_longest = std::max(m_longest, std::chrono::duration_cast<std::chrono::milliseconds>(stall));
    m_stalls += stall > 50ms;
    m_last = now;
    m_lastQueued = queued;
}

} // namespace velto
