// SPDX-License-Identifier: MIT
#include "app/VeltoApp.h"

#include "menubar/StatusBarController.h"
#include "support/MenuText.h"
#include "support/World.h"

#include <gtest/gtest.h>

#include <optional>

#include <malloc.h>

namespace velto {

using namespace std::chrono_literals;

class VeltoAppTest : public testing::Test, protected World {
protected:
    PomodoroTimer& timer() { return app().appDelegate().timerProvider(); }

    /// Made on first use, so that a test can fill the store before.
    VeltoApp& app()
    {
        if (!m_app)
            m_app.emplace(platform);
        return *m_app;
    }

    void launch() { app().appDelegate().applicationDidFinishLaunching(); }

private:
    std::optional<VeltoApp> m_app;
};

TEST_F(VeltoAppTest, TheDelegateSharesItsTimerAndSettings)
{
    EXPECT_FALSE(app().appDelegate().statusBarController);
    EXPECT_EQ(statusItemsMade, 0);
    EXPECT_TRUE(store.writes.empty());

    timer().updateDurations(40, 10);
    EXPECT_EQ(timer().remainingSeconds(), 2400);
    EXPECT_EQ(app().appDelegate().settingsProvider().focusMinutes(), 40);
}

TEST_F(VeltoAppTest, AtLaunchTheTimerShowsTheStoredFocusDurationAndWaits)
{
    store.values["focusMinutes"] = std::int64_t{40};
    launch();
    runLoop.advance(400ms);

    EXPECT_TRUE(panel->isVisible());
    EXPECT_EQ(statusItem->button()->title(), "40:00");
    EXPECT_EQ(timer().remainingSeconds(), 2400);
    EXPECT_FALSE(timer().isRunning());
    EXPECT_FALSE(timer().hasStarted());
}

TEST_F(VeltoAppTest, AWholeRoundFromTheMenuAndBack)
{
    launch();
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
    EXPECT_FALSE(timer().musicPlayer().isPlaying());

    runLoop.advance(301s);
    EXPECT_EQ(statusItem->menu->items.front()->title, "Pause Focus");
    EXPECT_EQ(players.opened.size(), 2U);
    EXPECT_EQ(sounds.played.size(), 22U) << "ten and one at the end of each phase";
}

TEST_F(VeltoAppTest, TenThousandPhasesLeaveNothingBehind)
{
    store.values = {{"focusMinutes", std::int64_t{1}}, {"breakMinutes", std::int64_t{1}}, {"autoTransition", true},
        {"enableFocusMusic", true}};
    launch();
    timer().start();
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
    EXPECT_TRUE(timer().isRunning());
}

} // namespace velto
