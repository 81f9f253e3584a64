// SPDX-License-Identifier: MIT
#include "core/TimeText.h"

#include <gtest/gtest.h>

namespace velto {

TEST(TimeTextTest, ShowsUnlimitedMinutesAndSeconds)
{
    EXPECT_EQ(timeText(0), "00:00");
    EXPECT_EQ(timeText(59), "00:59");
    EXPECT_EQ(timeText(60), "01:00");
    EXPECT_EQ(timeText(1500), "25:00");
    EXPECT_EQ(timeText(5400), "90:00");
    EXPECT_EQ(timeText(5999), "99:59");
    EXPECT_EQ(timeText(6000), "100:00");
}

} // namespace velto
