// SPDX-License-Identifier: MIT
#include "style/TextStyle.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QFontInfo>

namespace velto {

namespace {

QFont pointFont(double points)
{
    QFont font;
    font.setPointSizeF(points);
    return font;
}

QFont pixelFont(int pixels)
{
    QFont font;
    font.setPixelSize(pixels);
    return font;
}

TEST(TextStyleTest, TextGrowsWithTheDesktopsFontUpToAQuarter)
{
    EXPECT_DOUBLE_EQ(textScale(pointFont(8)), 1.0);
    EXPECT_DOUBLE_EQ(textScale(pointFont(10)), 1.0);
    EXPECT_DOUBLE_EQ(textScale(pointFont(11)), 1.1);
    EXPECT_DOUBLE_EQ(textScale(pointFont(12.5)), 1.25);
    EXPECT_DOUBLE_EQ(textScale(pointFont(20)), 1.25);
    EXPECT_DOUBLE_EQ(textScale(pixelFont(16)), 1.2);
}

TEST(TextStyleTest, EachStyleHasItsSize)
{
    struct Row {
        TextStyle style;
        double pixels;
    };
    for (const auto& [style, pixels] :
        {Row{TextStyle::title, 22}, Row{TextStyle::title2, 17}, Row{TextStyle::headline, 13}, Row{TextStyle::body, 13},
            Row{TextStyle::subheadline, 11}, Row{TextStyle::footnote, 10}, Row{TextStyle::caption, 10}}) {
        EXPECT_DOUBLE_EQ(pixelSize(style, 1), pixels);
        EXPECT_DOUBLE_EQ(pixelSize(style, 1.25), pixels * 1.25);
    }
}

TEST(TextStyleTest, TheLargerTheBolder)
{
    EXPECT_EQ(textFont(TextStyle::body).weight(), QFont::Normal);
    EXPECT_EQ(textFont(TextStyle::headline).weight(), QFont::DemiBold);
    EXPECT_GT(textFont(TextStyle::title2).weight(), QFont::DemiBold);
    EXPECT_EQ(textFont(TextStyle::title).weight(), textFont(TextStyle::title2).weight());
}

TEST(TextStyleTest, TheClockKeepsItsSizeWhateverTheDesktopsFont)
{
    const auto before = QApplication::font();
    QApplication::setFont(pointFont(16));

    EXPECT_EQ(clockFont(64).pixelSize(), 64);
    EXPECT_EQ(textFont(TextStyle::body).pixelSize(), 16);

    QApplication::setFont(before);
}

} // namespace

} // namespace velto
