// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <string>

namespace velto {

/// Which buttons the timer has: "Start"; "Pause" and "Reset"; "Start" and "Reset".
enum class ControlsForm { fresh, running, paused };

[[nodiscard]] ControlsForm controlsForm(bool isRunning, bool hasStarted);

/// Fraction of a phase that has elapsed: 0 at its start, 1 when nothing remains, negative while more
/// remains than the phase is long. 0 for a phase without length. Both in seconds.
[[nodiscard]] double phaseProgress(std::int64_t remaining, std::int64_t total);

/// In points. Times of a hundred minutes and more are set smaller.
[[nodiscard]] double timeFontSize(std::int64_t remainingSeconds);

/// "Focus: 25m  •  Break: 5m"; takes seconds, shows whole minutes.
[[nodiscard]] std::string durationsLine(std::int64_t focusDuration, std::int64_t breakDuration);

} // namespace velto
