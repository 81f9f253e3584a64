// SPDX-License-Identifier: MIT
#include "support/FakeRunLoop.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace velto {

using namespace std::chrono_literals;

class FakeRunLoopTest : public testing::Test {
protected:
    std::function<void()> note(const std::string& line)
    {
        return [this, line] { lines.push_back(line); };
    }

    std::vector<std::string> lines;
    FakeRunLoop loop;
};

TEST_F(FakeRunLoopTest, RunsInTheOrderOfTheDeadlines)
{
    const auto late = loop.after(600ms, note("600"));
    const auto soon = loop.after(400ms, note("400"));
    const auto beat = loop.every(250ms, note("beat"));

    loop.advance(599ms);
    EXPECT_EQ(lines, (std::vector<std::string>{"beat", "400", "beat"}));
    EXPECT_EQ(loop.liveTimers(), 2U);

    loop.advance(1ms);
    EXPECT_EQ(lines.back(), "600");
    EXPECT_EQ(loop.liveTimers(), 1U);
}

TEST_F(FakeRunLoopTest, ATurnFollowsEachTimer)
{
    Subscription turn;
    const auto first = loop.after(10ms, [&] { turn = loop.nextTurn(note("turn")); });
    const auto second = loop.after(10ms, note("second"));

    loop.advance(10ms);

    EXPECT_EQ(lines, (std::vector<std::string>{"turn", "second"}));
}

TEST_F(FakeRunLoopTest, WorkMayCancelItself)
{
    Subscription beat;
    beat = loop.every(10ms, [&] {
        beat.cancel();
        lines.push_back("beat");
    });

    loop.advance(50ms);

    EXPECT_EQ(lines, std::vector<std::string>{"beat"});
    EXPECT_EQ(loop.liveTimers(), 0U);
}

TEST_F(FakeRunLoopTest, CancelledWorkDoesNotRun)
{
    auto timer = loop.after(10ms, note("timer"));
    auto turn = loop.nextTurn(note("turn"));

    timer.cancel();
    turn = {};

    EXPECT_EQ(loop.liveTimers(), 0U);
    EXPECT_EQ(loop.waitingWorks(), 0U);
    loop.advance(50ms);
    EXPECT_TRUE(lines.empty());
}

TEST_F(FakeRunLoopTest, WorkMayCancelLaterWorkOfTheSameTurn)
{
    Subscription later;
    const auto first = loop.nextTurn([&] { later.cancel(); });
    later = loop.nextTurn(note("later"));

    loop.runTurns();

    EXPECT_TRUE(lines.empty());
}

} // namespace velto
