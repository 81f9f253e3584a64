// SPDX-License-Identifier: MIT
#include "panel/TimerDisplay.h"

#include "platform/Text.h"

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
    return withNumbers(
        translatable("TimerDisplay", "Focus: %1m  •  Break: %2m"), {focusDuration / 60, breakDuration / 60});
}

} // namespace velto
