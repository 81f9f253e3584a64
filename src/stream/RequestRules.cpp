// SPDX-License-Identifier: MIT
#include "stream/RequestRules.h"

#include <gio/gio.h>
#include <libsoup/soup.h>

#include <algorithm>
#include <array>
#include <mutex>
#include <optional>
#include <span>
#include <string_view>

namespace velto {

namespace {

constexpr int mostRedirections = 10;

/// Where a connection leads, seen from this machine.
enum class Reach { world, network, machine };

constexpr std::array thisMachine{"0.0.0.0/8", "127.0.0.0/8", "::/96"};
constexpr std::array thisNetwork{"10.0.0.0/8", "100.64.0.0/10", "169.254.0.0/16", "172.16.0.0/12", "192.0.0.0/24",
    "192.168.0.0/16", "198.18.0.0/15", "224.0.0.0/3", "fc00::/7", "fe80::/10", "fec0::/10", "ff00::/8"};

bool isIn(GInetAddress* address, const char* range)
{
    g_autoptr(GInetAddressMask) mask = g_inet_address_mask_new_from_string(range, nullptr);
    return g_inet_address_mask_matches(mask, address);
}

bool isInOneOf(GInetAddress* address, std::span<const char* const> ranges)
{
    return std::ranges::any_of(ranges, [address](const char* range) { return isIn(address, range); });
}

/// The IPv4 address that an IPv6 address stands for. Null without one.
GInetAddress* unwrapped(GInetAddress* address)
{
    const auto* bytes = g_inet_address_to_bytes(address);
    if (isIn(address, "::ffff:0:0/96") || isIn(address, "64:ff9b::/96"))
        return g_inet_address_new_from_bytes(bytes + 12, G_SOCKET_FAMILY_IPV4);
    if (isIn(address, "2002::/16"))
        return g_inet_address_new_from_bytes(bytes + 2, G_SOCKET_FAMILY_IPV4);
    return nullptr;
}

Reach reachOf(GInetAddress* address)
{
    g_autoptr(GInetAddress) wrapped = unwrapped(address);
    if (wrapped)
        address = wrapped;
    if (isInOneOf(address, thisMachine))
        return Reach::machine;
    return isInOneOf(address, thisNetwork) ? Reach::network : Reach::world;
}

/// Behind a proxy, only what the address itself says is known.
Reach reachOf(GSocketAddress* socketAddress)
{
    if (!G_IS_PROXY_ADDRESS(socketAddress))
        return reachOf(g_inet_socket_address_get_address(G_INET_SOCKET_ADDRESS(socketAddress)));
    const char* host = g_proxy_address_get_destination_hostname(G_PROXY_ADDRESS(socketAddress));
    g_autoptr(GInetAddress) address = g_inet_address_new_from_string(host);
    if (address)
        return reachOf(address);
    return g_ascii_strcasecmp(host, "localhost") == 0 ? Reach::machine : Reach::world;
}

class RequestRules {
public:
    explicit RequestRules(void (*giveUp)(const std::string& reason)) : m_giveUp(giveUp) { }

    /// `message` is about to be sent, or to get a connection for it.
    void check(SoupMessage* message)
    {
        const std::lock_guard lock(m_mutex);
        if (!m_first)
            m_first = SOUP_MESSAGE(g_object_ref(message));
        const bool isProtected = std::string_view(g_uri_get_scheme(soup_message_get_uri(message))) == "https";
        const bool wasProtected = g_object_get_data(G_OBJECT(message), "was-protected");
        if (!isProtected && (wasProtected || m_onlyProtected))
            refuse(message, "unprotected");
        if (isProtected)
            g_object_set_data(G_OBJECT(message), "was-protected", this);
        if (message == m_first)
            m_onlyProtected = isProtected;
    }

    void checkRedirection(SoupMessage* message)
    {
        const auto redirections = GPOINTER_TO_INT(g_object_get_data(G_OBJECT(message), "redirections")) + 1;
        if (redirections > mostRedirections)
            refuse(message, "one redirection too many");
        g_object_set_data(G_OBJECT(message), "redirections", GINT_TO_POINTER(redirections));
        check(message);
    }

    void checkConnection(SoupMessage* message, GSocketConnection* connection)
    {
        check(message);
        g_autoptr(GSocketAddress) address = g_socket_connection_get_remote_address(connection, nullptr);
        if (!address)
            refuse(message, "unknown address");
        const auto reach = reachOf(address);
        const std::lock_guard lock(m_mutex);
        if (!m_reach)
            m_reach = reach;
        if (reach > *m_reach)
            refuse(message, "nearer than the first address");
    }

private:
    void refuse(SoupMessage* message, const char* reason) const
    {
        g_autofree char* url = g_uri_to_string_partial(soup_message_get_uri(message), G_URI_HIDE_PASSWORD);
        m_giveUp("not followed: " + std::string(url) + ": " + reason);
    }

    void (*const m_giveUp)(const std::string& reason);
    std::mutex m_mutex; ///< Each source makes its requests on a thread of its own.
    SoupMessage* m_first = nullptr;
    bool m_onlyProtected = false;
    std::optional<Reach> m_reach; ///< Of the first connection.
};

gboolean onStarting(GSignalInvocationHint*, guint, const GValue* arguments, gpointer rules)
{
    static_cast<RequestRules*>(rules)->check(SOUP_MESSAGE(g_value_get_object(arguments)));
    return true;
}

gboolean onRestarted(GSignalInvocationHint*, guint, const GValue* arguments, gpointer rules)
{
    static_cast<RequestRules*>(rules)->checkRedirection(SOUP_MESSAGE(g_value_get_object(arguments)));
    return true;
}

gboolean onNetworkEvent(GSignalInvocationHint*, guint, const GValue* arguments, gpointer rules)
{
    if (g_value_get_enum(arguments + 1) == G_SOCKET_CLIENT_CONNECTING)
        static_cast<RequestRules*>(rules)->checkConnection(
            SOUP_MESSAGE(g_value_get_object(arguments)), G_SOCKET_CONNECTION(g_value_get_object(arguments + 2)));
    return true;
}

} // namespace

void holdRequestsToTheFirst(void (*giveUp)(const std::string& reason))
{
    // For all messages there will be: the elements that make them don't let others see them.
    static RequestRules rules(giveUp);
    g_type_class_ref(SOUP_TYPE_MESSAGE);
    const auto hook = [](const char* signal, GSignalEmissionHook function) {
        g_signal_add_emission_hook(g_signal_lookup(signal, SOUP_TYPE_MESSAGE), 0, function, &rules, nullptr);
    };
    hook("starting", onStarting);
    hook("restarted", onRestarted);
    hook("network-event", onNetworkEvent);
}

} // namespace velto
