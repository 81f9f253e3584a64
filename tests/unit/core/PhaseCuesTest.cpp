// SPDX-License-Identifier: MIT
#include "TimerFixture.h"

namespace velto {

using namespace std::chrono_literals;

using PhaseCuesTest = TimerFixture;

// Sounds and the notification

TEST_F(PhaseCuesTest, TheCountdownCueSoundsOnTicksFiftyOneToSixtyOfAMinute)
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

TEST_F(PhaseCuesTest, TheCuePlaysBeforeTheSecondIsCounted)
{
    settings.focusMinutes.set(1);
    startAndTick(50);

    runLoop.advance(1s);

    EXPECT_EQ(log.take(), (Lines{"sound Tink", "remainingSeconds=9"}));
}

TEST_F(PhaseCuesTest, AChangedCountdownSoundIsUsedOnTheNextTick)
{
    settings.focusMinutes.set(1);
    startAndTick(51);

    settings.countdownSound.set(SoundOption::pop);
    runLoop.advance(1s);
    settings.countdownSound.set(SoundOption::none);
    runLoop.advance(1s);

    EXPECT_EQ(sounds.asked, (Lines{"Tink", "Pop"}));
}

TEST_F(PhaseCuesTest, ABreakEndsWithItsOwnSoundAndReturnsToFocus)
{
    settings.breakMinutes.set(1);
    timer().switchToPhase(PomodoroPhase::breakTime);
    startAndTick(60);

    runLoop.advance(1s);

    EXPECT_EQ(log.take(),
        (Lines{"isRunning=false", "isPlaying=false", "isPlaying=false", "currentURL=absent", "sound Submarine",
            "completed break", "phase=focus", "remainingSeconds=1500", "hasStarted=false"}));
}

TEST_F(PhaseCuesTest, CompletionIsPostedWhileTheTimerStillShowsTheEndedPhase)
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

TEST_F(PhaseCuesTest, CompletionIsPostedAlsoWhenTheEndSoundIsOff)
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

// Music

TEST_F(PhaseCuesTest, MusicThatIsOffDuringTheBreakReturnsWithTheFocus)
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

TEST_F(PhaseCuesTest, AnEmptyCustomAddressPlaysNothingAndReportsNothing)
{
    useMusic();
    settings.focusMusicPreset.set(MusicPreset::custom);
    testing::internal::CaptureStdout();

    timer().start();

    EXPECT_EQ(testing::internal::GetCapturedStdout(), "");
    EXPECT_EQ(log.take(), (Lines{"isRunning=true", "hasStarted=true"}));
    EXPECT_TRUE(players.opened.empty());
}

TEST_F(PhaseCuesTest, StartingMusicThatIsOffOrHasNoAddressLeavesThePlayerAsItIs)
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

TEST_F(PhaseCuesTest, StartingMusicDependsOnThePhaseAndNotOnRunning)
{
    useMusic();
    settings.musicVolume.set(1.5F);
    timer().switchToPhase(PomodoroPhase::breakTime);

    timer().startMusicForCurrentPhase();

    EXPECT_FALSE(timer().isRunning());
    EXPECT_EQ(players.opened, Lines{ambient});
    EXPECT_EQ(players.calls, (Lines{"1 made", "1 volume 1.5", "1 play"}));
}

TEST_F(PhaseCuesTest, ResetSwitchAndNewDurationsStopTheMusic)
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

} // namespace velto
