// SPDX-License-Identifier: MIT
#include "desktop/status_item/StatusHost.h"

#include <gtest/gtest.h>

namespace velto {

namespace {

struct Case {
    const char* name;
    StatusHostFacts facts;
    TimeShape shape;
    bool barIsDark;
    bool leftClickOpensMenu;
};

class StatusHostTest : public testing::TestWithParam<Case> { };

TEST_P(StatusHostTest, IsKnownByItsProcessesElseByTheDesktop)
{
    const auto traits = recognizeStatusHost(GetParam().facts);

    EXPECT_EQ(traits.shape, GetParam().shape);
    EXPECT_EQ(traits.barIsDark, GetParam().barIsDark);
    EXPECT_EQ(traits.leftClickOpensMenu, GetParam().leftClickOpensMenu);
}

TEST(StatusHostPlaceTest, IsToldByTheShellsOfGnomeAndPlasmaOnly)
{
    EXPECT_TRUE(recognizeStatusHost({"GNOME", {"gnome-shell"}}).tellsPlace);
    EXPECT_TRUE(recognizeStatusHost({"KDE", {"kded5", "plasmashell"}}).tellsPlace);
    EXPECT_FALSE(recognizeStatusHost({"sway", {"waybar"}}).tellsPlace);
    EXPECT_FALSE(recognizeStatusHost({"X-Cinnamon", {"xapp-sn-watcher", "cinnamon"}}).tellsPlace);
    EXPECT_FALSE(recognizeStatusHost({"KDE", {"plasmashell", "waybar"}}).tellsPlace);
}

TEST(StatusHostPlaceTest, IsKnownBeforeAnyClickOnGnomeAndSway)
{
    EXPECT_TRUE(recognizeStatusHost({"GNOME", {"gnome-shell"}}).isAtTopRight);
    EXPECT_FALSE(recognizeStatusHost({"KDE", {"plasmashell"}}).isAtTopRight);
    EXPECT_TRUE(recognizeStatusHost({"sway", {"waybar"}}).isAtTopRight);
    EXPECT_TRUE(recognizeStatusHost({"sway", {"swaybar"}}).isAtTopRight);
    EXPECT_FALSE(recognizeStatusHost({"GNOME", {"gnome-shell", "xfce4-panel"}}).isAtTopRight);
}

constexpr auto label = TimeShape::label;
constexpr auto wide = TimeShape::widePicture;
constexpr auto square = TimeShape::squarePicture;

INSTANTIATE_TEST_SUITE_P(Hosts, StatusHostTest,
    testing::Values( //
        Case{"Gnome", {"GNOME", {"gnome-shell"}}, label, true, true},
        Case{"Ubuntu", {"ubuntu:GNOME", {"gnome-shell"}}, label, true, true},
        Case{"Unity", {"Unity:Unity7:ubuntu", {"indicator-application-service"}}, label, false, false},
        Case{"MateWithIndicators", {"MATE", {"ayatana-indicator-application-service"}}, label, false, false},
        Case{"MateWithNotificationArea", {"MATE", {"notification-area-applet"}}, label, false, false},
        Case{"Budgie", {"Budgie:GNOME", {"budgie-panel"}}, label, false, false},
        Case{"Waybar", {"sway", {"waybar"}}, wide, true, false},
        Case{"Cinnamon", {"X-Cinnamon", {"xapp-sn-watcher", "cinnamon"}}, wide, true, false},
        Case{"Xfce", {"XFCE", {"wrapper-2.0"}}, square, true, false},
        Case{"Lxqt", {"LXQt", {"lxqt-panel"}}, square, true, false},
        Case{"PlasmaWithItsBroker", {"KDE", {"kded5", "plasmashell"}}, square, false, false},
        Case{"PlasmaSixWithItsBroker", {"KDE", {"kded6", "plasmashell"}}, square, false, false},
        Case{"WaybarWithPlasmasBroker", {"KDE", {"kded5", "waybar"}}, wide, true, false},
        Case{"Swaybar", {"sway", {"swaybar"}}, square, true, false},
        Case{"UnknownBarOnAKnownDesktop", {"GNOME", {"some-bar"}}, square, false, false},
        Case{"SeveralTakeTheMostModestShape", {"sway", {"waybar", "swaybar"}}, square, true, false},
        Case{"SeveralWhoseOrderDoesNotMatter", {"", {"some-bar", "gnome-shell"}}, square, false, true},
        Case{"NoProcessInAGnomeSession", {"ubuntu:GNOME", {}}, label, true, true},
        Case{"NoProcessInABudgieSession", {"Budgie:GNOME", {}}, label, false, false},
        Case{"NoProcessInACinnamonSession", {"X-Cinnamon", {}}, wide, true, false},
        Case{"NoProcessInAnXfceSession", {"XFCE", {}}, square, true, false},
        Case{"NoProcessInAnUnknownSession", {"GNOMEish", {}}, square, false, false},
        Case{"Nothing", {}, square, false, false}),
    [](const testing::TestParamInfo<Case>& test) { return std::string(test.param.name); });

} // namespace

} // namespace velto
