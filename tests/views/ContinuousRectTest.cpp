// SPDX-License-Identifier: MIT
#include "style/ContinuousRect.h"

#include <gtest/gtest.h>

#include <cmath>

namespace velto {

namespace {

TEST(ContinuousRectTest, FillsItsRectangleAndCutsTheCorners)
{
    const auto path = continuousRoundedRect({0, 0, 360, 420}, 18);

    EXPECT_EQ(path.boundingRect(), QRectF(0, 0, 360, 420));
    EXPECT_TRUE(path.contains({180, 0.5}));
    EXPECT_TRUE(path.contains({0.5, 210}));
    for (const auto corner : {QPointF(1, 1), QPointF(359, 1), QPointF(359, 419), QPointF(1, 419)})
        EXPECT_FALSE(path.contains(corner));
}

TEST(ContinuousRectTest, MeetsTheDiagonalWhereAnArcWould)
{
    const auto path = continuousRoundedRect({0, 0, 360, 420}, 18);
    const double inset = 18 * (1 - std::sqrt(0.5));

    EXPECT_FALSE(path.contains({inset - 0.1, inset - 0.1}));
    EXPECT_TRUE(path.contains({inset + 0.1, inset + 0.1}));
}

TEST(ContinuousRectTest, BendsBeforeAnArcWould)
{
    const auto path = continuousRoundedRect({0, 0, 360, 420}, 18);

    // An arc would still run along the edge here.
    EXPECT_FALSE(path.contains({18.5, 0.01}));
    EXPECT_TRUE(path.contains({28, 0.01}));
}

TEST(ContinuousRectTest, ALargeRadiusIsLimitedByTheShorterSide)
{
    EXPECT_EQ(continuousRoundedRect({10, 20, 40, 12}, 100).boundingRect(), QRectF(10, 20, 40, 12));
    EXPECT_EQ(continuousRoundedRect({10, 20, 40, 12}, 0).boundingRect(), QRectF(10, 20, 40, 12));
}

TEST(ContinuousRectTest, TheShapeIsARectangleBetweenItsCorners)
{
    const QRectF rect(0, 0, 360, 420);
    const auto path = continuousRoundedRect(rect, 18);

    EXPECT_TRUE(isBetweenCorners(QRect(28, 1, 304, 418), rect, 18));
    EXPECT_TRUE(path.contains(QRectF(28, 1, 304, 418)));
    for (const QRect part :
        {QRect(27, 1, 10, 10), QRect(28, 0, 10, 10), QRect(323, 200, 10, 10), QRect(0, 0, 360, 420)})
        EXPECT_FALSE(isBetweenCorners(QRegion(100, 100, 10, 10) + part, rect, 18)) << part.x();
}

} // namespace

} // namespace velto
