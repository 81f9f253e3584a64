// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <string>

namespace velto {

/// Minutes and seconds, each of at least two digits: "24:59". Minutes are not capped: 6000
/// seconds read "100:00".
[[nodiscard]] std::string timeText(std::int64_t seconds);

} // namespace velto
