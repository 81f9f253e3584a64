// SPDX-License-Identifier: MIT
#include "desktop/status_item/StatusAnchor.h"

#include <gtest/gtest.h>

#include <limits>

namespace velto {

namespace {

constexpr QRect topBar{0, 0, 1920, 28};
constexpr QPoint nonsense{std::numeric_limits<int>::max(), std::numeric_limits<int>::min()};

TEST(StatusAnchorTest, IsThePieceOfAHorizontalBarAroundThePointer)
{
    EXPECT_EQ(statusAnchor({QPoint(1000, 20), topBar, nonsense}), QRect(988, 0, 24, 28));
}

TEST(StatusAnchorTest, IsThePieceOfAVerticalBarAroundThePointer)
{
    EXPECT_EQ(statusAnchor({QPoint(10, 500), QRect(0, 0, 40, 1080), nonsense}), QRect(0, 488, 40, 24));
}

TEST(StatusAnchorTest, StaysInsideTheBar)
{
    EXPECT_EQ(statusAnchor({QPoint(1915, 20), topBar, nonsense}), QRect(1903, 0, 17, 28));
    EXPECT_EQ(statusAnchor({QPoint(2, 20), topBar, nonsense}), QRect(0, 0, 14, 28));
}

TEST(StatusAnchorTest, WorksAtNegativeCoordinates)
{
    EXPECT_EQ(statusAnchor({QPoint(-500, 1070), QRect(-1280, 1052, 1280, 28), nonsense}), QRect(-512, 1052, 24, 28));
}

TEST(StatusAnchorTest, OutsideBarsTheHostMustAgreeWithThePointer)
{
    const QRect aroundPointer(388, 288, 24, 24);

    EXPECT_EQ(statusAnchor({QPoint(400, 300), std::nullopt, {405, 310}}), aroundPointer);
    EXPECT_EQ(statusAnchor({QPoint(400, 300), std::nullopt, {0, 0}}), std::nullopt);
    EXPECT_EQ(statusAnchor({QPoint(400, 300), std::nullopt, nonsense}), std::nullopt);
}

TEST(StatusAnchorTest, AHostThatReportsTheTruePlaceNeedsNoPointer)
{
    EXPECT_EQ(statusAnchor({std::nullopt, topBar, {1000, 20}, true}), QRect(988, 0, 24, 28));
    EXPECT_EQ(statusAnchor({QPoint(5, 900), topBar, {1000, 20}, true}), QRect(988, 0, 24, 28));
    EXPECT_EQ(statusAnchor({std::nullopt, std::nullopt, {400, 300}, true}), QRect(388, 288, 24, 24));
}

TEST(StatusAnchorTest, IsUnknownWithoutAPointer)
{
    EXPECT_EQ(statusAnchor({std::nullopt, std::nullopt, {100, 10}}), std::nullopt);
}

} // namespace

} // namespace velto
