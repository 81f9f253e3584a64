// SPDX-License-Identifier: MIT
#include "panel/TimerDisplay.h"

namespace velto {

ControlsForm controlsForm(bool isRunning, bool hasStarted)
{
    if (isRunning)
        return ControlsForm::running;
    return hasStarted ? ControlsForm::paused : ControlsForm::fresh;
}

double phaseProgress(std::int64_t remaining, std::int64_t total)
{
    if (total < 1)
        return 0;
    return 1 - static_cast<double>(remaining) / static_cast<double>(total);
}

double timeFontSize(std::int64_t remainingSeconds)
{
    return remainingSeconds < 6000 ? 64 : 54;
}

std::string durationsLine(std::int64_t focusDuration, std::int64_t breakDuration)
{
    return "Focus: " + std::to_string(focusDuration / 60) + "m  \u2022  Break: " + std::to_string(breakDuration / 60)
        + "m";
}

} // namespace velto
