// SPDX-License-Identifier: MIT
#pragma once

#include "observation/Subscription.h"
#include "platform/Geometry.h"

#include <functional>
#include <optional>

namespace velto {

struct Screen {
    Rect frame;        ///< All of it.
    Rect visibleFrame; ///< Without panel bars and docks.
    bool operator==(const Screen&) const = default;
};

/// The screens at this moment; they come and go.
class Screens {
public:
    virtual ~Screens() = default;

    /// Absent while no screen is attached.
    [[nodiscard]] virtual std::optional<Screen> mainScreen() const = 0;
    /// The screen that holds the middle of `rect`, else absent.
    [[nodiscard]] virtual std::optional<Screen> screenOf(const Rect& rect) const = 0;
    /// That screen, else the main one.
    [[nodiscard]] std::optional<Screen> screenFor(const std::optional<Rect>& rect) const
    {
        const auto screen = rect ? screenOf(*rect) : std::nullopt;
        return screen ? screen : mainScreen();
    }
    /// Runs `changed` after screens were added, removed, moved or resized.
    virtual Subscription changes(std::function<void()> changed) = 0;
};

} // namespace velto
