// SPDX-License-Identifier: MIT
#include "help_about/AboutTexts.h"

#include "platform/Bundle.h"

namespace velto {

std::string aboutTitle(const Bundle& bundle)
{
    return applicationName(bundle) + " - Focus Timer";
}

std::string versionString(const Bundle& bundle)
{
    const auto version = bundle.string("CFBundleShortVersionString").value_or("-");
    const auto build = bundle.string("CFBundleVersion").value_or("");
    return build.empty() ? "v" + version : "v" + version + " (" + build + ")";
}

std::string rightsLine(int year, std::string_view holder)
{
    return "© " + std::to_string(year) + " " + std::string(holder) + ". All rights reserved.";
}

} // namespace velto
