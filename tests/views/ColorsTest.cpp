// SPDX-License-Identifier: MIT
#include "style/Colors.h"
#include "Contrast.h"

#include <gtest/gtest.h>

#include <string>

namespace velto {

namespace {

using enum ColorName;

struct Pair {
    ColorName front;
    ColorName back;
};

class ContrastTest : public testing::TestWithParam<Theme> {
protected:
    void expectAtLeast(double ratio, std::initializer_list<Pair> pairs) const
    {
        for (const auto& [front, back] : pairs)
            EXPECT_GE(contrast(color(front, GetParam()), color(back, GetParam())), ratio)
                << "front " << static_cast<int>(front) << " on " << static_cast<int>(back) << " in theme "
                << static_cast<int>(GetParam());
    }
};

TEST_P(ContrastTest, SmallTextIsReadableOnWhatLiesBehindIt)
{
    expectAtLeast(4.5,
        {{label, windowBackground}, {secondaryLabel, windowBackground}, {tertiaryLabel, windowBackground},
            {label, control}, {red, control}, {label, field}, {tertiaryLabel, field}});
}

TEST_P(ContrastTest, ButtonLabelsAreReadableOnTheirTint)
{
    expectAtLeast(4.5, {{tintedLabel, green}, {tintedLabel, orange}});
    EXPECT_GE(contrast(Qt::white, color(accent, GetParam())), 4.5);
}

TEST_P(ContrastTest, TheTealsAreOfOneHue)
{
    EXPECT_NEAR(color(teal, GetParam()).hsvHue(), color(accent, GetParam()).hsvHue(), 1);
}

TEST_P(ContrastTest, StartAndPauseAreFresh)
{
    if (GetParam() != Theme::light && GetParam() != Theme::dark)
        GTEST_SKIP();
    for (const auto name : {green, orange})
        EXPECT_GE(color(name, GetParam()).valueF(), 0.75F);
}

TEST_P(ContrastTest, LargeTextTheRingAndFacesOfControlsStandOut)
{
    expectAtLeast(3,
        {{teal, windowBackground}, {accent, windowBackground}, {controlOutline, windowBackground},
            {controlOutline, field}, {teal, control}, {teal, field}, {knob, controlOutline}, {knob, accent}});
}

TEST_P(ContrastTest, APaletteTellsItsTheme)
{
    EXPECT_EQ(themeOf(paletteFor(GetParam())), GetParam());
}

TEST_P(ContrastTest, AWindowLooksTheSameWhetherActiveOrNot)
{
    const auto palette = paletteFor(GetParam());

    EXPECT_TRUE(palette.isEqual(QPalette::Active, QPalette::Inactive));
}

INSTANTIATE_TEST_SUITE_P(Themes, ContrastTest,
    testing::Values(Theme::light, Theme::dark, Theme::lightHighContrast, Theme::darkHighContrast));

TEST(ColorsTest, HighContrastRaisesTheContrastOfText)
{
    const auto textContrast
        = [](Theme theme) { return contrast(color(secondaryLabel, theme), color(windowBackground, theme)); };

    EXPECT_GE(textContrast(Theme::lightHighContrast), 7);
    EXPECT_GE(textContrast(Theme::darkHighContrast), 7);
}

TEST(ColorsTest, AForeignPaletteIsLightOrDarkByItsWindow)
{
    EXPECT_EQ(themeOf(QPalette(QColor(0xef, 0xef, 0xef))), Theme::light);
    EXPECT_EQ(themeOf(QPalette(QColor(0x30, 0x30, 0x34))), Theme::dark);
}

} // namespace

} // namespace velto
