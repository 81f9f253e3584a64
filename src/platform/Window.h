// SPDX-License-Identifier: MIT
#pragma once

namespace velto {

/// A window that takes the focus when it is shown, and that closing only hides.
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
    virtual ~WindowController() = default;

    /// Created on first access, then kept.
    virtual Window& panel() = 0;
};

} // namespace velto
