// SPDX-License-Identifier: MIT
#pragma once

#include "observation/Subscription.h"

#include <functional>
#include <optional>

namespace velto {

/// Watches mouse presses that go to other applications.
class EventMonitor {
public:
    virtual ~EventMonitor() = default;

    /// Calls `handler` for each press of the left or right button outside this program's windows,
    /// until the token is dropped (also from within the handler). Absent when presses can't be watched.
    [[nodiscard]] virtual std::optional<Subscription> addOutsidePressMonitor(std::function<void()> handler) = 0;
};

} // namespace velto
