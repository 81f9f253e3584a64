// SPDX-License-Identifier: MIT
#include "StatusBarFixture.h"
#include "menubar/MenuValues.h"
#include "observation/NotificationCenter.h"

namespace velto {

using StatusMenuActionsTest = StatusBarFixture;

TEST_F(StatusMenuActionsTest, StartPauseAndResetDriveTheTimer)
{
    settledMenu();

    choose("Start Focus");
    EXPECT_TRUE(timer().isRunning());
    tick(3);

    choose("Pause Focus");
    EXPECT_FALSE(timer().isRunning());
    EXPECT_TRUE(timer().hasStarted());

    choose("Reset Focus");
    EXPECT_FALSE(timer().hasStarted());
    EXPECT_EQ(timer().remainingSeconds(), 1500);
}

TEST_F(StatusMenuActionsTest, ADurationChangesItsPhaseAndKeepsTheOther)
{
    timer().updateDurations(35, 7);
    timer().start();

    choose("Focus Duration / 90 minutes");
    EXPECT_EQ(timer().focusDuration(), 5400);
    EXPECT_EQ(timer().breakDuration(), 420);
    EXPECT_FALSE(timer().isRunning());

    choose("Break Duration / 30 minutes");
    EXPECT_EQ(timer().focusDuration(), 5400);
    EXPECT_EQ(timer().breakDuration(), 1800);
    EXPECT_EQ(settings.focusMinutes(), 90);
    EXPECT_EQ(settings.breakMinutes(), 30);
}

TEST_F(StatusMenuActionsTest, APresetChangesBothDurations)
{
    choose("Presets / 90m focus / 15m break");

    EXPECT_EQ(timer().focusDuration(), 5400);
    EXPECT_EQ(timer().breakDuration(), 900);
    EXPECT_EQ(timer().remainingSeconds(), 5400);
}

TEST_F(StatusMenuActionsTest, APhaseIsSwitchedTo)
{
    timer().start();

    choose("Current Phase / Break");
    EXPECT_EQ(timer().phase(), PomodoroPhase::breakTime);
    EXPECT_FALSE(timer().isRunning());

    choose("Current Phase / Focus");
    EXPECT_EQ(timer().phase(), PomodoroPhase::focus);
}

TEST_F(StatusMenuActionsTest, AnItemWithoutASuitableValueDoesNothing)
{
    struct Case {
        const char* path;
        std::any value;
    };
    timer().start();
    tick(3);
    store.writes.clear();
    const std::vector<Case> cases{
        {"Current Phase / Break", std::int64_t{2}},
        {"Current Phase / Break", std::int64_t{-1}},
        {"Current Phase / Break", std::any()},
        {"Current Phase / Break", std::string("1")},
        {"Presets / 50m focus / 10m break", std::any()},
        {"Presets / 50m focus / 10m break", std::int64_t{50}},
        {"Focus Duration / 15 minutes", std::any()},
        {"Focus Duration / 15 minutes", std::int64_t{15}},
        {"Focus Music / Lush", std::any()},
        {"Focus Music / Lush", MusicPreset::lush},
    };
    for (const auto& [path, value] : cases) {
        auto item = *menuItem(topMenu(), path);
        item.representedObject = value;

        item.action(item);

        EXPECT_TRUE(timer().isRunning()) << path;
        EXPECT_EQ(timer().remainingSeconds(), 1497) << path;
        EXPECT_TRUE(store.writes.empty()) << path;
    }
}

TEST_F(StatusMenuActionsTest, AutoTransitionIsToggledMarkedAndStored)
{
    const auto before = settledMenu();

    choose("Auto-Transition");
    EXPECT_TRUE(timer().autoTransition());
    EXPECT_TRUE(settings.autoTransition());
    EXPECT_EQ(changedLines(before, menu()), Lines{"Auto-Transition [on]"});

    choose("Auto-Transition");
    EXPECT_FALSE(timer().autoTransition());
    EXPECT_FALSE(settings.autoTransition());
    EXPECT_EQ(menu(), before);
}

TEST_F(StatusMenuActionsTest, EveryWayToTheSettingsShowsThePanelThenTheForm)
{
    for (const auto* path : {"Settings\u2026", "Focus Duration / Custom\u2026", "Break Duration / Custom\u2026",
             "Focus Music / Edit Custom URL\u2026", "Break Music / Edit Custom URL\u2026"}) {
        SCOPED_TRACE(path);
        controller().hideTimer();
        const int keysBefore = panel->keys;
        int asked = 0;
        const auto observer = NotificationCenter::defaultCenter().addObserver(
            "StatusBarShowSettings", [&](const Notification& notification) {
                ++asked;
                EXPECT_TRUE(panel->isVisible());
                EXPECT_EQ(panel->keys, keysBefore) << "The form is there first";
                EXPECT_FALSE(notification.object.has_value());
            });

        choose(path);

        EXPECT_EQ(asked, 1);
        EXPECT_EQ(panel->keys, keysBefore + 1);
        EXPECT_EQ(application.activations, 0);
    }
}

TEST_F(StatusMenuActionsTest, HelpAndAboutActivateThenShowTheirOneWindow)
{
    application.onActivate = [this] { windowsShown.emplace_back("activated"); };

    choose("How to Use");
    choose("About velto");
    choose("How to Use");

    EXPECT_EQ(windowsShown, (Lines{"activated", "help", "activated", "about", "activated", "help"}));
    EXPECT_EQ(windowsMade, (Lines{"help", "about"}));
}

TEST_F(StatusMenuActionsTest, QuitTerminates)
{
    choose("Quit");

    EXPECT_EQ(application.terminations, 1);
}

// Music

TEST_F(StatusMenuActionsTest, APresetOfTheRunningPhaseRestartsTheStreamAtOnce)
{
    timer().start();

    choose("Focus Music / Lush");
    choose("Focus Music / Groove Salad");

    EXPECT_EQ(players.opened,
        (Lines{std::string(streamUrl(MusicPreset::lush)), std::string(streamUrl(MusicPreset::grooveSalad))}));
    EXPECT_TRUE(settings.enableFocusMusic());
    EXPECT_EQ(settings.focusMusicPreset(), MusicPreset::grooveSalad);
    EXPECT_TRUE(timer().musicPlayer().isPlaying());
}

TEST_F(StatusMenuActionsTest, NoneSilencesTheRunningPhaseAndKeepsThePreset)
{
    timer().start();
    choose("Focus Music / Lush");

    choose("Focus Music / None");

    EXPECT_FALSE(timer().musicPlayer().isPlaying());
    EXPECT_EQ(timer().musicPlayer().currentURL(), std::nullopt);
    EXPECT_FALSE(settings.enableFocusMusic());
    EXPECT_EQ(settings.focusMusicPreset(), MusicPreset::lush);
}

TEST_F(StatusMenuActionsTest, AnEmptyCustomAddressSilencesTheRunningPhase)
{
    timer().start();
    choose("Focus Music / Lush");

    choose("Focus Music / Custom URL");

    EXPECT_FALSE(timer().musicPlayer().isPlaying());
    EXPECT_EQ(settings.focusMusicPreset(), MusicPreset::custom);
}

TEST_F(StatusMenuActionsTest, APresetForTheOtherPhaseDoesNotTouchThePlayer)
{
    timer().start();
    choose("Focus Music / Lush");
    players.calls.clear();

    choose("Break Music / Groove Salad");
    choose("Break Music / None");

    EXPECT_TRUE(players.calls.empty());
    EXPECT_TRUE(timer().musicPlayer().isPlaying());
}

TEST_F(StatusMenuActionsTest, AChoiceWhilePausedIsOnlyStored)
{
    timer().start();
    choose("Focus Music / Lush");
    timer().pause();
    players.calls.clear();

    choose("Focus Music / Groove Salad");

    EXPECT_TRUE(players.calls.empty());
    EXPECT_EQ(settings.focusMusicPreset(), MusicPreset::grooveSalad);
}

TEST_F(StatusMenuActionsTest, AChoiceWritesEnabledThenPresetOfItsPhaseOnly)
{
    struct Case {
        const char* path;
        Lines keys;
    };
    const std::vector<Case> cases{
        {"Focus Music / Lush", {"enableFocusMusic", "focusMusicPreset"}},
        {"Focus Music / None", {"enableFocusMusic"}},
        {"Break Music / Lush", {"enableBreakMusic", "breakMusicPreset"}},
        {"Break Music / None", {"enableBreakMusic"}},
    };
    for (const auto& [path, keys] : cases) {
        store.writes.clear();

        choose(path);

        Lines written;
        for (const auto& write : store.writes)
            written.push_back(write.first);
        EXPECT_EQ(written, keys) << path;
    }
}

TEST_F(StatusMenuActionsTest, AChoiceForTheBreakDrivesTheRunningBreak)
{
    timer().switchToPhase(PomodoroPhase::breakTime);
    timer().start();

    choose("Break Music / Space Station");
    EXPECT_EQ(timer().musicPlayer().currentURL(), streamUrl(MusicPreset::spaceStation));

    choose("Focus Music / Lush");
    EXPECT_EQ(timer().musicPlayer().currentURL(), streamUrl(MusicPreset::spaceStation));

    choose("Break Music / None");
    EXPECT_FALSE(timer().musicPlayer().isPlaying());
}

} // namespace velto
