// SPDX-License-Identifier: MIT
#pragma once

#include "observation/Broadcast.h"
#include "platform/EventMonitor.h"

#include <utility>

namespace velto {

/// Reports the presses that a test makes.
class FakeEventMonitor final : public EventMonitor {
public:
    std::optional<Subscription> addOutsidePressMonitor(std::function<void()> handler) override
    {
        ++requests;
        return available ? std::optional(m_presses.subscribe(std::move(handler))) : std::nullopt;
    }

    void pressOutside() { m_presses.send(); }
    [[nodiscard]] std::size_t installedMonitors() const { return m_presses.subscriberCount(); }

    bool available = true; ///< Presses can be watched.
    int requests = 0;

private:
    Broadcast<> m_presses;
};

} // namespace velto
