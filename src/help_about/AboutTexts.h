// SPDX-License-Identifier: MIT
#pragma once

#include <string>

namespace velto {

class Bundle;

/// "v1.2 (34)"; without a build "v1.2"; "-" stands for a missing version.
[[nodiscard]] std::string versionString(const Bundle& bundle);

} // namespace velto
