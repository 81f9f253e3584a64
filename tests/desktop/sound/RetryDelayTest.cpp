// SPDX-License-Identifier: MIT
#include "desktop/sound/RetryDelay.h"

#include <gmock/gmock.h>

#include <set>

namespace velto {
namespace {

using namespace std::chrono_literals;
using testing::AllOf;
using testing::Ge;
using testing::Le;

TEST(RetryDelayTest, GrowsFromASecondToHalfAMinute)
{
    for (unsigned seed = 1; seed <= 100; ++seed) {
        RetryDelay delay(seed);
        for (const auto expected : {1000ms, 2000ms, 4000ms, 8000ms, 16000ms, 30000ms, 30000ms}) {
            const auto least = std::max(1000ms, expected * 4 / 5);
            const auto most = std::min(30000ms, expected * 5 / 4);
            EXPECT_THAT(delay.after(500ms), AllOf(Ge(least), Le(most))) << seed;
        }
    }
}

TEST(RetryDelayTest, DiffersFromListenerToListener)
{
    std::set<std::chrono::milliseconds> delays;
    for (unsigned seed = 1; seed <= 100; ++seed) {
        RetryDelay delay(seed);
        static_cast<void>(delay.after(0ms));
        delays.insert(delay.after(0ms));
    }
    EXPECT_GT(delays.size(), 50);
}

TEST(RetryDelayTest, StartsOverAfterAnAttemptThatWentWell)
{
    RetryDelay delay(1);
    for (int i = 0; i < 6; ++i)
        static_cast<void>(delay.after(14s));
    EXPECT_GE(delay.after(14s), 24s);

    EXPECT_LE(delay.after(15s), 1250ms);
    EXPECT_THAT(delay.after(0s), AllOf(Ge(1600ms), Le(2500ms)));
}

TEST(RetryDelayTest, StartsOverOnRequest)
{
    RetryDelay delay(1);
    for (int i = 0; i < 6; ++i)
        static_cast<void>(delay.after(0s));

    delay.reset();

    EXPECT_LE(delay.after(0s), 1250ms);
}

} // namespace
} // namespace velto
