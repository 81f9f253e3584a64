// SPDX-License-Identifier: MIT
#include "panel/TimerPanelController.h"

#include "support/World.h"

#include <gtest/gtest.h>

#include <optional>
#include <vector>

namespace velto {

// Placement

TEST(PlacePanelTest, HangsUnderTheButtonWithinTheUsableArea)
{
    struct Case {
        const char* name;
        std::optional<Rect> button;
        Rect usable;
        double x;
        double y;
    };
    const Rect screen{0, 0, 1440, 877};
    const Rect narrow{100, 0, 300, 877};
    const Rect leftAndBelow{-1920, -200, 1920, 1055};
    const std::vector<Case> cases{
        {"centred under the button, six points below it", Rect{1200, 1080, 40, 22}, screen, 1040, 654},
        {"a button of odd width", Rect{1200, 1080, 41, 22}, screen, 1040.5, 654},
        {"touching the right edge", Rect{1240, 1080, 40, 22}, screen, 1080, 654},
        {"near the right edge", Rect{1241, 1080, 40, 22}, screen, 1080, 654},
        {"beyond the right edge", Rect{1430, 1080, 40, 22}, screen, 1080, 654},
        {"touching the left edge", Rect{160, 1080, 40, 22}, screen, 0, 654},
        {"near the left edge", Rect{159, 1080, 40, 22}, screen, 0, 654},
        {"beyond the left edge", Rect{-20, 1080, 40, 22}, screen, 0, 654},
        {"a bar on the left", Rect{0, 1080, 40, 22}, Rect{64, 0, 1376, 877}, 64, 654},
        {"narrower than the panel: the left edge wins", Rect{200, 1080, 40, 22}, narrow, 100, 654},
        {"narrower than the panel, button at the right", Rect{390, 1080, 40, 22}, narrow, 100, 654},
        {"a bar at the bottom", Rect{600, 0, 40, 22}, screen, 440, 451},
        {"twenty points above the bottom is enough", Rect{600, 446, 40, 22}, screen, 440, 20},
        {"less is not", Rect{600, 445.5, 40, 22}, screen, 440, 451},
        {"counted from the usable bottom", Rect{600, 495, 40, 22}, Rect{0, 50, 1440, 827}, 440, 451},
        {"a short screen: the top counts, not the bottom", Rect{600, 300, 40, 22}, Rect{0, 0, 1440, 300}, 440, -126},
        {"negative origin, right edge", Rect{-100, 833, 40, 22}, leftAndBelow, -360, 407},
        {"negative origin, left edge", Rect{-1915, 833, 40, 22}, leftAndBelow, -1920, 407},
        {"negative origin, just high enough", Rect{-1000, 246, 40, 22}, leftAndBelow, -1160, -180},
        {"negative origin, too low", Rect{-1000, 245, 40, 22}, leftAndBelow, -1160, 429},
        {"no button: top centre", std::nullopt, screen, 540, 451},
        {"no button, negative origin", std::nullopt, leftAndBelow, -1140, 429},
        {"no button, narrow: not limited", std::nullopt, narrow, 70, 451},
        {"no button, short: not limited", std::nullopt, Rect{0, 0, 1440, 300}, 540, -126},
    };
    for (const auto& [name, button, usable, x, y] : cases) {
        SCOPED_TRACE(name);

        EXPECT_EQ(placePanel(button, usable, TimerPanelController::panelSize), (Rect{x, y, 360, 420}));
    }
}

TEST(PulledInsideTest, MovesNoFurtherThanNeeded)
{
    struct Case {
        const char* name;
        Rect frame;
        Rect usable;
        double x;
        double y;
    };
    const Rect screen{0, 0, 1440, 877};
    const std::vector<Case> cases{
        {"inside", Rect{540, 451, 360, 420}, screen, 540, 451},
        {"in the corner", Rect{1080, 457, 360, 420}, screen, 1080, 457},
        {"beyond the right and the top", Rect{1500, 800, 360, 420}, screen, 1080, 457},
        {"beyond the left and the bottom", Rect{-200, -50, 360, 420}, screen, 0, 0},
        {"a negative origin", Rect{0, 0, 360, 420}, Rect{-1920, -200, 1920, 1055}, -360, 0},
        {"too small: the top left corner is seen", Rect{100, 100, 360, 420}, Rect{10, 20, 300, 300}, 10, -100},
    };
    for (const auto& [name, frame, usable, x, y] : cases) {
        SCOPED_TRACE(name);

        EXPECT_EQ(pulledInside(frame, usable), (Rect{x, y, 360, 420}));
    }
}

// The controller

class TimerPanelControllerTest : public testing::Test, protected World {
protected:
    [[nodiscard]] std::size_t monitors() const { return eventMonitor.installedMonitors(); }

    FakeStatusItemButton button;
    std::vector<Size> sizesAskedFor;
    TimerPanelController controller{timer(), settings, screens, eventMonitor,
        [this](PomodoroTimer& timerShown, AppSettings& settingsShown, Size size) {
            EXPECT_EQ(&timerShown, &timer());
            EXPECT_EQ(&settingsShown, &settings);
            sizesAskedFor.push_back(size);
            return platform.makePanel(timerShown, settingsShown, size);
        }};
};

TEST_F(TimerPanelControllerTest, IsMadeInItsSizeOnFirstAccessAndKept)
{
    EXPECT_TRUE(sizesAskedFor.empty());

    const auto* made = &controller.panel();
    controller.show(&button);
    controller.hide();

    EXPECT_EQ(made, &controller.panel());
    EXPECT_EQ(sizesAskedFor, std::vector<Size>{(Size{360, 420})});
}

TEST_F(TimerPanelControllerTest, ShowPlacesItAndBringsItToTheFront)
{
    controller.show(&button);

    EXPECT_EQ(panel->frame, (Rect{1040, 654, 360, 420}));
    EXPECT_TRUE(panel->isVisible());
    EXPECT_EQ(panel->fronts, 1);
    EXPECT_EQ(application.activations, 0);
}

TEST_F(TimerPanelControllerTest, IsPlacedOnEveryShow)
{
    controller.show(&button);
    button.rect = Rect{20, 1080, 40, 22};

    controller.show(&button);

    EXPECT_EQ(panel->frame, (Rect{0, 654, 360, 420}));
    EXPECT_EQ(panel->fronts, 2);
}

TEST_F(TimerPanelControllerTest, AVisiblePanelStaysWithinReachWhenScreensChange)
{
    const Screen smaller{.frame = {0, 0, 1024, 600}, .visibleFrame = {0, 0, 1024, 572}};
    controller.show(&button);
    screens.change({smaller});
    EXPECT_EQ(panel->frame, (Rect{664, 152, 360, 420}));
    EXPECT_EQ(panel->fronts, 1);

    const int placements = panel->placements;
    screens.change({smaller, {.frame = {1024, 0, 800, 600}, .visibleFrame = {1024, 0, 800, 600}}});
    screens.change({});
    controller.hide();
    screens.change({Screen{.frame = {0, 0, 640, 480}, .visibleFrame = {0, 0, 640, 480}}});
    EXPECT_EQ(panel->placements, placements);
}

TEST_F(TimerPanelControllerTest, UsesTheScreenOfTheButtonAndTheMainOneWhenThatIsGone)
{
    const auto mainScreen = screens.screens.front();
    screens.screens.push_back({.frame = {-1920, 0, 1920, 1080}, .visibleFrame = {-1920, 0, 1920, 1055}});
    button.rect = Rect{-500, 1058, 40, 22};
    controller.show(&button);
    EXPECT_EQ(panel->frame, (Rect{-660, 632, 360, 420}));

    screens.change({mainScreen});
    EXPECT_EQ(panel->frame, (Rect{0, 457, 360, 420}));
}

TEST_F(TimerPanelControllerTest, UsesTheMainScreenWhenTheButtonIsOnNone)
{
    button.rect = Rect{9000, 1080, 40, 22};

    controller.show(&button);

    EXPECT_EQ(panel->frame, (Rect{1080, 654, 360, 420}));
}

TEST_F(TimerPanelControllerTest, WithoutAButtonIsAtTheTopCentreOfTheMainScreen)
{
    const Rect topCentre{540, 451, 360, 420};

    controller.show(nullptr);
    EXPECT_EQ(panel->frame, topCentre);

    panel->frame = {};
    button.rect.reset();
    controller.show(&button);
    EXPECT_EQ(panel->frame, topCentre);
    EXPECT_EQ(monitors(), 1U);
}

TEST_F(TimerPanelControllerTest, WithoutAScreenIsShownWhereItWasAndNotMonitored)
{
    screens.screens.clear();

    for (const auto* shownUnder : {&button, static_cast<FakeStatusItemButton*>(nullptr)}) {
        controller.show(shownUnder);

        EXPECT_TRUE(panel->isVisible());
        EXPECT_EQ(panel->placements, 0);
        EXPECT_EQ(eventMonitor.requests, 0);
    }
}

TEST_F(TimerPanelControllerTest, APressOutsideHidesItAndEndsMonitoringEachTime)
{
    for (const int round : {1, 2}) {
        controller.show(&button);
        EXPECT_EQ(monitors(), 1U);

        eventMonitor.pressOutside();

        EXPECT_FALSE(panel->isVisible());
        EXPECT_EQ(panel->outs, round);
        EXPECT_EQ(monitors(), 0U);
    }
    EXPECT_EQ(eventMonitor.requests, 2);
}

TEST_F(TimerPanelControllerTest, InstallsOneMonitorHoweverOftenShownAndHideRemovesIt)
{
    controller.show(&button);
    controller.show(&button);
    EXPECT_EQ(eventMonitor.requests, 1);
    EXPECT_EQ(monitors(), 1U);

    controller.hide();
    EXPECT_EQ(monitors(), 0U);
}

TEST_F(TimerPanelControllerTest, TheNextShowTriesAgainToMonitorPresses)
{
    eventMonitor.available = false;
    controller.show(&button);
    EXPECT_TRUE(panel->isVisible());

    eventMonitor.available = true;
    controller.show(&button);

    EXPECT_EQ(eventMonitor.requests, 2);
    EXPECT_EQ(monitors(), 1U);
}

TEST_F(TimerPanelControllerTest, HidingAHiddenPanelIsHarmless)
{
    controller.hide();
    controller.hide();

    EXPECT_EQ(sizesAskedFor.size(), 1U) << "made by the first hide";
    EXPECT_FALSE(panel->isVisible());
}

} // namespace velto
