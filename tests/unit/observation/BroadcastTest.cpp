// SPDX-License-Identifier: MIT
#include "observation/Broadcast.h"

#include <gtest/gtest.h>

#include <optional>
#include <string>
#include <vector>

namespace velto {

class BroadcastTest : public testing::Test {
protected:
    using Lines = std::vector<std::string>;

    Subscription listen(const std::string& name, std::function<void()> react = {})
    {
        return broadcast->subscribe([this, name, react](int value) {
            heard.push_back(name + std::to_string(value));
            if (react)
                react();
        });
    }

    std::optional<Broadcast<int>> broadcast{std::in_place};
    Lines heard;
};

TEST_F(BroadcastTest, DeliversInTheOrderOfSubscription)
{
    const auto a = listen("a");
    const auto b = listen("b");
    const auto c = listen("c");

    broadcast->send(1);

    EXPECT_EQ(heard, (Lines{"a1", "b1", "c1"}));
}

TEST_F(BroadcastTest, ADroppedSubscriptionHearsNothingMore)
{
    auto a = listen("a");
    const auto b = listen("b");

    a.cancel();
    broadcast->send(1);

    EXPECT_EQ(heard, Lines{"b1"});
    EXPECT_EQ(broadcast->subscriberCount(), 1U);
}

TEST_F(BroadcastTest, SubscribingAgainMovesToTheEnd)
{
    auto a = listen("a");
    const auto b = listen("b");

    a = listen("again");
    broadcast->send(1);

    EXPECT_EQ(heard, (Lines{"b1", "again1"}));
}

TEST_F(BroadcastTest, ASubscriptionMadeDuringADeliveryIsPartOfIt)
{
    Subscription late;
    const auto a = listen("a", [&] {
        if (!late.isActive())
            late = listen("late");
    });
    const auto b = listen("b");

    broadcast->send(1);

    EXPECT_EQ(heard, (Lines{"a1", "b1", "late1"}));
}

TEST_F(BroadcastTest, ASubscriptionDroppedDuringADeliveryHearsNothingMoreOfIt)
{
    Subscription later;
    const auto a = listen("a", [&] { later.cancel(); });
    later = listen("later");
    const auto b = listen("b");

    broadcast->send(1);

    EXPECT_EQ(heard, (Lines{"a1", "b1"}));
    EXPECT_EQ(broadcast->subscriberCount(), 2U);
}

TEST_F(BroadcastTest, ASubscriberMayUnsubscribe)
{
    Subscription self;
    self = listen("self", [&] { self.cancel(); });
    const auto b = listen("b");

    broadcast->send(1);
    broadcast->send(2);

    EXPECT_EQ(heard, (Lines{"self1", "b1", "b2"}));
}

TEST_F(BroadcastTest, SendingDuringADeliveryReachesEveryoneAtOnce)
{
    bool nested = false;
    const auto a = listen("a", [&] {
        if (!std::exchange(nested, true))
            broadcast->send(2);
    });
    const auto b = listen("b");

    broadcast->send(1);

    EXPECT_EQ(heard, (Lines{"a1", "a2", "b2", "b1"}));
}

TEST_F(BroadcastTest, ASubscriptionDroppedInANestedDeliveryHearsNothingMoreOfEither)
{
    Subscription victim;
    int depth = 0;
    const auto a = listen("a", [&] {
        if (++depth == 1)
            broadcast->send(2);
        else
            victim.cancel();
    });
    victim = listen("victim");
    const auto b = listen("b");

    broadcast->send(1);

    EXPECT_EQ(heard, (Lines{"a1", "a2", "b2", "b1"}));
}

TEST_F(BroadcastTest, DestroyingItDuringADeliveryEndsTheDelivery)
{
    const auto a = listen("a", [&] { broadcast.reset(); });
    const auto b = listen("b");

    broadcast->send(1);

    EXPECT_EQ(heard, Lines{"a1"});
}

TEST_F(BroadcastTest, SubscriptionsMayOutliveIt)
{
    auto a = listen("a");

    broadcast.reset();
    a.cancel();

    EXPECT_FALSE(a.isActive());
}

// What a subscriber owns may include another subscription to the same broadcast.
TEST_F(BroadcastTest, ASubscriberMayUnsubscribeOthers)
{
    for (int round = 0; round < 8; ++round) {
        std::vector<Subscription> kept;
        for (int i = 0; i < 4; ++i) {
            auto owned = std::make_shared<Subscription>(listen("owned"));
            kept.push_back(broadcast->subscribe([owned](int) {}));
            kept.push_back(listen("kept"));
        }
        const auto dropper = listen("dropper", [&] { kept.clear(); });

        broadcast->send(round);

        EXPECT_EQ(broadcast->subscriberCount(), 1U);
    }
}

} // namespace velto
