// SPDX-License-Identifier: MIT
#include "platform/Geometry.h"
#include "support/FakeKeyValueStore.h"

#include <gtest/gtest.h>

namespace velto {

TEST(RectTest, KnowsItsEdgesAndMiddle)
{
    const Rect rect{-100, 20, 41, 22};

    EXPECT_EQ(rect.minX(), -100);
    EXPECT_EQ(rect.midX(), -79.5);
    EXPECT_EQ(rect.maxX(), -59);
    EXPECT_EQ(rect.minY(), 20);
    EXPECT_EQ(rect.midY(), 31);
    EXPECT_EQ(rect.maxY(), 42);
}

TEST(RectTest, ContainsItsLeftAndBottomEdgesButNotItsRightAndTop)
{
    const Rect rect{0, 0, 10, 10};

    EXPECT_TRUE(rect.contains({0, 0}));
    EXPECT_TRUE(rect.contains({9.9, 9.9}));
    EXPECT_FALSE(rect.contains({10, 5}));
    EXPECT_FALSE(rect.contains({5, 10}));
    EXPECT_FALSE(rect.contains({-0.1, 5}));
    EXPECT_FALSE(rect.contains({5, -0.1}));
}

TEST(KeyValueStoreTest, AValueOfAnotherTypeIsAbsent)
{
    FakeKeyValueStore store;
    store.set("number", std::int64_t{1});

    EXPECT_EQ(store.value<std::int64_t>("number"), 1);
    EXPECT_EQ(store.value<bool>("number"), std::nullopt);
    EXPECT_EQ(store.value<float>("number"), std::nullopt);
    EXPECT_EQ(store.value<std::int64_t>("nothing"), std::nullopt);
}

} // namespace velto
