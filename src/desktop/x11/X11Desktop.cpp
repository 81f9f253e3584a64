// SPDX-License-Identifier: MIT
#include "desktop/x11/X11Desktop.h"

#include <QGuiApplication>

#include <algorithm>
#include <cstdlib>
#include <memory>
#include <span>
#include <string>

#include <X11/Xlib.h>
#include <X11/extensions/sync.h>

namespace velto::x11 {

namespace {

struct Free {
    void operator()(void* reply) const { std::free(reply); }
};

template <class Reply>
std::unique_ptr<Reply, Free> owned(Reply* reply)
{
    return std::unique_ptr<Reply, Free>{reply};
}

Display* display()
{
    return qGuiApp->nativeInterface<QNativeInterface::QX11Application>()->display();
}

/// What the clock of the X server shows; CurrentTime when it does not tell. From Xlib, since libxcb reads the counters'
/// names two bytes off.
xcb_timestamp_t serverTime()
{
    int count = 0;
    int ignored = 0;
    if (!XSyncQueryExtension(display(), &ignored, &ignored) || !XSyncInitialize(display(), &ignored, &ignored))
        return CurrentTime;
    const std::unique_ptr<XSyncSystemCounter[], decltype(&XSyncFreeSystemCounterList)> counters(
        XSyncListSystemCounters(display(), &count), XSyncFreeSystemCounterList);
    const std::span all(counters.get(), static_cast<std::size_t>(count));
    const auto clock = std::ranges::find(all, std::string_view("SERVERTIME"), &XSyncSystemCounter::name);
    XSyncValue time{};
    if (clock == all.end() || !XSyncQueryCounter(display(), clock->counter, &time))
        return CurrentTime;
    return XSyncValueLow32(time);
}

} // namespace

bool serverAnswers()
{
    const std::unique_ptr<xcb_connection_t, decltype(&xcb_disconnect)> server(
        xcb_connect(nullptr, nullptr), xcb_disconnect);
    return xcb_connection_has_error(server.get()) == 0;
}

xcb_connection_t* connection()
{
    const auto* native = qGuiApp ? qGuiApp->nativeInterface<QNativeInterface::QX11Application>() : nullptr;
    return native ? native->connection() : nullptr;
}

bool seesTheScreen()
{
    return connection() && !qEnvironmentVariableIsSet("WAYLAND_DISPLAY");
}

xcb_window_t rootWindow()
{
    return xcb_setup_roots_iterator(xcb_get_setup(connection())).data->root;
}

bool hasWindowManager()
{
    return !property(rootWindow(), atom("_NET_SUPPORTING_WM_CHECK")).empty();
}

std::string windowManager()
{
    const auto check = property(rootWindow(), atom("_NET_SUPPORTING_WM_CHECK"));
    if (check.empty())
        return {};
    constexpr std::uint32_t maximumLength = 64;
    const auto cookie
        = xcb_get_property(connection(), 0, check.front(), atom("_NET_WM_NAME"), XCB_ATOM_ANY, 0, maximumLength);
    const auto reply = owned(xcb_get_property_reply(connection(), cookie, nullptr));
    if (!reply || reply->format != 8)
        return {};
    return {static_cast<const char*>(xcb_get_property_value(reply.get())),
        static_cast<std::size_t>(xcb_get_property_value_length(reply.get()))};
}

bool hasCompositingManager()
{
    const auto cookie = xcb_get_selection_owner(connection(), atom("_NET_WM_CM_S0"));
    const auto reply = owned(xcb_get_selection_owner_reply(connection(), cookie, nullptr));
    return reply && reply->owner != XCB_WINDOW_NONE;
}

xcb_atom_t atom(std::string_view name)
{
    const auto cookie = xcb_intern_atom(connection(), 0, static_cast<std::uint16_t>(name.size()), name.data());
    const auto reply = owned(xcb_intern_atom_reply(connection(), cookie, nullptr));
    return reply ? reply->atom : xcb_atom_t{XCB_ATOM_NONE};
}

std::vector<std::uint32_t> property(xcb_window_t window, xcb_atom_t name)
{
    constexpr std::uint32_t maximumLength = 16384;
    const auto cookie = xcb_get_property(connection(), 0, window, name, XCB_ATOM_ANY, 0, maximumLength);
    const auto reply = owned(xcb_get_property_reply(connection(), cookie, nullptr));
    if (!reply || reply->format != 32)
        return {};
    const auto* items = static_cast<const std::uint32_t*>(xcb_get_property_value(reply.get()));
    return {items, items + reply->value_len};
}

void setProperty(xcb_window_t window, xcb_atom_t name, xcb_atom_t type, const std::vector<std::uint32_t>& items)
{
    xcb_change_property(connection(), XCB_PROP_MODE_REPLACE, window, name, type, 32,
        static_cast<std::uint32_t>(items.size()), items.data());
}

std::optional<xcb_window_t> outermost(xcb_window_t window)
{
    for (;;) {
        const auto reply = owned(xcb_query_tree_reply(connection(), xcb_query_tree(connection(), window), nullptr));
        if (!reply)
            return std::nullopt;
        if (reply->parent == reply->root || reply->parent == XCB_WINDOW_NONE)
            return window;
        window = reply->parent;
    }
}

bool isDock(xcb_window_t window)
{
    static const auto type = atom("_NET_WM_WINDOW_TYPE");
    static const auto dock = atom("_NET_WM_WINDOW_TYPE_DOCK");
    return std::ranges::count(property(window, type), dock) > 0;
}

std::optional<xcb_window_t> topLevelAt(QPoint pixel)
{
    const auto cookie = xcb_translate_coordinates(connection(), rootWindow(), rootWindow(),
        static_cast<std::int16_t>(pixel.x()), static_cast<std::int16_t>(pixel.y()));
    const auto reply = owned(xcb_translate_coordinates_reply(connection(), cookie, nullptr));
    return reply && reply->child != XCB_WINDOW_NONE ? std::optional(reply->child) : std::nullopt;
}

xcb_window_t focusedWindow()
{
    if (hasWindowManager()) {
        const auto active = property(rootWindow(), atom("_NET_ACTIVE_WINDOW"));
        return active.empty() ? xcb_window_t{XCB_WINDOW_NONE} : active.front();
    }
    const auto reply = owned(xcb_get_input_focus_reply(connection(), xcb_get_input_focus(connection()), nullptr));
    return reply ? reply->focus : xcb_window_t{XCB_WINDOW_NONE};
}

void focus(xcb_window_t window)
{
    if (hasWindowManager()) {
        constexpr std::uint32_t asPager = 2;
        request(window, "_NET_ACTIVE_WINDOW", {asPager, serverTime()});
    } else {
        xcb_set_input_focus(connection(), XCB_INPUT_FOCUS_PARENT, window, XCB_CURRENT_TIME);
        xcb_flush(connection());
    }
}

void activate(xcb_window_t window)
{
    if (hasWindowManager()) {
        constexpr std::uint32_t asApplication = 1;
        request(window, "_NET_ACTIVE_WINDOW", {asApplication, serverTime()});
    } else {
        focus(window);
    }
}

void request(xcb_window_t window, std::string_view message, const std::array<std::uint32_t, 5>& items)
{
    xcb_client_message_event_t event{};
    event.response_type = XCB_CLIENT_MESSAGE;
    event.format = 32;
    event.window = window;
    event.type = atom(message);
    std::ranges::copy(items, event.data.data32);
    xcb_send_event(connection(), 0, rootWindow(),
        XCB_EVENT_MASK_SUBSTRUCTURE_REDIRECT | XCB_EVENT_MASK_SUBSTRUCTURE_NOTIFY,
        reinterpret_cast<const char*>(&event));
    xcb_flush(connection());
}

void endStartup(std::string_view id)
{
    std::string text = "remove: ID=";
    text += id;
    const xcb_window_t sender = xcb_generate_id(connection());
    xcb_create_window(connection(), XCB_COPY_FROM_PARENT, sender, rootWindow(), -1, -1, 1, 1, 0,
        XCB_WINDOW_CLASS_INPUT_ONLY, XCB_COPY_FROM_PARENT, 0, nullptr);
    xcb_client_message_event_t message{};
    message.response_type = XCB_CLIENT_MESSAGE;
    message.format = 8;
    message.window = sender;
    message.type = atom("_NET_STARTUP_INFO_BEGIN");
    constexpr std::size_t room = sizeof message.data.data8;
    for (std::size_t start = 0; start <= text.size(); start += room) { // with the null that ends it
        const auto part = text.substr(start, room);
        std::ranges::fill(message.data.data8, 0);
        std::ranges::copy(part, message.data.data8);
        xcb_send_event(
            connection(), 0, rootWindow(), XCB_EVENT_MASK_PROPERTY_CHANGE, reinterpret_cast<const char*>(&message));
        message.type = atom("_NET_STARTUP_INFO");
    }
    xcb_destroy_window(connection(), sender);
    xcb_flush(connection());
}

Pointer pointer()
{
    Pointer pointer;
    for (xcb_window_t window = rootWindow();;) {
        const auto reply
            = owned(xcb_query_pointer_reply(connection(), xcb_query_pointer(connection(), window), nullptr));
        if (!reply)
            return pointer;
        pointer.x = reply->root_x;
        pointer.y = reply->root_y;
        pointer.controlIsHeld = (reply->mask & XCB_MOD_MASK_CONTROL) != 0;
        pointer.buttonIsHeld = (reply->mask & (XCB_BUTTON_MASK_1 | XCB_BUTTON_MASK_2 | XCB_BUTTON_MASK_3)) != 0;
        window = reply->child;
        if (window == XCB_WINDOW_NONE)
            return pointer;
        pointer.windows.push_back(window);
    }
}

std::optional<QRect> geometry(xcb_window_t window)
{
    const auto size = owned(xcb_get_geometry_reply(connection(), xcb_get_geometry(connection(), window), nullptr));
    const auto origin = owned(xcb_translate_coordinates_reply(
        connection(), xcb_translate_coordinates(connection(), window, rootWindow(), 0, 0), nullptr));
    if (!size || !origin)
        return std::nullopt;
    return QRect(origin->dst_x, origin->dst_y, size->width, size->height);
}

bool isViewable(xcb_window_t window)
{
    const auto attributes = owned(
        xcb_get_window_attributes_reply(connection(), xcb_get_window_attributes(connection(), window), nullptr));
    return attributes && attributes->map_state == XCB_MAP_STATE_VIEWABLE;
}

bool mouseIsPressed()
{
    return connection() && pointer().buttonIsHeld;
}

} // namespace velto::x11
