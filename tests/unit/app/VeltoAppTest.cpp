// SPDX-License-Identifier: MIT
#include "app/VeltoApp.h"

#include "menubar/StatusBarController.h"
#include "support/FakePlatform.h"
#include "support/MenuText.h"

#include <gtest/gtest.h>

namespace velto {

using namespace std::chrono_literals;

class VeltoAppTest : public testing::Test {
protected:
    FakePlatform world;
};

TEST_F(VeltoAppTest, TheDelegateIsHandedTheOneTimerAndTheOneSettings)
{
    VeltoApp app{world.platform};

    EXPECT_EQ(&app.appDelegate().timerProvider(), &app.timer());
    EXPECT_EQ(&app.appDelegate().settingsProvider(), &app.settings());
    EXPECT_FALSE(app.appDelegate().statusBarController);
    EXPECT_EQ(world.statusItemsMade, 0);
    EXPECT_TRUE(world.defaults.writes.empty());
}

TEST_F(VeltoAppTest, AtLaunchTheTimerShowsTheStoredFocusDurationAndWaits)
{
    world.defaults.values["focusMinutes"] = std::int64_t{40};
    VeltoApp app{world.platform};

    app.appDelegate().applicationDidFinishLaunching();
    world.runLoop.advance(400ms);

    EXPECT_TRUE(world.panel->isVisible());
    EXPECT_EQ(world.statusItem->button()->title(), "40:00");
    EXPECT_EQ(app.timer().remainingSeconds(), 2400);
    EXPECT_FALSE(app.timer().isRunning());
    EXPECT_FALSE(app.timer().hasStarted());
}

TEST_F(VeltoAppTest, AWholeRoundFromTheMenuAndBack)
{
    VeltoApp app{world.platform};
    app.appDelegate().applicationDidFinishLaunching();
    world.runLoop.advance(1s);
    world.click({.kind = ClickEvent::Kind::leftMouseUp});
    const auto choose = [&](const std::string& path) {
        const auto* item = menuItem(*world.statusItem->menu, path);
        ASSERT_NE(item, nullptr) << path;
        item->action(*item);
        world.runLoop.runTurns();
    };

    choose("Auto-Transition");
    choose("Focus Music / Lush");
    choose("Start Focus");
    world.runLoop.advance(1500s);
    EXPECT_EQ(world.statusItem->button()->title(), "00:00");
    EXPECT_FALSE(world.panel->isVisible());

    world.runLoop.advance(1s);
    EXPECT_EQ(world.statusItem->button()->title(), "05:00");
    EXPECT_TRUE(world.panel->isVisible());
    EXPECT_EQ(world.statusItem->menu->items.front()->title, "Pause Break");
    EXPECT_FALSE(app.timer().musicPlayer().isPlaying());

    world.runLoop.advance(301s);
    EXPECT_EQ(world.statusItem->menu->items.front()->title, "Pause Focus");
    EXPECT_EQ(world.streamPlayers.opened.size(), 2U);
    EXPECT_EQ(world.sounds.played.size(), 22U) << "ten and one at the end of each phase";
}

} // namespace velto
