// SPDX-License-Identifier: MIT
#include "desktop/menus/Throttle.h"

#include <chrono>
#include <utility>

namespace velto {

using namespace std::chrono_literals;

namespace {

constexpr int mostRuns = 10; ///< Between two ticks.

} // namespace

Throttle::Throttle()
{
    m_timer.setInterval(10ms);
    m_timer.callOnTimeout([this] { runWaiting(); });
}

bool Throttle::run(std::function<void()> work)
{
    if (!m_timer.isActive())
        m_timer.start();
    if (m_runs < mostRuns) {
        ++m_runs;
        work();
        return true;
    }
    if (m_waiting.size() == mostWaiting)
        return false;
    m_waiting.push_back(std::move(work));
    return true;
}

void Throttle::runWaiting()
{
    for (m_runs = 0; m_runs < mostRuns && !m_waiting.empty(); ++m_runs) {
        const auto work = std::move(m_waiting.front());
        m_waiting.pop_front();
        work();
    }
    if (m_runs == 0)
        m_timer.stop();
}

} // namespace velto
