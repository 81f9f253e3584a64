// SPDX-License-Identifier: MIT
#pragma once

#include "observation/Subscription.h"

#include <chrono>
#include <functional>

namespace velto {

/// Runs work later on the main thread; keeps going while a menu is open.
///
///     m_ticks = runLoop.every(1s, [this] { tick(); });
///     m_welcome = runLoop.after(500ms, [this] { showWelcome(); });
///     m_refresh = runLoop.nextTurn([this] { refresh(); });
///
/// The returned handle keeps the work scheduled: dropping it, even from within the work, cancels it.
/// Handles must not outlive the run loop. Main thread only.
class RunLoop {
public:
    virtual ~RunLoop() = default;

    /// Runs `work` every `interval`, first one interval from now. A late run does not delay the
    /// following ones, and missed ones are not made up for.
    virtual Subscription every(std::chrono::milliseconds interval, std::function<void()> work) = 0;

    /// Runs `work` once, no earlier than `delay` from now.
    virtual Subscription after(std::chrono::milliseconds delay, std::function<void()> work) = 0;

    /// Runs `work` once, after the event being handled now. Work runs in the order requested.
    virtual Subscription nextTurn(std::function<void()> work) = 0;
};

} // namespace velto
