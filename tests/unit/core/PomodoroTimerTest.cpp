// SPDX-License-Identifier: MIT
#include "TimerFixture.h"

#include <csignal>

namespace velto {

using namespace std::chrono_literals;

using PomodoroTimerTest = TimerFixture;

// Construction

TEST_F(PomodoroTimerTest, BeginsInFocusAtFullLengthAndAtRest)
{
    expectReady(PomodoroPhase::focus, 1500);
    EXPECT_EQ(timer().focusDuration(), 1500);
    EXPECT_EQ(timer().breakDuration(), 300);
    EXPECT_FALSE(timer().autoTransition());
    EXPECT_FALSE(timer().musicPlayer().isPlaying());
}

TEST_F(PomodoroTimerTest, ReadsTheSettingsOnceAndWritesNone)
{
    settings.focusMinutes.set(40);
    settings.breakMinutes.set(7);
    settings.autoTransition.set(true);
    store.writes.clear();

    const PomodoroTimer made{settings, runLoop, players};
    EXPECT_TRUE(store.writes.empty());
    settings.focusMinutes.set(1);
    settings.breakMinutes.set(1);

    EXPECT_EQ(made.remainingSeconds(), 2400);
    EXPECT_EQ(made.focusDuration(), 2400);
    EXPECT_EQ(made.breakDuration(), 420);
    EXPECT_TRUE(made.autoTransition());
}

TEST_F(PomodoroTimerTest, AStoredZeroEndsThePhaseOnTheFirstTickWithoutACountdownCue)
{
    settings.focusMinutes.set(0);
    timer().start();
    EXPECT_EQ(timer().remainingSeconds(), 0);

    runLoop.advance(1s);

    expectReady(PomodoroPhase::breakTime, 300);
    EXPECT_EQ(sounds.played, Lines{"Glass"});
}

TEST_F(PomodoroTimerTest, AStoredNegativeLengthIsKept)
{
    settings.breakMinutes.set(-2);

    EXPECT_EQ(timer().breakDuration(), -120);
}

// Start and pause

TEST_F(PomodoroTimerTest, StartSetsRunningThenStarted)
{
    timer().start();

    EXPECT_EQ(log.take(), (Lines{"isRunning=true", "hasStarted=true"}));
    EXPECT_EQ(runLoop.liveTimers(), 1U);
}

TEST_F(PomodoroTimerTest, StartOpensTheMusicAfterRunningAndStarted)
{
    useMusic();

    timer().start();

    EXPECT_EQ(log.take(),
        (Lines{"isRunning=true", "hasStarted=true", "isPlaying=false", "currentURL=absent", "currentURL=" + lush,
            "isPlaying=true"}));
}

TEST_F(PomodoroTimerTest, TheFirstTickComesOneSecondAfterStart)
{
    timer().start();
    log.take();

    runLoop.advance(999ms);
    EXPECT_TRUE(log.take().empty());

    runLoop.advance(1ms);
    EXPECT_EQ(log.take(), Lines{"remainingSeconds=1499"});

    runLoop.advance(3s);
    EXPECT_EQ(log.take(), (Lines{"remainingSeconds=1498", "remainingSeconds=1497", "remainingSeconds=1496"}));
}

TEST_F(PomodoroTimerTest, StartingTwiceMakesOneTimerAndLeavesTheMusicAlone)
{
    useMusic();
    timer().start();
    runLoop.advance(500ms);
    log.take();

    timer().start();

    EXPECT_TRUE(log.take().empty());
    EXPECT_EQ(players.opened.size(), 1U);
    EXPECT_EQ(runLoop.liveTimers(), 1U);
    runLoop.advance(500ms);
    EXPECT_EQ(timer().remainingSeconds(), 1499);
}

TEST_F(PomodoroTimerTest, PauseStopsRunningAndPausesTheMusic)
{
    startAndTick(3);

    timer().pause();

    EXPECT_EQ(log.take(), (Lines{"isRunning=false", "isPlaying=false"}));
    EXPECT_EQ(runLoop.liveTimers(), 0U);
}

TEST_F(PomodoroTimerTest, PauseKeepsTheRemainingTimeAndStartResumesIt)
{
    startAndTick(1500 - (12 * 60 + 34));
    timer().pause();
    runLoop.advance(1min);
    EXPECT_EQ(timer().remainingSeconds(), 12 * 60 + 34);
    EXPECT_TRUE(timer().hasStarted());
    log.take();

    timer().start();
    runLoop.advance(1s);

    EXPECT_EQ(log.take(), (Lines{"isRunning=true", "hasStarted=true", "remainingSeconds=753"}));
}

TEST_F(PomodoroTimerTest, PauseWhileReadyOnlyNotifies)
{
    timer().pause();

    EXPECT_EQ(log.take(), (Lines{"isRunning=false", "isPlaying=false"}));
    expectReady(PomodoroPhase::focus, 1500);
}

TEST_F(PomodoroTimerTest, PauseKeepsTheStreamAndStartReopensIt)
{
    useMusic();
    startAndTick(1);

    timer().pause();
    EXPECT_EQ(timer().musicPlayer().currentURL(), lush);
    timer().start();

    EXPECT_EQ(players.opened, (Lines{lush, lush}));
    EXPECT_EQ(players.calls,
        (Lines{
            "1 made", "1 volume 0.25", "1 play", "1 pause", "1 pause", "1 gone", "2 made", "2 volume 0.25", "2 play"}));
}

TEST_F(PomodoroTimerTest, DestroyingItStopsTheTicks)
{
    startAndTick(1);

    m_timer.reset();

    EXPECT_EQ(runLoop.liveTimers(), 0U);
}

// Reset and choice of the phase

TEST_F(PomodoroTimerTest, ResetReturnsThePhaseToItsFullLengthInOrder)
{
    startAndTick(5);

    timer().reset();

    EXPECT_EQ(log.take(),
        (Lines{"isRunning=false", "isPlaying=false", "hasStarted=false", "remainingSeconds=1500", "isPlaying=false",
            "currentURL=absent"}));
    expectReady(PomodoroPhase::focus, 1500);
}

TEST_F(PomodoroTimerTest, ResetDuringABreakStaysInTheBreak)
{
    timer().switchToPhase(PomodoroPhase::breakTime);
    startAndTick(5);

    timer().reset();

    expectReady(PomodoroPhase::breakTime, 300);
}

TEST_F(PomodoroTimerTest, SwitchingToTheCurrentPhaseIsAReset)
{
    startAndTick(5);
    timer().reset();
    const auto reset = log.take();
    startAndTick(5);

    timer().switchToPhase(PomodoroPhase::focus);

    EXPECT_EQ(log.take(), reset);
}

TEST_F(PomodoroTimerTest, SwitchingToTheOtherPhaseStopsAndNeverStarts)
{
    timer().autoTransition.set(true);
    startAndTick(5);

    timer().switchToPhase(PomodoroPhase::breakTime);

    EXPECT_EQ(log.take(),
        (Lines{"isRunning=false", "isPlaying=false", "isPlaying=false", "currentURL=absent", "phase=break",
            "hasStarted=false", "remainingSeconds=300"}));
    expectReady(PomodoroPhase::breakTime, 300);
}

// Ticks and the end of a phase

TEST_F(PomodoroTimerTest, AOneMinutePhaseEndsOnTheSixtyFirstTick)
{
    settings.focusMinutes.set(1);
    timer().start();

    runLoop.advance(60s);
    EXPECT_EQ(timer().remainingSeconds(), 0);
    EXPECT_EQ(timer().phase(), PomodoroPhase::focus);
    EXPECT_TRUE(timer().isRunning());

    runLoop.advance(1s);
    expectReady(PomodoroPhase::breakTime, 300);
}

TEST_F(PomodoroTimerTest, APhaseEndsInOrder)
{
    settings.focusMinutes.set(1);
    startAndTick(60);

    runLoop.advance(1s);

    EXPECT_EQ(log.take(),
        (Lines{"isRunning=false", "isPlaying=false", "isPlaying=false", "currentURL=absent", "sound Glass",
            "completed focus", "phase=break", "remainingSeconds=300", "hasStarted=false"}));
}

TEST_F(PomodoroTimerTest, WithoutAutoTransitionTheOtherPhaseWaitsAtFullLengthWithoutMusic)
{
    useMusic();

    finishPhase();

    expectReady(PomodoroPhase::breakTime, 300);
    EXPECT_FALSE(timer().musicPlayer().isPlaying());
    EXPECT_EQ(timer().musicPlayer().currentURL(), std::nullopt);
    EXPECT_EQ(players.opened, Lines{lush});
    runLoop.advance(10min);
    expectReady(PomodoroPhase::breakTime, 300);
}

TEST_F(PomodoroTimerTest, WithAutoTransitionTheOtherPhaseRunsWithItsMusic)
{
    useMusic();
    settings.focusMinutes.set(1);
    settings.autoTransition.set(true);
    startAndTick(60);

    runLoop.advance(1s);

    EXPECT_EQ(log.take(),
        (Lines{"isRunning=false", "isPlaying=false", "isPlaying=false", "currentURL=absent", "sound Glass",
            "completed focus", "phase=break", "remainingSeconds=300", "hasStarted=false", "isRunning=true",
            "hasStarted=true", "isPlaying=false", "currentURL=absent", "currentURL=" + ambient, "isPlaying=true"}));
    EXPECT_EQ(runLoop.liveTimers(), 1U);
    runLoop.advance(999ms);
    EXPECT_EQ(timer().remainingSeconds(), 300);
    runLoop.advance(1ms);
    EXPECT_EQ(timer().remainingSeconds(), 299);
}

TEST_F(PomodoroTimerTest, AutoTransitionIsReadWhenThePhaseEnds)
{
    timer().start();
    timer().autoTransition.set(true);
    finishPhase();
    EXPECT_TRUE(timer().isRunning());

    timer().autoTransition.set(false);
    finishPhase();
    expectReady(PomodoroPhase::focus, 1500);
}

// Durations

TEST_F(PomodoroTimerTest, UpdatingTheDurationsResetsInOrder)
{
    startAndTick(5);

    timer().updateDurations(50, 10);

    EXPECT_EQ(log.take(),
        (Lines{"isRunning=false", "isPlaying=false", "isPlaying=false", "currentURL=absent", "focusDuration=3000",
            "breakDuration=600", "remainingSeconds=3000", "hasStarted=false", "stored focusMinutes",
            "stored breakMinutes"}));
    expectReady(PomodoroPhase::focus, 3000);
    EXPECT_EQ(settings.focusMinutes(), 50);
    EXPECT_EQ(settings.breakMinutes(), 10);
}

TEST_F(PomodoroTimerTest, UpdatingTheDurationsKeepsTheBreak)
{
    timer().switchToPhase(PomodoroPhase::breakTime);
    startAndTick(5);

    timer().updateDurations(50, 10);

    expectReady(PomodoroPhase::breakTime, 600);
}

TEST_F(PomodoroTimerTest, LessThanAMinuteRunsAsOneButIsStoredAsGiven)
{
    timer().updateDurations(0, 5);
    EXPECT_EQ(timer().focusDuration(), 60);
    EXPECT_EQ(timer().remainingSeconds(), 60);
    EXPECT_EQ(settings.focusMinutes(), 0);
    EXPECT_EQ(store.object("focusMinutes"), StoredValue(std::int64_t{0}));

    timer().updateDurations(5, -7);
    EXPECT_EQ(timer().breakDuration(), 60);
    EXPECT_EQ(settings.breakMinutes(), -7);

    timer().updateDurationsWithoutReset(-1, 0);
    EXPECT_EQ(timer().focusDuration(), 60);
    EXPECT_EQ(timer().breakDuration(), 60);
    EXPECT_EQ(settings.focusMinutes(), -1);
    EXPECT_EQ(settings.breakMinutes(), 0);
}

TEST_F(PomodoroTimerTest, UpdatingWithoutResetOnlySetsAndStoresTheDurations)
{
    startAndTick(5);

    timer().updateDurationsWithoutReset(50, 10);

    EXPECT_EQ(
        log.take(), (Lines{"focusDuration=3000", "breakDuration=600", "stored focusMinutes", "stored breakMinutes"}));
    EXPECT_EQ(settings.focusMinutes(), 50);
    EXPECT_EQ(settings.breakMinutes(), 10);
}

TEST_F(PomodoroTimerTest, AShorterBreakLeavesTheRunningFocusAndItsMusicUndisturbed)
{
    useMusic();
    startAndTick(500);

    timer().updateDurationsWithoutReset(25, 3);

    EXPECT_TRUE(timer().isRunning());
    EXPECT_TRUE(timer().hasStarted());
    EXPECT_EQ(players.calls, (Lines{"1 made", "1 volume 0.25", "1 play"}));
    runLoop.advance(1s);
    EXPECT_EQ(timer().remainingSeconds(), 999);
    finishPhase();
    expectReady(PomodoroPhase::breakTime, 180);
}

TEST_F(PomodoroTimerTest, TheCountdownIsNotLimitedToAShorterDuration)
{
    startAndTick(5);

    timer().updateDurationsWithoutReset(1, 5);

    EXPECT_EQ(timer().remainingSeconds(), 1495);
}

// Auto-transition

TEST_F(PomodoroTimerTest, EveryChangeOfAutoTransitionIsStored)
{
    timer().autoTransition.set(true);
    EXPECT_TRUE(settings.autoTransition());

    timer().autoTransition.set(false);
    EXPECT_FALSE(settings.autoTransition());

    timer().autoTransition.set(false);
    EXPECT_EQ(storedKeys(), Lines(3, "autoTransition"));
}

TEST_F(PomodoroTimerTest, ChangingTheSettingDoesNotAffectTheTimer)
{
    timer();

    settings.autoTransition.set(true);
    EXPECT_FALSE(timer().autoTransition());

    finishPhase();
    EXPECT_FALSE(timer().isRunning());
}

// Arithmetic

using PomodoroTimerDeathTest = PomodoroTimerTest;

TEST_F(PomodoroTimerDeathTest, ADurationTooLongForSecondsEndsTheProcess)
{
    const std::int64_t tooLong = 153722867280912931;
    const auto* message = "velto: fatal: arithmetic overflow in 153722867280912931 \\* 60";
    timer();

    EXPECT_EXIT(timer().updateDurations(tooLong, 5), testing::KilledBySignal(SIGABRT), message);
    EXPECT_EXIT(timer().updateDurationsWithoutReset(5, tooLong), testing::KilledBySignal(SIGABRT), message);
    settings.breakMinutes.set(tooLong);
    EXPECT_EXIT((PomodoroTimer{settings, runLoop, players}), testing::KilledBySignal(SIGABRT), message);
}

} // namespace velto
