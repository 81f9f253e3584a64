// SPDX-License-Identifier: MIT
#include "desktop/x11/X11Desktop.h"

#include "fixtures/Desktop.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <memory>
#include <string>

namespace velto {

namespace {

/// Hears what is told to the root window, as window managers and panel bars do.
class Listener {
public:
    Listener() : m_connection(xcb_connect(nullptr, nullptr))
    {
        const std::uint32_t mask = XCB_EVENT_MASK_PROPERTY_CHANGE;
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

} // namespace velto
