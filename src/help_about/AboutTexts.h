// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>

namespace velto {

class Bundle;

/// "velto - Focus Timer".
[[nodiscard]] std::string aboutTitle(const Bundle& bundle);

/// "v1.2 (34)"; without a build "v1.2"; "-" stands for a missing version.
[[nodiscard]] std::string versionString(const Bundle& bundle);

/// "© 2025 Someone. All rights reserved.", the year without separators.
[[nodiscard]] std::string rightsLine(int year, std::string_view holder);

} // namespace velto
