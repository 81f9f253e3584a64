// SPDX-License-Identifier: MIT
#pragma once

#include "observation/Subscription.h"
#include "platform/RunLoop.h"

#include <functional>
#include <utility>
#include <vector>

namespace velto {

/// Hands work to the run loop's next turn, in order, with one wake-up for all of it.
///
/// What is still waiting when the queue goes is dropped with it.
class DeliveryQueue {
public:
    /// `runLoop` must outlive this.
    explicit DeliveryQueue(RunLoop& runLoop) : m_runLoop(runLoop) { }

    void add(std::function<void()> work)
    {
        m_waiting.push_back(std::move(work));
        if (m_waiting.size() == 1)
            m_turn = m_runLoop.nextTurn([this] { deliver(); });
    }

private:
    void deliver()
    {
        for (const auto& work : std::exchange(m_waiting, {}))
            work();
    }

    RunLoop& m_runLoop;
    std::vector<std::function<void()>> m_waiting;
    Subscription m_turn;
};

} // namespace velto
