// SPDX-License-Identifier: MIT
#include "core/PomodoroPhase.h"

#include <gtest/gtest.h>

namespace velto {

TEST(PomodoroPhaseTest, FocusIsZeroAndBreakIsOne)
{
    EXPECT_EQ(static_cast<std::int64_t>(PomodoroPhase::focus), 0);
    EXPECT_EQ(static_cast<std::int64_t>(PomodoroPhase::breakTime), 1);
    EXPECT_EQ(pomodoroPhase(0), PomodoroPhase::focus);
    EXPECT_EQ(pomodoroPhase(1), PomodoroPhase::breakTime);
}

TEST(PomodoroPhaseTest, AnyOtherNumberIsNoPhase)
{
    for (const std::int64_t number : {2L, -1L, 1L << 32})
        EXPECT_EQ(pomodoroPhase(number), std::nullopt) << number;
}

TEST(PomodoroPhaseTest, TheOtherPhaseOfTheOtherIsThePhaseItself)
{
    EXPECT_EQ(otherPhase(PomodoroPhase::focus), PomodoroPhase::breakTime);
    EXPECT_EQ(otherPhase(PomodoroPhase::breakTime), PomodoroPhase::focus);
}

} // namespace velto
