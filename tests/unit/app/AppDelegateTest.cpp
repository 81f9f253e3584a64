// SPDX-License-Identifier: MIT
#include "app/AppDelegate.h"

#include "core/PomodoroTimer.h"
#include "menubar/StatusBarController.h"
#include "settings/AppSettings.h"
#include "support/FakePlatform.h"

#include <gtest/gtest.h>

namespace velto {

using namespace std::chrono_literals;

class AppDelegateTest : public testing::Test {
protected:
    void setProviders()
    {
        delegate.timerProvider = [this]() -> PomodoroTimer& { return timer; };
        delegate.settingsProvider = [this]() -> AppSettings& { return settings; };
    }

    FakePlatform world;
    AppSettings settings{world.defaults, world.sounds};
    PomodoroTimer timer{settings, world.runLoop, world.streamPlayers};
    AppDelegate delegate{world.platform};
};

TEST_F(AppDelegateTest, BeginsEmpty)
{
    EXPECT_FALSE(delegate.timerProvider);
    EXPECT_FALSE(delegate.settingsProvider);
    EXPECT_FALSE(delegate.statusBarController);
}

TEST_F(AppDelegateTest, WithoutEitherProviderLaunchingDoesNothing)
{
    int timersAskedFor = 0;
    setProviders();
    delegate.timerProvider = nullptr;
    delegate.settingsProvider = [&]() -> AppSettings& {
        ADD_FAILURE() << "asked for the settings without a timer";
        return settings;
    };
    delegate.applicationDidFinishLaunching();

    delegate.settingsProvider = nullptr;
    delegate.timerProvider = [&]() -> PomodoroTimer& {
        ++timersAskedFor;
        return timer;
    };
    delegate.applicationDidFinishLaunching();

    EXPECT_EQ(timersAskedFor, 1);
    EXPECT_FALSE(delegate.statusBarController);
    EXPECT_EQ(world.statusItemsMade, 0);
    EXPECT_EQ(world.runLoop.liveTimers(), 0U);
}

TEST_F(AppDelegateTest, TheStatusItemIsThereWhenLaunchingReturns)
{
    setProviders();

    delegate.applicationDidFinishLaunching();

    EXPECT_EQ(world.statusItemsMade, 1);
    EXPECT_EQ(world.statusItem->button()->title(), "25:00");
    EXPECT_EQ(world.panelsMade, 0);
    EXPECT_TRUE(world.windowsMade.empty());
    EXPECT_FALSE(timer.isRunning());
}

TEST_F(AppDelegateTest, ThePanelComesAfterFourTenthsOfASecondAndTheWelcomeAfterSix)
{
    setProviders();
    delegate.applicationDidFinishLaunching();

    world.runLoop.advance(399ms);
    EXPECT_EQ(world.panel, nullptr);
    world.runLoop.advance(1ms);
    ASSERT_NE(world.panel, nullptr);
    EXPECT_TRUE(world.panel->isVisible());
    EXPECT_EQ(world.panel->frame, (Rect{1040, 654, 360, 420}));

    world.runLoop.advance(199ms);
    EXPECT_TRUE(world.windowsShown.empty());
    EXPECT_TRUE(world.defaults.writes.empty());
    world.runLoop.advance(1ms);
    EXPECT_EQ(world.windowsShown, std::vector<std::string>{"help"});
    EXPECT_EQ(world.defaults.object("hasLaunchedBefore"), StoredValue(true));

    world.runLoop.advance(1min);
    EXPECT_EQ(world.panel->fronts, 1);
    EXPECT_EQ(world.runLoop.liveTimers(), 0U);
}

TEST_F(AppDelegateTest, ALaterLaunchShowsThePanelButNoWelcome)
{
    world.defaults.values["hasLaunchedBefore"] = true;
    setProviders();

    delegate.applicationDidFinishLaunching();
    world.runLoop.advance(1s);

    EXPECT_TRUE(world.panel->isVisible());
    EXPECT_TRUE(world.windowsMade.empty());
    EXPECT_EQ(world.application.activations, 0);
    EXPECT_TRUE(world.defaults.writes.empty());
}

TEST_F(AppDelegateTest, ThePanelIsShownEvenWhenTheControllerIsLetGoBefore)
{
    setProviders();
    delegate.applicationDidFinishLaunching();

    delegate.statusBarController.reset();
    world.runLoop.advance(400ms);

    EXPECT_EQ(world.panelsMade, 1);
}

TEST_F(AppDelegateTest, ASecondLaunchReplacesTheControllerAndKeepsTimerAndSettings)
{
    setProviders();
    delegate.applicationDidFinishLaunching();
    world.runLoop.advance(1s);
    timer.start();
    const std::weak_ptr<StatusBarController> first = delegate.statusBarController;
    const auto* firstPanel = &first.lock()->panelController();

    delegate.applicationDidFinishLaunching();
    EXPECT_TRUE(first.expired());
    EXPECT_NE(&delegate.statusBarController->panelController(), firstPanel);
    EXPECT_EQ(world.statusItemsMade, 2);

    world.runLoop.advance(1s);
    EXPECT_EQ(world.panelsMade, 2);
    EXPECT_TRUE(world.panel->isVisible());
    EXPECT_TRUE(timer.isRunning());
    EXPECT_EQ(world.statusItem->button()->title(), "24:59");
}

} // namespace velto
