// SPDX-License-Identifier: MIT
#pragma once

#include "platform/Window.h"

#include <functional>
#include <memory>

namespace velto {

/// Owns the window that says what the program is.
class AboutWindowController final : public WindowController {
public:
    using WindowFactory = std::function<std::unique_ptr<Window>()>;

    explicit AboutWindowController(WindowFactory makeWindow);

    Window& panel() override;

private:
    WindowFactory m_makeWindow;
    std::unique_ptr<Window> m_panel;
};

} // namespace velto
