// SPDX-License-Identifier: MIT
#include "desktop/status_item/FullScreenWatch.h"

#include "desktop/x11/Pixels.h"
#include "desktop/x11/X11Desktop.h"

#include <QGuiApplication>
#include <QScreen>
#include <QWindow>

#include <algorithm>
#include <optional>
#include <utility>
#include <vector>

#include <xcb/xfixes.h>

namespace velto {

namespace {

/// A window of one pixel that is neither seen nor clicked nor listed.
xcb_window_t unseenWindow(const char* type)
{
    auto* connection = x11::connection();
    const xcb_window_t window = xcb_generate_id(connection);
    xcb_create_window(connection, XCB_COPY_FROM_PARENT, window, x11::rootWindow(), 0, 0, 1, 1, 0,
        XCB_WINDOW_CLASS_INPUT_OUTPUT, XCB_COPY_FROM_PARENT, 0, nullptr);
    x11::setProperty(window, x11::atom("_NET_WM_WINDOW_TYPE"), XCB_ATOM_ATOM, {x11::atom(type)});
    x11::setProperty(window, x11::atom("_NET_WM_STATE"), XCB_ATOM_ATOM,
        {x11::atom("_NET_WM_STATE_SKIP_TASKBAR"), x11::atom("_NET_WM_STATE_SKIP_PAGER"),
            x11::atom("_NET_WM_STATE_STICKY")});
    x11::setProperty(window, x11::atom("_NET_WM_WINDOW_OPACITY"), XCB_ATOM_CARDINAL, {0});
    x11::setProperty(window, x11::atom("_NET_WM_USER_TIME"), XCB_ATOM_CARDINAL, {0});
    constexpr std::uint32_t decorationsAreSaid = 2;
    x11::setProperty(
        window, x11::atom("_MOTIF_WM_HINTS"), x11::atom("_MOTIF_WM_HINTS"), {decorationsAreSaid, 0, 0, 0, 0});
    constexpr std::uint32_t inputIsSaid = 1;
    x11::setProperty(window, XCB_ATOM_WM_HINTS, XCB_ATOM_WM_HINTS, {inputIsSaid, 0, 0, 0, 0, 0, 0, 0, 0});
    const xcb_xfixes_region_t nothing = xcb_generate_id(connection);
    constexpr std::uint8_t inputShape = 2;
    xcb_xfixes_create_region(connection, nothing, 0, nullptr);
    xcb_xfixes_set_window_shape_region(connection, window, inputShape, 0, 0, nothing);
    xcb_xfixes_destroy_region(connection, nothing);
    xcb_map_window(connection, window);
    xcb_flush(connection);
    return window;
}

bool holds(xcb_window_t window, const char* property, const char* item)
{
    return std::ranges::count(x11::property(window, x11::atom(property)), x11::atom(item)) > 0;
}

bool isOnCurrentWorkspace(xcb_window_t window)
{
    constexpr std::uint32_t everywhere = 0xffffffff;
    const auto workspace = x11::property(window, x11::atom("_NET_WM_DESKTOP"));
    return workspace.empty() || workspace.front() == everywhere
        || workspace == x11::property(x11::rootWindow(), x11::atom("_NET_CURRENT_DESKTOP"));
}

QRect mainScreen()
{
    const auto* screen = QGuiApplication::primaryScreen();
    return screen ? toPixels(screen->geometry(), *screen) : QRect();
}

/// As an ordinary window does. The one that draws the desktop may reach over all screens.
bool standsOnMainScreen(xcb_window_t window)
{
    const auto area = x11::geometry(window);
    return area && mainScreen().contains(area->center())
        && !holds(window, "_NET_WM_WINDOW_TYPE", "_NET_WM_WINDOW_TYPE_DESKTOP");
}

bool fillsMainScreen(xcb_window_t window)
{
    const auto area = x11::geometry(window);
    return area && area->contains(mainScreen().center()) && holds(window, "_NET_WM_STATE", "_NET_WM_STATE_FULLSCREEN")
        && !holds(window, "_NET_WM_STATE", "_NET_WM_STATE_HIDDEN") && x11::isViewable(window)
        && isOnCurrentWorkspace(window);
}

} // namespace

FullScreenWatch::FullScreenWatch()
{
    if (!x11::connection())
        return;
    if (x11::windowManager() == "GNOME Shell") {
        m_dock = unseenWindow("_NET_WM_WINDOW_TYPE_DOCK");
        m_ordinary = unseenWindow("_NET_WM_WINDOW_TYPE_UTILITY");
    }
    qApp->installNativeEventFilter(this);
    look();
}

FullScreenWatch::~FullScreenWatch()
{
    if (!x11::connection())
        return;
    for (const auto window : {m_dock, m_ordinary})
        if (window != XCB_WINDOW_NONE)
            xcb_destroy_window(x11::connection(), window);
    xcb_flush(x11::connection());
}

bool FullScreenWatch::nativeEventFilter(const QByteArray& /*eventType*/, void* message, qintptr* /*result*/)
{
    static const auto stacking = x11::atom("_NET_CLIENT_LIST_STACKING");
    static const auto active = x11::atom("_NET_ACTIVE_WINDOW");
    static const auto workspace = x11::atom("_NET_CURRENT_DESKTOP");
    static const auto state = x11::atom("_NET_WM_STATE");
    const auto* event = static_cast<const xcb_generic_event_t*>(message);
    switch (event->response_type & 0x7f) {
    case XCB_PROPERTY_NOTIFY: {
        const auto& change = *static_cast<const xcb_property_notify_event_t*>(message);
        if (change.atom == (m_dock != XCB_WINDOW_NONE ? stacking : active)
            || (change.atom == workspace && m_filling != XCB_WINDOW_NONE)
            || (change.atom == state && (change.window == m_active || change.window == m_filling)))
            look();
        break;
    }
    case XCB_CONFIGURE_NOTIFY:
    case XCB_MAP_NOTIFY:
    case XCB_UNMAP_NOTIFY:
    case XCB_DESTROY_NOTIFY: {
        // They begin alike.
        const auto window = static_cast<const xcb_destroy_notify_event_t*>(message)->window;
        if (window == m_filling || (window == m_active && (m_activeIsFullScreen || m_filling != XCB_WINDOW_NONE)))
            look();
        break;
    }
    }
    return false;
}

bool FullScreenWatch::dockIsLowered() const
{
    const auto order = x11::property(x11::rootWindow(), x11::atom("_NET_CLIENT_LIST_STACKING"));
    const auto dock = std::ranges::find(order, m_dock);
    return dock != order.end() && std::find(dock, order.end(), m_ordinary) != order.end();
}

bool FullScreenWatch::aWindowFillsTheMainScreen()
{
    const auto focused = x11::focusedWindow();
    const auto isOurs = std::ranges::any_of(QGuiApplication::topLevelWindows(),
        [focused](const QWindow* window) { return window->handle() && window->winId() == focused; });
    // Ours stand above the one that fills the screen.
    if (!isOurs && std::exchange(m_active, focused) != focused && focused != XCB_WINDOW_NONE) {
        constexpr std::uint32_t changes = XCB_EVENT_MASK_PROPERTY_CHANGE | XCB_EVENT_MASK_STRUCTURE_NOTIFY;
        xcb_change_window_attributes(x11::connection(), focused, XCB_CW_EVENT_MASK, &changes);
    }
    m_activeIsFullScreen = m_active != XCB_WINDOW_NONE && holds(m_active, "_NET_WM_STATE", "_NET_WM_STATE_FULLSCREEN");
    if (m_activeIsFullScreen && fillsMainScreen(m_active)) {
        m_filling = m_active;
        return true;
    }
    if (m_filling == XCB_WINDOW_NONE)
        return false;
    // With the keyboard on another screen, what fills the main one is seen all the same.
    if (m_active != XCB_WINDOW_NONE && standsOnMainScreen(m_active))
        m_filling = XCB_WINDOW_NONE;
    return m_filling != XCB_WINDOW_NONE && fillsMainScreen(m_filling);
}

void FullScreenWatch::look()
{
    const bool isFilled = m_dock != XCB_WINDOW_NONE ? dockIsLowered() : aWindowFillsTheMainScreen();
    if (std::exchange(m_isFilled, isFilled) != isFilled)
        emit changed();
}

} // namespace velto
