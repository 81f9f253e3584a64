// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <string_view>

namespace velto {

/// A text of the rules (platform/Text.h) in the user's language, else as it is. Its numbers do not matter for finding
/// it: they are looked up as %1, %2, and the only one as %n.
[[nodiscard]] QString translated(const char* context, std::string_view english);

} // namespace velto
