// SPDX-License-Identifier: MIT
#include "core/TimeText.h"

#include <array>
#include <cinttypes>
#include <cstdio>

namespace velto {

std::string timeText(std::int64_t seconds)
{
    const std::int64_t minutes = seconds / 60;
    std::array<char, 48> text{};
    std::snprintf(text.data(), text.size(), "%02" PRId64 ":%02" PRId64, minutes, seconds - minutes * 60);
    return text.data();
}

} // namespace velto
