// SPDX-License-Identifier: MIT
#include "platform/OncePerTurn.h"

#include "support/FakeRunLoop.h"

#include <gtest/gtest.h>

#include <optional>

namespace velto {

class OncePerTurnTest : public testing::Test {
protected:
    FakeRunLoop loop;
    int runs = 0;
    std::optional<OncePerTurn> work{std::in_place, loop, [this] { ++runs; }};
};

TEST_F(OncePerTurnTest, RunsOnceInTheNextTurnHoweverOftenRequested)
{
    work->request();
    work->request();
    EXPECT_EQ(runs, 0);

    loop.runTurns();
    EXPECT_EQ(runs, 1);
    EXPECT_EQ(loop.waitingWorks(), 0U);
}

TEST_F(OncePerTurnTest, CanBeRequestedAgainEvenByTheWorkItself)
{
    work.emplace(loop, [this] {
        if (++runs < 3)
            work->request();
    });

    work->request();
    loop.runTurns();

    EXPECT_EQ(runs, 3);
}

TEST_F(OncePerTurnTest, RunNowLeavesNothingWaiting)
{
    work->request();

    work->runNow();
    EXPECT_EQ(runs, 1);
    loop.runTurns();
    EXPECT_EQ(runs, 1);

    work->runNow();
    EXPECT_EQ(runs, 2) << "nobody had asked";
}

TEST_F(OncePerTurnTest, DoesNotRunOnceCancelledOrDestroyed)
{
    work->request();
    work->cancel();
    loop.runTurns();

    work->request();
    work.reset();
    loop.runTurns();

    EXPECT_EQ(runs, 0);
}

} // namespace velto
