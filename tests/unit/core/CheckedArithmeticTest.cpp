// SPDX-License-Identifier: MIT
#include "core/CheckedArithmetic.h"

#include <gtest/gtest.h>

#include <csignal>
#include <limits>

namespace velto {

namespace {
constexpr auto most = std::numeric_limits<std::int64_t>::max();
constexpr auto least = std::numeric_limits<std::int64_t>::min();
} // namespace

TEST(CheckedArithmeticTest, CalculatesUpToTheLimits)
{
    EXPECT_EQ(checkedMultiply(25, 60), 1500);
    EXPECT_EQ(checkedMultiply(-1, most), -most);
    EXPECT_EQ(checkedMultiply(most / 60, 60), most - most % 60);
    EXPECT_EQ(checkedSubtract(1, 1), 0);
    EXPECT_EQ(checkedSubtract(least + 1, 1), least);
}

TEST(CheckedArithmeticDeathTest, AnOverflowEndsTheProcessWithAMessage)
{
    EXPECT_EXIT((void)checkedMultiply(most / 60 + 1, 60), testing::KilledBySignal(SIGABRT),
        "velto: fatal: arithmetic overflow in 153722867280912931 \\* 60\n");
    EXPECT_EXIT((void)checkedMultiply(least, -1), testing::KilledBySignal(SIGABRT),
        "velto: fatal: arithmetic overflow in -9223372036854775808 \\* -1\n");
    EXPECT_EXIT((void)checkedSubtract(least, 1), testing::KilledBySignal(SIGABRT),
        "velto: fatal: arithmetic overflow in -9223372036854775808 - 1\n");
}

} // namespace velto
