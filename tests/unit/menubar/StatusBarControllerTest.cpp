// SPDX-License-Identifier: MIT
#include "menubar/StatusBarController.h"

#include "StatusBarFixture.h"
#include "observation/NotificationCenter.h"

namespace velto {

using namespace std::chrono_literals;

using StatusBarControllerTest = StatusBarFixture;

namespace {

constexpr ClickEvent leftClick{.kind = ClickEvent::Kind::leftMouseUp};
constexpr ClickEvent rightClick{.kind = ClickEvent::Kind::rightMouseUp};
constexpr ClickEvent controlLeftClick{.kind = ClickEvent::Kind::leftMouseUp, .control = true};
constexpr ClickEvent controlRightClick{.kind = ClickEvent::Kind::rightMouseUp, .control = true};
constexpr ClickEvent otherClick{.kind = ClickEvent::Kind::otherMouseUp};
constexpr ClickEvent controlOtherClick{.kind = ClickEvent::Kind::otherMouseUp, .control = true};

} // namespace

// Construction and title

TEST_F(StatusBarControllerTest, TheButtonShowsTheTimeAtOnce)
{
    EXPECT_EQ(button().fontSize, 12);
    EXPECT_EQ(button().toolTip, "Velto");
    EXPECT_EQ(button().titles, Lines{"25:00"}) << "before the first delivery";
    EXPECT_EQ(button().appearsDisabled, std::vector<bool>{false});
    EXPECT_TRUE(button().action);
    EXPECT_TRUE(statusItem->menu);
}

TEST_F(StatusBarControllerTest, MakesNoPanelOrWindowAtFirst)
{
    controller();
    runLoop.runTurns();

    EXPECT_EQ(panelsMade, 0);
    EXPECT_TRUE(windowsMade.empty());
}

TEST_F(StatusBarControllerTest, TheTitleShowsUnlimitedMinutesAndSeconds)
{
    const std::vector<std::pair<std::int64_t, std::string>> cases{
        {1, "01:00"}, {25, "25:00"}, {90, "90:00"}, {100, "100:00"}};
    for (const auto& [minutes, title] : cases) {
        timer().updateDurations(minutes, 5);
        runLoop.runTurns();

        EXPECT_EQ(button().title(), title);
    }
}

TEST_F(StatusBarControllerTest, TheTitleFollowsTheCountdownDownToZero)
{
    settings.focusMinutes.set(1);
    timer().start();

    tick(1);
    EXPECT_EQ(button().title(), "00:59");

    tick(59);
    EXPECT_EQ(button().title(), "00:00");

    tick(1);
    EXPECT_EQ(button().title(), "05:00");
}

TEST_F(StatusBarControllerTest, TheTitleIsWrittenOnceATickAndNeverLooksDisabled)
{
    timer().start();
    runLoop.runTurns();
    button().titles.clear();
    button().appearsDisabled.clear();

    tick(3);

    EXPECT_EQ(button().titles, (Lines{"24:59", "24:58", "24:57"}));
    EXPECT_EQ(button().appearsDisabled, std::vector<bool>(3, false));
}

TEST_F(StatusBarControllerTest, AChangeOfPhaseRewritesTheTitleEvenWithTheSameText)
{
    timer().updateDurations(5, 5);
    runLoop.runTurns();
    button().titles.clear();

    timer().switchToPhase(PomodoroPhase::breakTime);
    runLoop.runTurns();

    EXPECT_EQ(button().titles, Lines{"05:00"});
}

TEST_F(StatusBarControllerTest, TheTitleIsWrittenInTheTurnAfterTheChange)
{
    runLoop.runTurns();
    timer().updateDurations(50, 10);
    EXPECT_EQ(button().title(), "25:00");

    runLoop.runTurns();
    EXPECT_EQ(button().title(), "50:00");
}

TEST_F(StatusBarControllerTest, WithoutAButtonTheMenuAndTheSubscriptionsStillWork)
{
    statusItemHasButton = false;

    EXPECT_EQ(settledMenu().front(), "Start Focus");
    timer().start();
    EXPECT_EQ(settledMenu().front(), "Pause Focus");

    application.event = rightClick;
    controller().handleStatusItemClick();
    EXPECT_EQ(statusItem->popUps, 0);
}

TEST_F(StatusBarControllerTest, DeliversNothingOnceDestroyed)
{
    timer().start();

    m_controller.reset();
    runLoop.runTurns();
    m_timer->pause();
    NotificationCenter::defaultCenter().post(pomodoroSessionCompleted, PomodoroPhase::focus);
    runLoop.runTurns();

    EXPECT_EQ(runLoop.waitingWorks(), 0U);
    EXPECT_EQ(panelsMade, 0);
}

TEST_F(StatusBarControllerTest, NoWorkWaitsWhileNothingChanges)
{
    controller();
    runLoop.runTurns();
    const auto changes = statusItem->menuChanges;

    runLoop.advance(1min);

    EXPECT_EQ(runLoop.liveTimers(), 0U);
    EXPECT_EQ(statusItem->menuChanges, changes);
}

// Clicks

TEST_F(StatusBarControllerTest, EveryClickTogglesThePanelOrOpensTheMenu)
{
    struct Case {
        const char* name;
        std::optional<ClickEvent> event;
        bool opensMenu;
    };
    const std::vector<Case> cases{
        {"left", leftClick, false},
        {"right", rightClick, true},
        {"control-left", controlLeftClick, true},
        {"control-right", controlRightClick, true},
        {"other", otherClick, false},
        {"control-other", controlOtherClick, false},
        {"no event", std::nullopt, false},
    };
    for (const auto& [name, event, opensMenu] : cases) {
        SCOPED_TRACE(name);
        for (const bool wasVisible : {false, true}) {
            if (wasVisible)
                controller().showTimer();
            else
                controller().hideTimer();
            statusItem->popUps = 0;

            application.event = event;
            button().action();

            EXPECT_EQ(statusItem->popUps, opensMenu ? 1 : 0);
            EXPECT_EQ(panel->isVisible(), opensMenu ? wasVisible : !wasVisible);
            EXPECT_FALSE(timer().isRunning());
        }
    }
}

TEST_F(StatusBarControllerTest, ALeftClickShowsThePanelUnderTheItemAndASecondOneHidesIt)
{
    controller();

    click(leftClick);
    EXPECT_TRUE(panel->isVisible());
    EXPECT_EQ(panel->frame, (Rect{1040, 654, 360, 420}));
    EXPECT_EQ(panel->keysIfNeeded, 1);
    EXPECT_EQ(panel->keys, 0);

    click(leftClick);
    EXPECT_FALSE(panel->isVisible());
    EXPECT_EQ(panel->keysIfNeeded, 1);
    EXPECT_EQ(statusItem->popUps, 0);
}

TEST_F(StatusBarControllerTest, AfterTheMenuALeftClickTogglesThePanelAgain)
{
    controller();

    click(rightClick);
    click(leftClick);

    EXPECT_EQ(statusItem->popUps, 1);
    EXPECT_TRUE(panel->isVisible());
}

TEST_F(StatusBarControllerTest, TheMenuIsUpToDateBeforeItOpens)
{
    controller();
    runLoop.runTurns();
    timer().start();
    std::string title;
    statusItem->onPopUp = [&] { title = menu().front(); };

    click(rightClick);

    EXPECT_EQ(title, "Pause Focus") << "though nothing has been delivered yet";
}

TEST_F(StatusBarControllerTest, TheMenuCanBeOpenedWithoutAClick)
{
    controller();

    NotificationCenter::defaultCenter().post(statusBarOpenMenu);

    EXPECT_EQ(statusItem->popUps, 1);
    EXPECT_EQ(panelsMade, 0);
}

TEST_F(StatusBarControllerTest, AMenuOpenedByTheHostIsUpToDateToo)
{
    controller();
    runLoop.runTurns();
    timer().start();

    statusItem->menu->willOpen();

    EXPECT_EQ(menu().front(), "Pause Focus");
}

// The end of a phase

TEST_F(StatusBarControllerTest, AtTheEndOfAPhaseTheHiddenPanelIsShownWithoutActivating)
{
    timer().start();
    tick(1500);
    EXPECT_EQ(panelsMade, 0);

    tick(1);

    EXPECT_TRUE(panel->isVisible());
    EXPECT_EQ(panel->frame, (Rect{1040, 654, 360, 420}));
    EXPECT_EQ(panel->keys + panel->keysIfNeeded, 0);
    EXPECT_EQ(application.activations, 0);
    EXPECT_EQ(statusItem->popUps, 0);
}

TEST_F(StatusBarControllerTest, ThePanelTakesTheKeyboardOnlyOnRequest)
{
    controller().showTimer();
    EXPECT_EQ(panel->keys, 0);

    NotificationCenter::defaultCenter().post(statusBarShowTimer);
    EXPECT_EQ(panel->fronts, 2);
    EXPECT_EQ(panel->keys, 1);
}

TEST_F(StatusBarControllerTest, AtTheEndOfAPhaseTheVisiblePanelStaysAndComesToTheFrontAgain)
{
    controller().showTimer();
    timer().start();

    tick(1501);

    EXPECT_TRUE(panel->isVisible());
    EXPECT_EQ(panel->fronts, 2);
    EXPECT_EQ(panel->outs, 0);
}

TEST_F(StatusBarControllerTest, ThePanelIsShownInTheTurnAfterTheNotification)
{
    controller();

    NotificationCenter::defaultCenter().post("pomodoroSessionCompleted");
    EXPECT_EQ(panelsMade, 0);

    runLoop.runTurns();
    EXPECT_TRUE(panel->isVisible());
}

} // namespace velto
