// SPDX-License-Identifier: MIT
#include "panel/TimerDisplay.h"

#include <gtest/gtest.h>

#include <limits>

namespace velto {

namespace {

TEST(TimerDisplayTest, FromAHundredMinutesTheDigitsAreSmaller)
{
    EXPECT_EQ(timeFontSize(0), 64);
    EXPECT_EQ(timeFontSize(5999), 64);
    EXPECT_EQ(timeFontSize(6000), 54);
    EXPECT_EQ(timeFontSize(59'999), 54);
}

TEST(TimerDisplayTest, ProgressIsTheFractionElapsed)
{
    EXPECT_EQ(phaseProgress(1500, 1500), 0.0);
    EXPECT_EQ(phaseProgress(750, 1500), 0.5);
    EXPECT_EQ(phaseProgress(0, 1500), 1.0);
    EXPECT_EQ(phaseProgress(0, 1), 1.0);
}

TEST(TimerDisplayTest, APhaseOfNoLengthHasNoProgress)
{
    EXPECT_EQ(phaseProgress(0, 0), 0.0);
    EXPECT_EQ(phaseProgress(10, 0), 0.0);
    EXPECT_EQ(phaseProgress(10, -60), 0.0);
    EXPECT_EQ(phaseProgress(0, std::numeric_limits<std::int64_t>::min()), 0.0);
}

TEST(TimerDisplayTest, ProgressIsNegativeWithMoreThanTheLengthRemaining)
{
    EXPECT_EQ(phaseProgress(120, 60), -1.0);
}

TEST(TimerDisplayTest, TheDurationsLineShowsWholeMinutes)
{
    EXPECT_EQ(durationsLine(1500, 300), "Focus: 25m  \u2022  Break: 5m");
    EXPECT_EQ(durationsLine(1559, 300), "Focus: 25m  \u2022  Break: 5m");
    EXPECT_EQ(durationsLine(0, 60'000), "Focus: 0m  \u2022  Break: 1000m");
}

TEST(TimerDisplayTest, TheControlsHaveThreeForms)
{
    EXPECT_EQ(controlsForm(false, false), ControlsForm::fresh);
    EXPECT_EQ(controlsForm(true, true), ControlsForm::running);
    EXPECT_EQ(controlsForm(true, false), ControlsForm::running);
    EXPECT_EQ(controlsForm(false, true), ControlsForm::paused);
}

} // namespace

} // namespace velto
