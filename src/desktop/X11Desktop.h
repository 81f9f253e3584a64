// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <optional>
#include <string_view>
#include <vector>

#include <xcb/xcb.h>

/// Questions to the X server over the application's own connection. Each is a round trip.
namespace velto::x11 {

/// Null when the application does not run on X11; then nothing else here may be called.
[[nodiscard]] xcb_connection_t* connection();
[[nodiscard]] xcb_window_t rootWindow();
[[nodiscard]] xcb_atom_t atom(std::string_view name);

/// A property made of 32-bit items; empty when the window has none of that name.
[[nodiscard]] std::vector<std::uint32_t> property(xcb_window_t window, xcb_atom_t name);
void setProperty(xcb_window_t window, xcb_atom_t name, xcb_atom_t type, const std::vector<std::uint32_t>& items);

/// The window's ancestor right below the root: its frame, if the window manager gave it one. Absent
/// when the window is gone.
[[nodiscard]] std::optional<xcb_window_t> outermost(xcb_window_t window);

} // namespace velto::x11
