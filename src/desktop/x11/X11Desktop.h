// SPDX-License-Identifier: MIT
#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include <QRect>

#include <xcb/xcb.h>

/// Questions to the X server over the application's own connection. Each is a round trip.
namespace velto::x11 {

/// Whether there is a server to connect to. Needs no application.
[[nodiscard]] bool serverAnswers();
/// Null when the application does not run on X11; then only functions that say so may be called here.
[[nodiscard]] xcb_connection_t* connection();
/// Whether that server has the whole screen. One that serves a Wayland session sees its own windows only, and the
/// pointer only over them.
[[nodiscard]] bool seesTheScreen();
[[nodiscard]] xcb_window_t rootWindow();
[[nodiscard]] bool hasWindowManager();
/// The name of the one there is; empty for none.
[[nodiscard]] std::string windowManager();
/// Without one, translucent pixels are drawn as if they were opaque.
[[nodiscard]] bool hasCompositingManager();
[[nodiscard]] xcb_atom_t atom(std::string_view name);

/// A property made of 32-bit items; empty when the window has none of that name.
[[nodiscard]] std::vector<std::uint32_t> property(xcb_window_t window, xcb_atom_t name);
void setProperty(xcb_window_t window, xcb_atom_t name, xcb_atom_t type, const std::vector<std::uint32_t>& items);

/// The window's ancestor right below the root: its frame, if the window manager gave it one. Absent
/// when the window is gone.
[[nodiscard]] std::optional<xcb_window_t> outermost(xcb_window_t window);

/// Whether `window` is a panel bar.
[[nodiscard]] bool isDock(xcb_window_t window);

/// The outermost window that a press at `pixel` would go to.
[[nodiscard]] std::optional<xcb_window_t> topLevelAt(QPoint pixel);

/// The window that gets the keys, as far as the window manager or else the server knows.
[[nodiscard]] xcb_window_t focusedWindow();
/// Asks for `window` to get the keys, whatever has them.
void focus(xcb_window_t window);
/// Asks for `window`, one of this program, to get the keys because the user wants it now. A window manager grants that
/// when the user acted in this program after acting in the one that has them; a click on the status item and the
/// launch itself arrive without their time, so this takes the present one.
void activate(xcb_window_t window);
/// Asks the window manager, by the message of that name, to do something with a window that it manages.
void request(xcb_window_t window, std::string_view message, const std::array<std::uint32_t, 5>& items);

/// Tells the desktop that what it expected to start, and shows a busy pointer for, has started.
void endStartup(std::string_view id);

struct Pointer {
    std::vector<xcb_window_t> windows; ///< Under it, outermost first; none where the desktop is bare.
    std::int16_t x = 0;                ///< Pixels of the X screen, origin top left.
    std::int16_t y = 0;
    bool controlIsHeld = false;
    bool buttonIsHeld = false; ///< Any of the main three.
};

[[nodiscard]] Pointer pointer();

/// Whether a mouse button is down, so that another program may hold the mouse. False where there is no X11.
[[nodiscard]] bool mouseIsPressed();

/// The part of the X screen that `window` covers. Absent when the window is gone.
[[nodiscard]] std::optional<QRect> geometry(xcb_window_t window);
/// Whether `window` and all that it is in are mapped.
[[nodiscard]] bool isViewable(xcb_window_t window);

} // namespace velto::x11
