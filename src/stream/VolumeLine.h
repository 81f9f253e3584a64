// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <string_view>

namespace velto {

/// The volume that `line` says, linear, 0 to 1. Absent if it says something else.
[[nodiscard]] std::optional<float> volumeIn(std::string_view line);

} // namespace velto
