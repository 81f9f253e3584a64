// SPDX-License-Identifier: MIT
#include "desktop/session/BuildBundle.h"

namespace velto {

std::optional<std::string> BuildBundle::string(std::string_view key) const
{
    if (key == "CFBundleName")
        return "velto";
    if (key == "CFBundleShortVersionString")
        return VELTO_VERSION;
    if (key == "CFBundleVersion")
        return VELTO_BUILD_NUMBER;
    return std::nullopt;
}

} // namespace velto
