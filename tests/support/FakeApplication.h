// SPDX-License-Identifier: MIT
#pragma once

#include "platform/Application.h"

#include <functional>

namespace velto {

class FakeApplication final : public Application {
public:
    void activate() override
    {
        ++activations;
        if (onActivate)
            onActivate();
    }
    void terminate() override { ++terminations; }
    std::optional<ClickEvent> currentEvent() const override { return event; }

    int activations = 0;
    int terminations = 0;
    std::optional<ClickEvent> event;
    std::function<void()> onActivate; ///< May be empty.
};

} // namespace velto
