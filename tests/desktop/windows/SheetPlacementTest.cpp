// SPDX-License-Identifier: MIT
#include "desktop/windows/SheetPlacement.h"

#include <gtest/gtest.h>

#include <ostream>

namespace velto {

namespace {

constexpr Size sheet{500, 650};

struct Case {
    const char* name;
    Rect panel;
    Rect usableArea;
    Rect expected;
};

void PrintTo(const Case& each, std::ostream* out)
{
    *out << each.name;
}

constexpr Case cases[]{
    {"CentredUnderThePanelsTopEdge", {540, 474, 360, 420}, {0, 0, 1440, 900}, {470, 244, 500, 650}},
    {"PulledInAtTheRight", {1080, 474, 360, 420}, {0, 0, 1440, 900}, {940, 244, 500, 650}},
    {"PulledInAtTheLeft", {0, 474, 360, 420}, {0, 0, 1440, 900}, {0, 244, 500, 650}},
    {"PulledUpAtTheBottom", {540, 100, 360, 420}, {0, 30, 1440, 900}, {470, 30, 500, 650}},
    {"PulledDownAtTheTop", {540, 600, 360, 420}, {0, 0, 1440, 900}, {470, 250, 500, 650}},
    {"LowerWhereTheScreenIsLower", {540, 174, 360, 420}, {0, 0, 1440, 600}, {470, 0, 500, 600}},
    {"NarrowerWhereTheScreenIsNarrower", {30, 474, 360, 420}, {0, 0, 400, 900}, {0, 244, 400, 650}},
    {"OnAScreenLeftOfTheMainOne", {-900, -206, 360, 420}, {-1280, -500, 1280, 720}, {-970, -436, 500, 650}},
};

class SheetPlacementTest : public testing::TestWithParam<Case> { };

TEST_P(SheetPlacementTest, KeepsTheSheetOnThePanelAndOnTheScreen)
{
    const auto& [name, panel, usableArea, expected] = GetParam();

    EXPECT_EQ(placeSheet(panel, usableArea, sheet), expected);
}

INSTANTIATE_TEST_SUITE_P(
    Table, SheetPlacementTest, testing::ValuesIn(cases), [](const auto& each) { return each.param.name; });

} // namespace

} // namespace velto
