// SPDX-License-Identifier: MIT
#include "stream/WebAddress.h"

#include <gio/gio.h>

#include <string_view>

namespace velto {

bool isWebAddress(const std::string& text)
{
    g_autoptr(GUri) uri = g_uri_parse(text.c_str(), G_URI_FLAGS_ENCODED, nullptr);
    if (!uri || !g_uri_get_host(uri) || !*g_uri_get_host(uri))
        return false;
    const std::string_view scheme = g_uri_get_scheme(uri);
    return scheme == "http" || scheme == "https";
}

} // namespace velto
