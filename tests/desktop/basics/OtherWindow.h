// SPDX-License-Identifier: MIT
#pragma once

#include <QRect>

#include <cstdint>
#include <functional>
#include <string>
#include <vector>

#include <xcb/xcb.h>

namespace velto {

/// A plain window of another program: it has a connection of its own to the X server.
class OtherWindow {
public:
    enum class Kind { normal, dock, menu };

    explicit OtherWindow(const QRect& frame, Kind kind = Kind::normal);
    OtherWindow(const OtherWindow&) = delete;
    OtherWindow& operator=(const OtherWindow&) = delete;
    ~OtherWindow();

    /// What a dock keeps free: left, right, top, bottom, in pixels from the edges of the desktop.
    void setStrut(std::uint32_t left, std::uint32_t right, std::uint32_t top, std::uint32_t bottom);
    void show();
    void hide();
    /// Holds all input back from everybody else.
    void grabPointer();
    void ungrabPointer();
    void setFullScreen();
    /// Takes a selection, the way a compositing manager announces itself.
    void ownSelection(const std::string& name);
    void disownSelection(const std::string& name);

    [[nodiscard]] xcb_window_t id() const { return m_window; }
    [[nodiscard]] bool hasKeyboard() const;
    /// Presses and keys that came since the last call.
    [[nodiscard]] int takePresses();
    [[nodiscard]] int takeKeys();

private:
    void setProperty(const std::string& name, xcb_atom_t type, const std::vector<std::uint32_t>& items);
    [[nodiscard]] xcb_atom_t atom(const std::string& name) const;
    void readEvents();
    /// Until the server has done what was asked for.
    void sync() const;

    xcb_connection_t* m_connection;
    xcb_window_t m_root;
    xcb_window_t m_window;
    Kind m_kind;
    QRect m_frame;
    int m_presses = 0;
    int m_keys = 0;
};

} // namespace velto
