// SPDX-License-Identifier: MIT
#include "observation/Subscription.h"

#include <gtest/gtest.h>

#include <type_traits>

namespace velto {

static_assert(!std::is_copy_constructible_v<Subscription> && !std::is_copy_assignable_v<Subscription>);
static_assert(std::is_nothrow_move_constructible_v<Subscription> && std::is_nothrow_move_assignable_v<Subscription>);

class SubscriptionTest : public testing::Test {
protected:
    Subscription make()
    {
        return Subscription([this] { ++ends; });
    }

    int ends = 0;
};

TEST_F(SubscriptionTest, EndsOnceWhenDropped)
{
    {
        const auto subscription = make();
        EXPECT_TRUE(subscription.isActive());
        EXPECT_EQ(ends, 0);
    }

    EXPECT_EQ(ends, 1);
}

TEST_F(SubscriptionTest, EndsOnceWhenCancelledAgainAndAgain)
{
    {
        auto subscription = make();
        subscription.cancel();
        subscription.cancel();
        EXPECT_FALSE(subscription.isActive());
    }

    EXPECT_EQ(ends, 1);
}

TEST_F(SubscriptionTest, MovesItsEndAlong)
{
    auto first = make();
    auto second = std::move(first);

    first.cancel();
    EXPECT_EQ(ends, 0);

    second.cancel();
    EXPECT_EQ(ends, 1);
}

TEST_F(SubscriptionTest, AssigningEndsWhatWasHeld)
{
    auto subscription = make();

    subscription = Subscription();

    EXPECT_EQ(ends, 1);
    EXPECT_FALSE(subscription.isActive());
}

TEST_F(SubscriptionTest, AssigningItToItselfKeepsIt)
{
    auto subscription = make();
    auto& same = subscription;

    subscription = std::move(same);

    EXPECT_TRUE(subscription.isActive());
    EXPECT_EQ(ends, 0);
}

TEST_F(SubscriptionTest, MayBeCancelledFromWithinItsEnd)
{
    Subscription subscription;
    subscription = Subscription([&] {
        ++ends;
        subscription.cancel();
    });

    subscription.cancel();

    EXPECT_EQ(ends, 1);
}

} // namespace velto
