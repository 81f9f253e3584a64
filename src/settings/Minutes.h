// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <limits>

namespace velto {

/// Whether a number of minutes still fits when counted in seconds. One that doesn't counts as unreadable everywhere.
[[nodiscard]] constexpr bool minutesFitSeconds(std::int64_t minutes)
{
    using Limits = std::numeric_limits<std::int64_t>;
    return minutes >= Limits::min() / 60 && minutes <= Limits::max() / 60;
}

} // namespace velto
