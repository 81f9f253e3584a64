// SPDX-License-Identifier: MIT
#include "app/VeltoApp.h"

#include "menubar/StatusBarController.h"
#include "support/MenuText.h"
#include "support/World.h"

#include <gtest/gtest.h>

#include <malloc.h>

namespace velto {

using namespace std::chrono_literals;

class VeltoAppTest : public testing::Test, protected World { };

TEST_F(VeltoAppTest, TheDelegateSharesItsTimerAndSettings)
{
    VeltoApp app{platform};

    EXPECT_EQ(&app.appDelegate().timerProvider(), &app.timer());
    EXPECT_EQ(&app.appDelegate().settingsProvider(), &app.settings());
    EXPECT_FALSE(app.appDelegate().statusBarController);
    EXPECT_EQ(statusItemsMade, 0);
    EXPECT_TRUE(store.writes.empty());
}

TEST_F(VeltoAppTest, AtLaunchTheTimerShowsTheStoredFocusDurationAndWaits)
{
    store.values["focusMinutes"] = std::int64_t{40};
    VeltoApp app{platform};

    app.appDelegate().applicationDidFinishLaunching();
    runLoop.advance(400ms);

    EXPECT_TRUE(panel->isVisible());
    EXPECT_EQ(statusItem->button()->title(), "40:00");
    EXPECT_EQ(app.timer().remainingSeconds(), 2400);
    EXPECT_FALSE(app.timer().isRunning());
    EXPECT_FALSE(app.timer().hasStarted());
}

TEST_F(VeltoAppTest, AWholeRoundFromTheMenuAndBack)
{
    VeltoApp app{platform};
    app.appDelegate().applicationDidFinishLaunching();
    runLoop.advance(1s);
    click({.kind = ClickEvent::Kind::leftMouseUp});
    const auto choose = [&](const std::string& path) {
        const auto* item = menuItem(*statusItem->menu, path);
        ASSERT_NE(item, nullptr) << path;
        item->action(*item);
        runLoop.runTurns();
    };

    choose("Auto-Transition");
    choose("Focus Music / Lush");
    choose("Start Focus");
    runLoop.advance(1500s);
    EXPECT_EQ(statusItem->button()->title(), "00:00");
    EXPECT_FALSE(panel->isVisible());

    runLoop.advance(1s);
    EXPECT_EQ(statusItem->button()->title(), "05:00");
    EXPECT_TRUE(panel->isVisible());
    EXPECT_EQ(statusItem->menu->items.front()->title, "Pause Break");
    EXPECT_FALSE(app.timer().musicPlayer().isPlaying());

    runLoop.advance(301s);
    EXPECT_EQ(statusItem->menu->items.front()->title, "Pause Focus");
    EXPECT_EQ(players.opened.size(), 2U);
    EXPECT_EQ(sounds.played.size(), 22U) << "ten and one at the end of each phase";
}

TEST_F(VeltoAppTest, TenThousandPhasesLeaveNothingBehind)
{
    store.values = {{"focusMinutes", std::int64_t{1}}, {"breakMinutes", std::int64_t{1}}, {"autoTransition", true},
        {"enableFocusMusic", true}};
    VeltoApp app{platform};
    app.appDelegate().applicationDidFinishLaunching();
    app.timer().start();
    const auto bytesAfter = [&](int phases) {
        for (int phase = 0; phase < phases; ++phase) {
            runLoop.advance(61s);
            // What the fakes remember.
            statusItem->button()->titles.clear();
            statusItem->button()->appearsDisabled.clear();
            sounds.asked.clear();
            sounds.played.clear();
            players.opened.clear();
            players.calls.clear();
        }
        return mallinfo2().uordblks;
    };
    testing::internal::CaptureStdout(); // a line for each stream
    const auto before = bytesAfter(50);
    const auto later = bytesAfter(10'000);
    testing::internal::GetCapturedStdout();
    if (before == 0)
        GTEST_SKIP() << "another allocator keeps no count";

    EXPECT_EQ(later, before);
    EXPECT_TRUE(app.timer().isRunning());
}

} // namespace velto
