// SPDX-License-Identifier: MIT
#include "desktop/windows/WindowManagerHints.h"

#include "desktop/x11/X11Desktop.h"

#include <QCoreApplication>
#include <QWidget>

#include <vector>

namespace velto {

namespace {

constexpr std::uint32_t everyWorkspace = 0xffffffff;

} // namespace

WindowManagerHints::WindowManagerHints(const QWidget& window) : m_window(window)
{
    if (x11::connection())
        qApp->installNativeEventFilter(this);
}

void WindowManagerHints::announce()
{
    if (!x11::connection())
        return;
    m_moves = 0;
    x11::setProperty(id(), x11::atom("_NET_WM_STATE"), XCB_ATOM_ATOM,
        {x11::atom("_NET_WM_STATE_ABOVE"), x11::atom("_NET_WM_STATE_STICKY"), x11::atom("_NET_WM_STATE_SKIP_TASKBAR"),
            x11::atom("_NET_WM_STATE_SKIP_PAGER")});
    x11::setProperty(id(), x11::atom("_NET_WM_DESKTOP"), XCB_ATOM_CARDINAL, {everyWorkspace});
}

bool WindowManagerHints::nativeEventFilter(const QByteArray& /*eventType*/, void* message, qintptr* /*result*/)
{
    const int type = static_cast<const xcb_generic_event_t*>(message)->response_type & 0x7f;
    if (type == XCB_MAP_NOTIFY && static_cast<const xcb_map_notify_event_t*>(message)->window == id())
        demand();
    else if (type == XCB_PROPERTY_NOTIFY)
        followWorkspace(*static_cast<const xcb_property_notify_event_t*>(message));
    return false;
}

xcb_window_t WindowManagerHints::id() const
{
    return static_cast<xcb_window_t>(m_window.winId());
}

/// A window manager that clears up after the window's hiding may clear away what was announced for its next showing.
void WindowManagerHints::demand()
{
    constexpr std::uint32_t add = 1;
    constexpr std::uint32_t asApplication = 1;
    x11::request(id(), "_NET_WM_STATE",
        {add, x11::atom("_NET_WM_STATE_ABOVE"), x11::atom("_NET_WM_STATE_STICKY"), asApplication});
    x11::request(id(), "_NET_WM_STATE",
        {add, x11::atom("_NET_WM_STATE_SKIP_TASKBAR"), x11::atom("_NET_WM_STATE_SKIP_PAGER"), asApplication});
    x11::request(id(), "_NET_WM_DESKTOP", {everyWorkspace, asApplication});
}

/// A window manager that clears up late takes the new showing for one of an ordinary window and puts it on one
/// workspace. One that insists has its way.
void WindowManagerHints::followWorkspace(const xcb_property_notify_event_t& change)
{
    constexpr int mostMoves = 10;
    static const auto workspace = x11::atom("_NET_WM_DESKTOP");
    if (change.window != id() || change.atom != workspace || change.state != XCB_PROPERTY_NEW_VALUE
        || !m_window.isVisible())
        return;
    if (x11::property(id(), workspace) != std::vector{everyWorkspace} && ++m_moves <= mostMoves)
        demand();
}

} // namespace velto
