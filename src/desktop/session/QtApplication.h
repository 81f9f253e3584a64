// SPDX-License-Identifier: MIT
#pragma once

#include "platform/Application.h"

#include <functional>

namespace velto {

/// The process, as a Qt application with windows.
class QtApplication final : public Application {
public:
    void activate() override;
    void terminate() override;
    [[nodiscard]] std::optional<ClickEvent> currentEvent() const override;

    /// Runs `action` with `event` as the current one.
    void dispatch(ClickEvent event, const std::function<void()>& action);

private:
    std::optional<ClickEvent> m_currentEvent;
};

} // namespace velto
