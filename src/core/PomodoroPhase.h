// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <optional>

namespace velto {

enum class PomodoroPhase : std::int64_t { focus = 0, breakTime = 1 };

/// Absent for a number that is not a phase.
[[nodiscard]] constexpr std::optional<PomodoroPhase> pomodoroPhase(std::int64_t rawValue)
{
    switch (rawValue) {
    case 0:
        return PomodoroPhase::focus;
    case 1:
        return PomodoroPhase::breakTime;
    default:
        return std::nullopt;
    }
}

[[nodiscard]] constexpr PomodoroPhase otherPhase(PomodoroPhase phase)
{
    return phase == PomodoroPhase::focus ? PomodoroPhase::breakTime : PomodoroPhase::focus;
}

} // namespace velto
