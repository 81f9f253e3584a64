// SPDX-License-Identifier: MIT
#include "core/PomodoroTimer.h"

#include "observation/NotificationCenter.h"
#include "settings/AppSettings.h"
#include "support/ChangeLog.h"
#include "support/FakeKeyValueStore.h"
#include "support/FakeRunLoop.h"
#include "support/FakeSoundLibrary.h"
#include "support/FakeStreamPlayerFactory.h"

#include <gtest/gtest.h>

#include <csignal>
#include <optional>
#include <string>
#include <vector>

namespace velto {

using namespace std::chrono_literals;

class PomodoroTimerTest : public testing::Test {
protected:
    using Lines = std::vector<std::string>;

    /// Made on first use, so that a test can change the settings before. The log has all it does from then on.
    PomodoroTimer& timer()
    {
        if (!m_timer) {
            m_timer.emplace(settings, runLoop, players);
            watch();
        }
        return *m_timer;
    }

    void useMusic()
    {
        settings.enableFocusMusic.set(true);
        settings.focusMusicPreset.set(MusicPreset::lush);
        settings.enableBreakMusic.set(true);
        settings.breakMusicPreset.set(MusicPreset::ambient);
    }

    void startAndTick(std::int64_t ticks)
    {
        timer().start();
        runLoop.advance(std::chrono::seconds(ticks));
        log.take();
    }

    /// From `remainingSeconds` down to the tick that ends the phase.
    void finishPhase()
    {
        timer().start();
        runLoop.advance(std::chrono::seconds(timer().remainingSeconds() + 1));
    }

    void expectReady(PomodoroPhase phase, std::int64_t remaining)
    {
        EXPECT_EQ(timer().phase(), phase);
        EXPECT_EQ(timer().remainingSeconds(), remaining);
        EXPECT_FALSE(timer().isRunning());
        EXPECT_FALSE(timer().hasStarted());
        EXPECT_EQ(runLoop.liveTimers(), 0U);
    }

    [[nodiscard]] Lines storedKeys() const
    {
        Lines keys;
        for (const auto& write : defaults.writes)
            keys.push_back(write.first);
        return keys;
    }

    FakeKeyValueStore defaults;
    FakeSoundLibrary sounds;
    FakeRunLoop runLoop;
    FakeStreamPlayerFactory players;
    AppSettings settings{defaults, sounds};
    ChangeLog log;

    const std::string lush{streamUrl(MusicPreset::lush)};
    const std::string ambient{streamUrl(MusicPreset::ambient)};

    std::optional<PomodoroTimer> m_timer;

private:
    void watch()
    {
        log.observe("remainingSeconds", m_timer->remainingSeconds);
        log.observe("isRunning", m_timer->isRunning);
        log.observe("hasStarted", m_timer->hasStarted);
        log.observe("phase", m_timer->phase);
        log.observe("autoTransition", m_timer->autoTransition);
        log.observe("focusDuration", m_timer->focusDuration);
        log.observe("breakDuration", m_timer->breakDuration);
        log.observe("isPlaying", m_timer->musicPlayer().isPlaying);
        log.observe("currentURL", m_timer->musicPlayer().currentURL);
        log.keep(NotificationCenter::defaultCenter().addObserver(
            pomodoroSessionCompleted, [this](const Notification& notification) {
                log.add("completed " + ChangeLog::text(std::any_cast<PomodoroPhase>(notification.object)));
            }));
        sounds.onPlay = [this] { log.add("sound " + sounds.played.back()); };
        defaults.onWrite = [this] { log.add("stored " + defaults.writes.back().first); };
        defaults.writes.clear();
        players.calls.clear();
    }
};

// Construction

TEST_F(PomodoroTimerTest, BeginsInFocusAtItsFullLengthAndStill)
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
    defaults.writes.clear();

    const PomodoroTimer made{settings, runLoop, players};
    EXPECT_TRUE(defaults.writes.empty());
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

TEST_F(PomodoroTimerTest, AStoredNegativeLengthIsTakenAsItIs)
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

TEST_F(PomodoroTimerTest, PauseKeepsTheStreamAndStartOpensItAnew)
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

TEST_F(PomodoroTimerTest, SwitchingToTheCurrentPhaseIsExactlyReset)
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

TEST_F(PomodoroTimerTest, TheCountdownCueSoundsOnTicksFiftyOneToSixtyOfAMinute)
{
    settings.focusMinutes.set(1);
    timer().start();
    std::vector<int> cues;

    for (int tick = 1; tick <= 61; ++tick) {
        sounds.played.clear();
        runLoop.advance(1s);
        if (sounds.played == Lines{"Tink"})
            cues.push_back(tick);
    }

    EXPECT_EQ(cues, (std::vector<int>{51, 52, 53, 54, 55, 56, 57, 58, 59, 60}));
}

TEST_F(PomodoroTimerTest, TheCueComesBeforeTheSecondIsTaken)
{
    settings.focusMinutes.set(1);
    startAndTick(50);

    runLoop.advance(1s);

    EXPECT_EQ(log.take(), (Lines{"sound Tink", "remainingSeconds=9"}));
}

TEST_F(PomodoroTimerTest, AChangedCountdownSoundIsUsedOnTheNextTick)
{
    settings.focusMinutes.set(1);
    startAndTick(51);

    settings.countdownSound.set(SoundOption::pop);
    runLoop.advance(1s);
    settings.countdownSound.set(SoundOption::none);
    runLoop.advance(1s);

    EXPECT_EQ(sounds.asked, (Lines{"Tink", "Pop"}));
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

TEST_F(PomodoroTimerTest, ABreakEndsWithItsOwnSoundAndReturnsToFocus)
{
    settings.breakMinutes.set(1);
    timer().switchToPhase(PomodoroPhase::breakTime);
    startAndTick(60);

    runLoop.advance(1s);

    EXPECT_EQ(log.take(),
        (Lines{"isRunning=false", "isPlaying=false", "isPlaying=false", "currentURL=absent", "sound Submarine",
            "completed break", "phase=focus", "remainingSeconds=1500", "hasStarted=false"}));
}

TEST_F(PomodoroTimerTest, CompletionIsPostedWhileTheTimerStillShowsTheEndedPhase)
{
    settings.focusMinutes.set(1);
    timer();
    int posts = 0;
    const auto observer
        = NotificationCenter::defaultCenter().addObserver(pomodoroSessionCompleted, [&](const Notification& completed) {
              ++posts;
              EXPECT_EQ(completed.name, "pomodoroSessionCompleted");
              EXPECT_EQ(std::any_cast<PomodoroPhase>(completed.object), PomodoroPhase::focus);
              EXPECT_EQ(timer().phase(), PomodoroPhase::focus);
              EXPECT_FALSE(timer().isRunning());
              EXPECT_TRUE(timer().hasStarted());
              EXPECT_EQ(timer().remainingSeconds(), 0);
              EXPECT_EQ(sounds.played.back(), "Glass");
              EXPECT_EQ(runLoop.liveTimers(), 0U);
          });

    finishPhase();

    EXPECT_EQ(posts, 1);
}

TEST_F(PomodoroTimerTest, CompletionIsPostedAlsoWhenTheEndSoundIsOff)
{
    settings.focusEndSound.set(SoundOption::none);
    settings.countdownSound.set(SoundOption::none);
    timer();
    int posts = 0;
    const auto observer = NotificationCenter::defaultCenter().addObserver(
        pomodoroSessionCompleted, [&](const Notification&) { ++posts; });

    finishPhase();

    EXPECT_EQ(posts, 1);
    EXPECT_TRUE(sounds.asked.empty());
}

TEST_F(PomodoroTimerTest, WithoutAutoTransitionTheOtherPhaseRestsAtItsFullLengthWithoutMusic)
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

TEST_F(PomodoroTimerTest, AutoTransitionIsLookedAtWhenThePhaseEnds)
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
    EXPECT_EQ(defaults.object("focusMinutes"), StoredValue(std::int64_t{0}));

    timer().updateDurations(5, -7);
    EXPECT_EQ(timer().breakDuration(), 60);
    EXPECT_EQ(settings.breakMinutes(), -7);

    timer().updateDurationsWithoutReset(-1, 0);
    EXPECT_EQ(timer().focusDuration(), 60);
    EXPECT_EQ(timer().breakDuration(), 60);
    EXPECT_EQ(settings.focusMinutes(), -1);
    EXPECT_EQ(settings.breakMinutes(), 0);
}

TEST_F(PomodoroTimerTest, UpdatingWithoutResetSetsAndStoresTheDurationsAndNothingElse)
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

TEST_F(PomodoroTimerTest, ChangingTheSettingDoesNotReachTheTimer)
{
    timer();

    settings.autoTransition.set(true);
    EXPECT_FALSE(timer().autoTransition());

    finishPhase();
    EXPECT_FALSE(timer().isRunning());
}

// Music

TEST_F(PomodoroTimerTest, MusicThatIsOffForTheBreakReturnsWithTheFocus)
{
    useMusic();
    settings.enableBreakMusic.set(false);
    settings.autoTransition.set(true);

    finishPhase();
    EXPECT_EQ(timer().phase(), PomodoroPhase::breakTime);
    EXPECT_FALSE(timer().musicPlayer().isPlaying());
    EXPECT_EQ(timer().musicPlayer().currentURL(), std::nullopt);

    finishPhase();
    EXPECT_EQ(timer().phase(), PomodoroPhase::focus);
    EXPECT_TRUE(timer().musicPlayer().isPlaying());
    EXPECT_EQ(players.opened, (Lines{lush, lush}));
}

TEST_F(PomodoroTimerTest, AnEmptyCustomAddressPlaysNothingAndReportsNothing)
{
    useMusic();
    settings.focusMusicPreset.set(MusicPreset::custom);
    testing::internal::CaptureStdout();

    timer().start();

    EXPECT_EQ(testing::internal::GetCapturedStdout(), "");
    EXPECT_EQ(log.take(), (Lines{"isRunning=true", "hasStarted=true"}));
    EXPECT_TRUE(players.opened.empty());
}

TEST_F(PomodoroTimerTest, StartingMusicThatIsOffOrHasNoAddressLeavesThePlayerAsItIs)
{
    useMusic();
    startAndTick(1);

    settings.focusMusicPreset.set(MusicPreset::custom);
    timer().startMusicForCurrentPhase();
    settings.enableFocusMusic.set(false);
    timer().startMusicForCurrentPhase();

    EXPECT_TRUE(timer().musicPlayer().isPlaying());
    EXPECT_EQ(players.calls, (Lines{"1 made", "1 volume 0.25", "1 play"}));
}

TEST_F(PomodoroTimerTest, StartingMusicLooksAtThePhaseAndNotAtRunning)
{
    useMusic();
    settings.musicVolume.set(1.5F);
    timer().switchToPhase(PomodoroPhase::breakTime);

    timer().startMusicForCurrentPhase();

    EXPECT_FALSE(timer().isRunning());
    EXPECT_EQ(players.opened, Lines{ambient});
    EXPECT_EQ(players.calls, (Lines{"1 made", "1 volume 1.5", "1 play"}));
}

TEST_F(PomodoroTimerTest, ResetSwitchAndNewDurationsStopTheMusic)
{
    useMusic();
    const std::vector<std::function<void()>> operations{
        [this] { timer().reset(); },
        [this] { timer().updateDurations(25, 5); },
        [this] { timer().switchToPhase(PomodoroPhase::breakTime); },
    };
    for (const auto& operation : operations) {
        startAndTick(1);
        ASSERT_TRUE(timer().musicPlayer().isPlaying());

        operation();

        EXPECT_FALSE(timer().musicPlayer().isPlaying());
        EXPECT_EQ(timer().musicPlayer().currentURL(), std::nullopt);
    }
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
