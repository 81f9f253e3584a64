// SPDX-License-Identifier: MIT
#pragma once

#include "observation/Broadcast.h"
#include "platform/Screens.h"

#include <algorithm>
#include <utility>
#include <vector>

namespace velto {

class FakeScreens final : public Screens {
public:
    std::optional<Screen> mainScreen() const override
    {
        return screens.empty() ? std::nullopt : std::optional(screens.front());
    }

    std::optional<Screen> screenOf(const Rect& rect) const override
    {
        const auto found = std::ranges::find_if(screens, [&](const Screen& screen) {
            return screen.frame.contains({rect.midX(), rect.midY()});
        });
        return found == screens.end() ? std::nullopt : std::optional(*found);
    }

    Subscription changes(std::function<void()> changed) override { return m_changes.subscribe(std::move(changed)); }

    void change(std::vector<Screen> newScreens)
    {
        screens = std::move(newScreens);
        m_changes.send();
    }

    std::vector<Screen> screens{
        {.frame = {0, 0, 1440, 1102}, .visibleFrame = {0, 0, 1440, 877}}}; ///< The main one first.

private:
    Broadcast<> m_changes;
};

} // namespace velto
