// SPDX-License-Identifier: MIT
#include "menubar/DeliveryQueue.h"

#include "support/FakeRunLoop.h"

#include <gtest/gtest.h>

#include <optional>
#include <string>
#include <vector>

namespace velto {

class DeliveryQueueTest : public testing::Test {
protected:
    using Lines = std::vector<std::string>;

    void add(const std::string& line)
    {
        queue->add([this, line] { delivered.push_back(line); });
    }

    FakeRunLoop loop;
    std::optional<DeliveryQueue> queue{loop};
    Lines delivered;
};

TEST_F(DeliveryQueueTest, DeliversInOrderInTheNextTurnWithOneWakeUp)
{
    add("a");
    add("b");
    EXPECT_TRUE(delivered.empty());
    EXPECT_EQ(loop.waitingWorks(), 1U);

    loop.runTurns();

    EXPECT_EQ(delivered, (Lines{"a", "b"}));
    EXPECT_EQ(loop.waitingWorks(), 0U);
}

TEST_F(DeliveryQueueTest, KeepsThePlaceInTheTurnThatTheFirstOneTook)
{
    add("a");
    const auto other = loop.nextTurn([this] { delivered.emplace_back("other"); });
    add("b");

    loop.runTurns();

    EXPECT_EQ(delivered, (Lines{"a", "b", "other"}));
}

TEST_F(DeliveryQueueTest, WhatIsAddedDuringADeliveryComesInTheTurnAfter)
{
    queue->add([this] {
        add("later");
        delivered.push_back("first");
    });
    add("second");

    loop.runTurns();

    EXPECT_EQ(delivered, (Lines{"first", "second", "later"}));
}

TEST_F(DeliveryQueueTest, DropsWhatWaitsWhenItGoes)
{
    add("a");

    queue.reset();
    loop.runTurns();

    EXPECT_TRUE(delivered.empty());
    EXPECT_EQ(loop.waitingWorks(), 0U);
}

} // namespace velto
