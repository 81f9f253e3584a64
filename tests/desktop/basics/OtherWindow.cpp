// SPDX-License-Identifier: MIT
#include "OtherWindow.h"

#include <array>
#include <cstdlib>
#include <memory>
#include <utility>

namespace velto {

namespace {

template <class Reply>
std::unique_ptr<Reply, decltype(&std::free)> owned(Reply* reply)
{
    return {reply, &std::free};
}

} // namespace

OtherWindow::OtherWindow(const QRect& frame, Kind kind) :
    m_connection(xcb_connect(nullptr, nullptr)),
    m_root(xcb_setup_roots_iterator(xcb_get_setup(m_connection)).data->root),
    m_window(xcb_generate_id(m_connection)),
    m_kind(kind),
    m_frame(frame)
{
    const std::uint32_t values[]{0x808080, kind == Kind::menu ? 1U : 0U,
        XCB_EVENT_MASK_BUTTON_PRESS | XCB_EVENT_MASK_KEY_PRESS | XCB_EVENT_MASK_STRUCTURE_NOTIFY};
    xcb_create_window(m_connection, XCB_COPY_FROM_PARENT, m_window, m_root, static_cast<std::int16_t>(frame.x()),
        static_cast<std::int16_t>(frame.y()), static_cast<std::uint16_t>(frame.width()),
        static_cast<std::uint16_t>(frame.height()), 0, XCB_WINDOW_CLASS_INPUT_OUTPUT, XCB_COPY_FROM_PARENT,
        XCB_CW_BACK_PIXEL | XCB_CW_OVERRIDE_REDIRECT | XCB_CW_EVENT_MASK, values);
    const std::array names{"NORMAL", "DOCK", "POPUP_MENU"};
    setProperty("_NET_WM_WINDOW_TYPE", XCB_ATOM_ATOM,
        {atom(std::string{"_NET_WM_WINDOW_TYPE_"} + names.at(static_cast<std::size_t>(kind)))});
    // Placed by the user, so that the window manager leaves it there: flags, then 17 numbers of which x and y matter.
    std::vector<std::uint32_t> hints(18, 0);
    hints[0] = 1U | 2U | 4U | 8U;
    hints[1] = static_cast<std::uint32_t>(frame.x());
    hints[2] = static_cast<std::uint32_t>(frame.y());
    setProperty("WM_NORMAL_HINTS", XCB_ATOM_WM_SIZE_HINTS, hints);
    sync();
}

OtherWindow::~OtherWindow()
{
    xcb_disconnect(m_connection);
}

void OtherWindow::setStrut(std::uint32_t left, std::uint32_t right, std::uint32_t top, std::uint32_t bottom)
{
    const auto x = static_cast<std::uint32_t>(m_frame.left());
    const auto y = static_cast<std::uint32_t>(m_frame.top());
    const auto endX = static_cast<std::uint32_t>(m_frame.right());
    const auto endY = static_cast<std::uint32_t>(m_frame.bottom());
    setProperty("_NET_WM_STRUT_PARTIAL", XCB_ATOM_CARDINAL,
        {left, right, top, bottom, left ? y : 0, left ? endY : 0, right ? y : 0, right ? endY : 0, top ? x : 0,
            top ? endX : 0, bottom ? x : 0, bottom ? endX : 0});
    sync();
}

void OtherWindow::show()
{
    xcb_map_window(m_connection, m_window);
    sync();
}

void OtherWindow::hide()
{
    xcb_unmap_window(m_connection, m_window);
    sync();
}

void OtherWindow::grabPointer()
{
    owned(xcb_grab_pointer_reply(m_connection,
        xcb_grab_pointer(m_connection, 0, m_window, XCB_EVENT_MASK_BUTTON_PRESS, XCB_GRAB_MODE_ASYNC,
            XCB_GRAB_MODE_ASYNC, XCB_WINDOW_NONE, XCB_CURSOR_NONE, XCB_CURRENT_TIME),
        nullptr));
}

void OtherWindow::ungrabPointer()
{
    xcb_ungrab_pointer(m_connection, XCB_CURRENT_TIME);
    sync();
}

void OtherWindow::setFullScreen()
{
    setProperty("_NET_WM_STATE", XCB_ATOM_ATOM, {atom("_NET_WM_STATE_FULLSCREEN")});
    sync();
}

void OtherWindow::ownSelection(const std::string& name)
{
    xcb_set_selection_owner(m_connection, m_window, atom(name), XCB_CURRENT_TIME);
    sync();
}

void OtherWindow::disownSelection(const std::string& name)
{
    xcb_set_selection_owner(m_connection, XCB_WINDOW_NONE, atom(name), XCB_CURRENT_TIME);
    sync();
}

bool OtherWindow::hasKeyboard() const
{
    const auto reply = owned(xcb_get_input_focus_reply(m_connection, xcb_get_input_focus(m_connection), nullptr));
    return reply && reply->focus == m_window;
}

int OtherWindow::takePresses()
{
    readEvents();
    return std::exchange(m_presses, 0);
}

int OtherWindow::takeKeys()
{
    readEvents();
    return std::exchange(m_keys, 0);
}

void OtherWindow::setProperty(const std::string& name, xcb_atom_t type, const std::vector<std::uint32_t>& items)
{
    xcb_change_property(m_connection, XCB_PROP_MODE_REPLACE, m_window, atom(name), type, 32,
        static_cast<std::uint32_t>(items.size()), items.data());
}

xcb_atom_t OtherWindow::atom(const std::string& name) const
{
    const auto cookie = xcb_intern_atom(m_connection, 0, static_cast<std::uint16_t>(name.size()), name.data());
    const auto reply = owned(xcb_intern_atom_reply(m_connection, cookie, nullptr));
    return reply ? reply->atom : xcb_atom_t{XCB_ATOM_NONE};
}

void OtherWindow::readEvents()
{
    sync();
    while (const auto event = owned(xcb_poll_for_event(m_connection))) {
        const auto type = event->response_type & 0x7f;
        m_presses += type == XCB_BUTTON_PRESS ? 1 : 0;
        m_keys += type == XCB_KEY_PRESS ? 1 : 0;
    }
}

void OtherWindow::sync() const
{
    owned(xcb_get_input_focus_reply(m_connection, xcb_get_input_focus(m_connection), nullptr));
}

} // namespace velto
