// SPDX-License-Identifier: MIT
#include "StatusBarFixture.h"
#include "menubar/MenuValues.h"
#include "observation/NotificationCenter.h"

namespace velto {

using StatusMenuTest = StatusBarFixture;

namespace {

const std::vector<std::string> freshMenu{
    "Start Focus",
    "Reset Focus [hidden] [disabled]",
    "---",
    "Focus Duration",
    "Focus Duration / 15 minutes",
    "Focus Duration / 20 minutes",
    "Focus Duration / 25 minutes [on]",
    "Focus Duration / 30 minutes",
    "Focus Duration / 45 minutes",
    "Focus Duration / 50 minutes",
    "Focus Duration / 60 minutes",
    "Focus Duration / 90 minutes",
    "Focus Duration / ---",
    "Focus Duration / Custom\u2026",
    "Break Duration",
    "Break Duration / 5 minutes [on]",
    "Break Duration / 10 minutes",
    "Break Duration / 15 minutes",
    "Break Duration / 20 minutes",
    "Break Duration / 30 minutes",
    "Break Duration / ---",
    "Break Duration / Custom\u2026",
    "Presets",
    "Presets / 25m focus / 5m break [on]",
    "Presets / 50m focus / 10m break",
    "Presets / 60m focus / 10m break",
    "Presets / 90m focus / 15m break",
    "---",
    "Focus Music",
    "Focus Music / None [on]",
    "Focus Music / ---",
    "Focus Music / Lo-Fi",
    "Focus Music / Deep Space Ambient",
    "Focus Music / Groove Salad",
    "Focus Music / DEF CON Radio",
    "Focus Music / Space Station",
    "Focus Music / Lush",
    "Focus Music / Custom URL",
    "Focus Music / ---",
    "Focus Music / Edit Custom URL\u2026",
    "Break Music",
    "Break Music / None [on]",
    "Break Music / ---",
    "Break Music / Lo-Fi",
    "Break Music / Deep Space Ambient",
    "Break Music / Groove Salad",
    "Break Music / DEF CON Radio",
    "Break Music / Space Station",
    "Break Music / Lush",
    "Break Music / Custom URL",
    "Break Music / ---",
    "Break Music / Edit Custom URL\u2026",
    "---",
    "Current Phase",
    "Current Phase / Focus [on]",
    "Current Phase / Break",
    "---",
    "Auto-Transition",
    "---",
    "Settings\u2026 {gearshape, Settings}",
    "How to Use {questionmark.circle, Help}",
    "About velto {info.circle, About}",
    "---",
    "Quit",
};

void forEachItem(const Menu& menu, const std::function<void(MenuItem&)>& visit)
{
    for (const auto& item : menu.items) {
        visit(*item);
        if (item->submenu)
            forEachItem(*item->submenu, visit);
    }
}

} // namespace

// Structure

TEST_F(StatusMenuTest, HasExactlyTheseEntriesBeforeTheFirstStart)
{
    EXPECT_EQ(settledMenu(), freshMenu);
    EXPECT_EQ(topMenu().title, "");
}

TEST_F(StatusMenuTest, OnlyTheTwoDurationsAreCheckedWhenBuilt)
{
    EXPECT_EQ(changedLines(freshMenu, menu()),
        (Lines{"Presets / 25m focus / 5m break", "Focus Music / None", "Break Music / None", "Current Phase / Focus"}));
}

TEST_F(StatusMenuTest, OnlyChoicesCanHaveAMark)
{
    forEachItem(topMenu(), [](const MenuItem& item) {
        EXPECT_EQ(item.isCheckable, item.representedObject.has_value() || item.title == "Auto-Transition")
            << item.title;
    });
}

TEST_F(StatusMenuTest, OnlySeparatorsAndItemsWithASubmenuHaveNoAction)
{
    forEachItem(topMenu(), [](const MenuItem& item) {
        EXPECT_EQ(static_cast<bool>(item.action), !item.isSeparator && !item.submenu) << item.title;
        if (item.submenu) {
            EXPECT_EQ(item.submenu->title, item.title);
            EXPECT_FALSE(item.submenu->willOpen);
        }
    });
}

TEST_F(StatusMenuTest, ItemsCarryWhatTheyStandFor)
{
    std::vector<std::string> carried;
    forEachItem(topMenu(), [&](const MenuItem& item) {
        if (const auto* duration = std::any_cast<DurationChoice>(&item.representedObject))
            carried.push_back(std::to_string(duration->minutes));
        else if (const auto* preset = std::any_cast<DurationPreset>(&item.representedObject))
            carried.push_back(std::to_string(preset->focus) + '/' + std::to_string(preset->breakTime));
        else if (const auto* phase = std::any_cast<std::int64_t>(&item.representedObject))
            carried.push_back(item.title + '=' + std::to_string(*phase));
        else if (const auto* music = std::any_cast<MusicChoice>(&item.representedObject))
            carried.push_back(music->preset ? std::string(rawValue(*music->preset)) : "no music");
        else
            EXPECT_FALSE(item.representedObject.has_value()) << item.title;
    });

    const Lines music{"no music", "Lo-Fi", "Deep Space Ambient", "Groove Salad", "DEF CON Radio", "Space Station",
        "Lush", "Custom URL"};
    Lines expected{
        "15", "20", "25", "30", "45", "50", "60", "90", "5", "10", "15", "20", "30", "25/5", "50/10", "60/10", "90/15"};
    expected.insert(expected.end(), music.begin(), music.end());
    expected.insert(expected.end(), music.begin(), music.end());
    expected.insert(expected.end(), {"Focus=0", "Break=1"});
    EXPECT_EQ(carried, expected);
}

TEST_F(StatusMenuTest, IsNeverRebuilt)
{
    const auto items = [this] {
        std::vector<const MenuItem*> all;
        forEachItem(topMenu(), [&](const MenuItem& item) { all.push_back(&item); });
        return all;
    };
    const auto built = items();

    timer().start();
    tick(3);
    choose("Presets / 50m focus / 10m break");
    click({.kind = ClickEvent::Kind::rightMouseUp});

    EXPECT_EQ(items(), built);
}

// States

TEST_F(StatusMenuTest, WhileRunningTheTimerCanBePausedAndResetFromTheFirstSecond)
{
    timer().start();

    EXPECT_EQ(changedLines(freshMenu, settledMenu()), (Lines{"Pause Focus", "Reset Focus"}));
}

TEST_F(StatusMenuTest, PausedAfterSomeSecondsTheTimerCanBeStartedAndReset)
{
    timer().start();
    tick(3);
    timer().pause();

    EXPECT_EQ(changedLines(freshMenu, settledMenu()), Lines{"Reset Focus"});
}

TEST_F(StatusMenuTest, PausedAtItsFullLengthResetIsVisibleAndDisabled)
{
    timer().start();
    timer().pause();

    EXPECT_EQ(changedLines(freshMenu, settledMenu()), Lines{"Reset Focus [disabled]"});
}

TEST_F(StatusMenuTest, AResetBringsBackTheFirstEntries)
{
    timer().start();
    tick(3);
    timer().reset();

    EXPECT_EQ(settledMenu(), freshMenu);
}

TEST_F(StatusMenuTest, InTheBreakEveryLabelReadsBreak)
{
    timer().switchToPhase(PomodoroPhase::breakTime);
    EXPECT_EQ(changedLines(freshMenu, settledMenu()),
        (Lines{
            "Start Break", "Reset Break [hidden] [disabled]", "Current Phase / Focus", "Current Phase / Break [on]"}));

    timer().start();
    EXPECT_EQ(settledMenu().at(0), "Pause Break");
    EXPECT_EQ(settledMenu().at(1), "Reset Break");
}

TEST_F(StatusMenuTest, InTheBreakResetDependsOnTheBreakLength)
{
    settings.focusMinutes.set(5);
    settings.breakMinutes.set(25);
    timer().switchToPhase(PomodoroPhase::breakTime);
    timer().start();
    tick(3);
    timer().pause();
    EXPECT_EQ(settledMenu().at(1), "Reset Break") << "below the break length, though above the focus length";

    timer().reset();
    timer().start();
    timer().pause();
    EXPECT_EQ(settledMenu().at(1), "Reset Break [disabled]");
}

TEST_F(StatusMenuTest, AnUnlistedDurationMarksNothing)
{
    timer().updateDurations(35, 5);

    EXPECT_EQ(changedLines(freshMenu, settledMenu()),
        (Lines{"Focus Duration / 25 minutes", "Presets / 25m focus / 5m break"}));
}

TEST_F(StatusMenuTest, BuiltWithAnUnlistedDurationItChecksNone)
{
    settings.focusMinutes.set(35);
    settings.breakMinutes.set(7);

    for (const auto& line : menu())
        EXPECT_FALSE(line.ends_with("[on]")) << line;
}

TEST_F(StatusMenuTest, DurationsMarkTheOnePresetThatEqualsBoth)
{
    timer().updateDurations(50, 10);
    EXPECT_EQ(changedLines(freshMenu, settledMenu()),
        (Lines{"Focus Duration / 25 minutes", "Focus Duration / 50 minutes [on]", "Break Duration / 5 minutes",
            "Break Duration / 10 minutes [on]", "Presets / 25m focus / 5m break",
            "Presets / 50m focus / 10m break [on]"}));

    timer().updateDurations(60, 10);
    EXPECT_EQ(changedLines(freshMenu, settledMenu()),
        (Lines{"Focus Duration / 25 minutes", "Focus Duration / 60 minutes [on]", "Break Duration / 5 minutes",
            "Break Duration / 10 minutes [on]", "Presets / 25m focus / 5m break",
            "Presets / 60m focus / 10m break [on]"}));

    timer().updateDurations(25, 10);
    EXPECT_EQ(changedLines(freshMenu, settledMenu()),
        (Lines{"Break Duration / 5 minutes", "Break Duration / 10 minutes [on]", "Presets / 25m focus / 5m break"}));
}

TEST_F(StatusMenuTest, ChangedDurationsAreMarkedEvenWithoutAReset)
{
    timer().updateDurationsWithoutReset(25, 20);

    EXPECT_EQ(changedLines(freshMenu, settledMenu()),
        (Lines{"Break Duration / 5 minutes", "Break Duration / 20 minutes [on]", "Presets / 25m focus / 5m break"}));
}

TEST_F(StatusMenuTest, WithMusicOffOnlyNoneIsMarkedWhateverIsStored)
{
    settings.focusMusicPreset.set(MusicPreset::lush);
    EXPECT_EQ(settledMenu(), freshMenu);

    choose("Focus Music / Groove Salad");
    EXPECT_EQ(changedLines(freshMenu, menu()), (Lines{"Focus Music / None", "Focus Music / Groove Salad [on]"}));

    choose("Focus Music / None");
    EXPECT_EQ(menu(), freshMenu);
}

TEST_F(StatusMenuTest, EachPhaseHasMarksOfItsOwn)
{
    settings.enableFocusMusic.set(true);
    settings.enableBreakMusic.set(true);
    settings.breakMusicPreset.set(MusicPreset::custom);

    EXPECT_EQ(changedLines(freshMenu, settledMenu()),
        (Lines{
            "Focus Music / None", "Focus Music / Lo-Fi [on]", "Break Music / None", "Break Music / Custom URL [on]"}));
}

TEST_F(StatusMenuTest, AutoTransitionIsMarkedWhenBuiltAndOnEveryRefresh)
{
    settings.autoTransition.set(true);
    EXPECT_EQ(changedLines(freshMenu, settledMenu()), Lines{"Auto-Transition [on]"});

    timer().autoTransition.set(false);
    EXPECT_EQ(changedLines(freshMenu, settledMenu()), Lines{"Auto-Transition [on]"}) << "no refresh yet";

    topMenu().willOpen();
    EXPECT_EQ(menu(), freshMenu);
}

TEST_F(StatusMenuTest, AllChangesOfATurnAreReportedAtOnce)
{
    timer().start();
    settledMenu();
    statusItem->menuChanges = 0;

    timer().updateDurations(50, 10);
    settledMenu();
    EXPECT_EQ(statusItem->menuChanges, 1) << "new durations";

    choose("Auto-Transition");
    EXPECT_EQ(statusItem->menuChanges, 2) << "a choice that the timer does not announce";
}

TEST_F(StatusMenuTest, ARefreshThatChangesNothingIsNotReported)
{
    timer().start();
    settledMenu();
    statusItem->menuChanges = 0;

    tick(60);

    EXPECT_EQ(statusItem->menuChanges, 0);
}

} // namespace velto
