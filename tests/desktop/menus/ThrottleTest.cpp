// SPDX-License-Identifier: MIT
#include "desktop/menus/Throttle.h"
#include "fixtures/BusClient.h"

#include <gtest/gtest.h>

#include <numeric>
#include <vector>

namespace velto {

TEST(ThrottleTest, RunsAFewWorksAtOnceAndTheRestInOrderAFewATurn)
{
    Throttle throttle;
    std::vector<int> done;
    std::vector<std::size_t> doneByTurn;
    for (int i = 0; i < 35; ++i)
        ASSERT_TRUE(throttle.run([&done, i] { done.push_back(i); }));
    EXPECT_EQ(done.size(), 10U);

    QTimer turn;
    turn.callOnTimeout([&] { doneByTurn.push_back(done.size()); });
    turn.start(0);
    ASSERT_TRUE(QTest::qWaitFor([&] { return done.size() == 35; }, patience));

    std::vector<int> expected(35);
    std::iota(expected.begin(), expected.end(), 0);
    EXPECT_EQ(done, expected);
    for (std::size_t i = 1; i < doneByTurn.size(); ++i)
        EXPECT_LE(doneByTurn[i] - doneByTurn[i - 1], 10U);
}

TEST(ThrottleTest, RunsAtOnceAgainAfterARest)
{
    Throttle throttle;
    int done = 0;
    for (int i = 0; i < 11; ++i)
        ASSERT_TRUE(throttle.run([&] { ++done; }));
    ASSERT_TRUE(QTest::qWaitFor([&] { return done == 11; }, patience));

    ASSERT_TRUE(throttle.run([&] { ++done; }));

    EXPECT_EQ(done, 12);
}

TEST(ThrottleTest, TakesNoMoreThanItsQueueHolds)
{
    Throttle throttle;
    int refused = 0;

    for (int i = 0; i < Throttle::mostWaiting + 20; ++i)
        refused += throttle.run([] {}) ? 0 : 1;

    EXPECT_EQ(refused, 10); // ten ran at once
}

} // namespace velto
