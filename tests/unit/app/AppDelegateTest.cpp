// SPDX-License-Identifier: MIT
#include "app/AppDelegate.h"

#include "menubar/StatusBarController.h"
#include "support/World.h"

#include <gtest/gtest.h>

namespace velto {

using namespace std::chrono_literals;

class AppDelegateTest : public testing::Test, protected World {
protected:
    void setProviders()
    {
        delegate.timerProvider = [this]() -> PomodoroTimer& { return timer(); };
        delegate.settingsProvider = [this]() -> AppSettings& { return settings; };
    }

    AppDelegate delegate{platform};
};

TEST_F(AppDelegateTest, BeginsEmpty)
{
    EXPECT_FALSE(delegate.timerProvider);
    EXPECT_FALSE(delegate.settingsProvider);
    EXPECT_FALSE(delegate.statusBarController);
}

TEST_F(AppDelegateTest, LaunchingNeedsBothProviders)
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
        return timer();
    };
    delegate.applicationDidFinishLaunching();

    EXPECT_EQ(timersAskedFor, 1);
    EXPECT_FALSE(delegate.statusBarController);
    EXPECT_EQ(statusItemsMade, 0);
    EXPECT_EQ(runLoop.liveTimers(), 0U);
}

TEST_F(AppDelegateTest, LaunchingCreatesTheStatusItem)
{
    setProviders();

    delegate.applicationDidFinishLaunching();

    EXPECT_EQ(statusItemsMade, 1);
    EXPECT_EQ(statusItem->button()->title(), "25:00");
    EXPECT_EQ(panelsMade, 0);
    EXPECT_TRUE(windowsMade.empty());
    EXPECT_FALSE(timer().isRunning());
}

TEST_F(AppDelegateTest, ShowsThePanelAfter400MillisecondsAndTheWelcomeAfter600)
{
    setProviders();
    delegate.applicationDidFinishLaunching();

    runLoop.advance(399ms);
    EXPECT_EQ(panel, nullptr);
    runLoop.advance(1ms);
    ASSERT_NE(panel, nullptr);
    EXPECT_TRUE(panel->isVisible());
    EXPECT_EQ(panel->frame, (Rect{1040, 654, 360, 420}));

    runLoop.advance(199ms);
    EXPECT_TRUE(windowsShown.empty());
    EXPECT_TRUE(store.writes.empty());
    runLoop.advance(1ms);
    EXPECT_EQ(windowsShown, std::vector<std::string>{"help"});
    EXPECT_EQ(store.object("hasLaunchedBefore"), StoredValue(true));

    runLoop.advance(1min);
    EXPECT_EQ(panel->fronts, 1);
    EXPECT_EQ(runLoop.liveTimers(), 0U);
}

TEST_F(AppDelegateTest, LaterLaunchesShowThePanelWithoutTheWelcome)
{
    store.values["hasLaunchedBefore"] = true;
    setProviders();

    delegate.applicationDidFinishLaunching();
    runLoop.advance(1s);

    EXPECT_TRUE(panel->isVisible());
    EXPECT_TRUE(windowsMade.empty());
    EXPECT_EQ(application.activations, 0);
    EXPECT_TRUE(store.writes.empty());
}

TEST_F(AppDelegateTest, ShowsThePanelEvenIfTheControllerIsReleasedFirst)
{
    setProviders();
    delegate.applicationDidFinishLaunching();

    delegate.statusBarController.reset();
    runLoop.advance(400ms);

    EXPECT_EQ(panelsMade, 1);
}

TEST_F(AppDelegateTest, LaunchingAgainReplacesTheControllerAndKeepsTimerAndSettings)
{
    setProviders();
    delegate.applicationDidFinishLaunching();
    runLoop.advance(1s);
    timer().start();
    const std::weak_ptr<StatusBarController> first = delegate.statusBarController;

    delegate.applicationDidFinishLaunching();
    EXPECT_TRUE(first.expired());
    EXPECT_EQ(statusItemsMade, 2);

    runLoop.advance(1s);
    EXPECT_EQ(panelsMade, 2);
    EXPECT_TRUE(panel->isVisible());
    EXPECT_TRUE(timer().isRunning());
    EXPECT_EQ(statusItem->button()->title(), "24:59");
}

} // namespace velto
