// SPDX-License-Identifier: MIT
#pragma once

#include "platform/RunLoop.h"

#include <functional>
#include <utility>

namespace velto {

/// Work that is done once in the run loop's next turn, however often it is asked for before.
///
///     OncePerTurn m_refresh{runLoop, [this] { readEverythingAgain(); }};
///     m_refresh.request();
///     m_refresh.request(); // one refresh for both
///
/// A request that is pending when this is destroyed is dropped. The work must not destroy it. Main thread only.
class OncePerTurn {
public:
    /// `runLoop` must outlive this.
    OncePerTurn(RunLoop& runLoop, std::function<void()> work) : m_runLoop(runLoop), m_work(std::move(work)) { }

    void request()
    {
        if (!m_turn.isActive())
            m_turn = m_runLoop.nextTurn([this] { runNow(); });
    }

    void cancel() { m_turn.cancel(); }

    /// Does the work now, requested or not; nothing is pending afterwards.
    void runNow()
    {
        m_turn.cancel();
        m_work();
    }

private:
    RunLoop& m_runLoop;
    std::function<void()> m_work;
    Subscription m_turn;
};

} // namespace velto
