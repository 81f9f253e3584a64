// SPDX-License-Identifier: MIT
#include "desktop/sound/StreamUrl.h"
#include "stream/WebAddress.h"

#include <gio/gio.h>

#include <cstddef>
#include <cstdint>
#include <cstdlib>

/// What the program takes for an address on the web is one line, and the program that plays it reads the same host from
/// it.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const std::string text{reinterpret_cast<const char*>(data), size};
    const QUrl url = velto::streamUrl(text);
    if (!url.isValid() || !velto::isOnTheWeb(url))
        return 0;

    const auto line = url.toEncoded().toStdString();
    if (line.find_first_of(std::string{"\n\0", 2}) != std::string::npos || !velto::isWebAddress(line))
        std::abort();
    g_autoptr(GUri) read = g_uri_parse(line.c_str(), G_URI_FLAGS_ENCODED, nullptr);
    // The zone of an address of version 6 follows "%25" for Qt, and "%" for GLib.
    const auto host = QString::fromUtf8(g_uri_get_host(read));
    if (url.host(QUrl::FullyEncoded).section(QLatin1String("%25"), 0, 0) != host.section(QLatin1Char('%'), 0, 0))
        std::abort();
    return 0;
}
