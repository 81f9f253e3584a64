// SPDX-License-Identifier: MIT
#include "desktop/x11/X11Desktop.h"

#include "desktop/x11/Activation.h"
#include "fixtures/Desktop.h"

#include <gtest/gtest.h>

#include <QTest>
#include <QWindow>

#include <cstdlib>
#include <memory>
#include <optional>
#include <string>

namespace velto {

namespace {

/// Hears what is told to the root window, as window managers and panel bars do.
class Listener {
public:
    Listener() : m_connection(xcb_connect(nullptr, nullptr))
    {
        const std::uint32_t mask = XCB_EVENT_MASK_PROPERTY_CHANGE | XCB_EVENT_MASK_SUBSTRUCTURE_NOTIFY;
        xcb_change_window_attributes(m_connection, x11::rootWindow(), XCB_CW_EVENT_MASK, &mask);
        sync();
    }
    Listener(const Listener&) = delete;
    Listener& operator=(const Listener&) = delete;
    ~Listener() { xcb_disconnect(m_connection); }

    /// All that came in messages of these two kinds, up to the null that ends it.
    std::string text(xcb_atom_t first, xcb_atom_t next)
    {
        sync();
        std::string text;
        while (auto* event = xcb_poll_for_event(m_connection)) {
            const std::unique_ptr<xcb_generic_event_t, decltype(&std::free)> owner(event, std::free);
            const auto* message = reinterpret_cast<const xcb_client_message_event_t*>(event);
            if ((event->response_type & 0x7f) != XCB_CLIENT_MESSAGE || message->type != (text.empty() ? first : next))
                continue;
            text.append(reinterpret_cast<const char*>(message->data.data8), sizeof message->data.data8);
        }
        return text.c_str();
    }

    /// The time in the last message that asks for `window` to be activated; absent when there was none.
    std::optional<xcb_timestamp_t> activationTime(xcb_window_t window)
    {
        sync();
        std::optional<xcb_timestamp_t> time;
        while (auto* event = xcb_poll_for_event(m_connection)) {
            const std::unique_ptr<xcb_generic_event_t, decltype(&std::free)> owner(event, std::free);
            const auto* message = reinterpret_cast<const xcb_client_message_event_t*>(event);
            if ((event->response_type & 0x7f) == XCB_CLIENT_MESSAGE && message->window == window
                && message->type == x11::atom("_NET_ACTIVE_WINDOW"))
                time = message->data.data32[1];
        }
        return time;
    }

    /// The time of an event that happens now.
    xcb_timestamp_t now()
    {
        const auto clock = x11::atom("VELTO_TEST_CLOCK");
        xcb_change_property(
            m_connection, XCB_PROP_MODE_REPLACE, x11::rootWindow(), clock, XCB_ATOM_INTEGER, 32, 0, nullptr);
        xcb_flush(m_connection);
        while (auto* event = xcb_wait_for_event(m_connection)) {
            const std::unique_ptr<xcb_generic_event_t, decltype(&std::free)> owner(event, std::free);
            const auto* change = reinterpret_cast<const xcb_property_notify_event_t*>(event);
            if ((event->response_type & 0x7f) == XCB_PROPERTY_NOTIFY && change->atom == clock)
                return change->time;
        }
        return XCB_CURRENT_TIME;
    }

private:
    void sync() { std::free(xcb_get_input_focus_reply(m_connection, xcb_get_input_focus(m_connection), nullptr)); }

    xcb_connection_t* m_connection;
};

} // namespace

TEST(X11DesktopTest, TheEndOfAStartIsToldInPieces)
{
    for (const std::string id : {"a", "123456789", "gnome-shell/velto/1234-5-host_TIME987654321"}) {
        Listener listener;

        x11::endStartup(id);
        std::free(xcb_get_input_focus_reply(x11::connection(), xcb_get_input_focus(x11::connection()), nullptr));

        EXPECT_EQ(
            listener.text(x11::atom("_NET_STARTUP_INFO_BEGIN"), x11::atom("_NET_STARTUP_INFO")), "remove: ID=" + id);
    }
}

TEST(X11DesktopTest, WhatComesToTheFrontDoesSoAtThePresentTime)
{
    Desktop::current().startWindowManager();
    QWindow window;
    window.show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&window));
    Listener listener;

    const auto before = listener.now();
    bringToFront(window);
    std::free(xcb_get_input_focus_reply(x11::connection(), xcb_get_input_focus(x11::connection()), nullptr));
    const auto time = listener.activationTime(static_cast<xcb_window_t>(window.winId()));
    const auto after = listener.now();

    ASSERT_TRUE(time);
    EXPECT_GE(*time, before);
    EXPECT_LE(*time, after);
}

} // namespace velto
