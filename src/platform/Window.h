// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <memory>
#include <utility>

namespace velto {

/// A window that takes the focus when shown, and is only hidden when closed.
///
/// Dropping this object leaves a visible window on the screen until the user closes it.
class Window {
public:
    virtual ~Window() = default;

    /// Shows it in front of the others and gives it the keyboard.
    virtual void makeKeyAndOrderFront() = 0;
};

/// Owns one window.
class WindowController {
public:
    using WindowFactory = std::function<std::unique_ptr<Window>()>;

    explicit WindowController(WindowFactory makeWindow) : m_makeWindow(std::move(makeWindow)) { }
    virtual ~WindowController() = default;

    /// Created on first access, then kept.
    Window& panel()
    {
        if (!m_panel)
            m_panel = m_makeWindow();
        return *m_panel;
    }

private:
    WindowFactory m_makeWindow;
    std::unique_ptr<Window> m_panel;
};

} // namespace velto
