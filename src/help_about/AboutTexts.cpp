// SPDX-License-Identifier: MIT
#include "help_about/AboutTexts.h"

#include "platform/Bundle.h"

namespace velto {

std::string versionString(const Bundle& bundle)
{
    const auto version = bundle.string("CFBundleShortVersionString").value_or("-");
    const auto build = bundle.string("CFBundleVersion").value_or("");
    return build.empty() ? "v" + version : "v" + version + " (" + build + ")";
}

} // namespace velto
