// SPDX-License-Identifier: MIT
#include "SettingsFormFixture.h"

namespace velto {

using namespace std::chrono_literals;
using testing::ElementsAre;
using testing::IsEmpty;

using SettingsFormMusicTest = SettingsFormFixture;

namespace {

const std::string lush{streamUrl(MusicPreset::lush)};

} // namespace

TEST_F(SettingsFormMusicTest, LeavesTheMusicOfAPausedTimerAlone)
{
    storeMusic(MusicPreset::lofi);
    timer().start();
    timer().pause();
    open();
    form->focusMusicPreset.set(MusicPreset::lush);

    EXPECT_THAT(applied(), IsEmpty());
}

TEST_F(SettingsFormMusicTest, LeavesTheMusicOfAnIdleTimerAlone)
{
    open();
    form->enableFocusMusic.set(true);

    EXPECT_THAT(applied(), IsEmpty());
}

TEST_F(SettingsFormMusicTest, SwitchingTheFocusMusicOnDuringARunningBreakRestartsNothing)
{
    timer().switchToPhase(PomodoroPhase::breakTime);
    timer().start();
    open();
    form->enableFocusMusic.set(true);

    EXPECT_THAT(applied(), IsEmpty());
}

TEST_F(SettingsFormMusicTest, SwitchingTheBreakMusicOffDuringARunningBreakStopsItAndStartsNothing)
{
    storeMusic(MusicPreset::lofi);
    timer().switchToPhase(PomodoroPhase::breakTime);
    timer().start();
    open();
    form->enableBreakMusic.set(false);

    EXPECT_THAT(applied(), ElementsAre("player 1 pause", "player 1 gone", "isPlaying 0", "no URL"));
}

TEST_F(SettingsFormMusicTest, SwitchingTheFocusMusicOnDuringARunningFocusStartsIt)
{
    settings.focusMusicPreset.set(MusicPreset::lush);
    timer().start();
    open();
    form->enableFocusMusic.set(true);
    form->musicVolume.set(0.5F);

    EXPECT_THAT(applied(),
        ElementsAre("isPlaying 0", "no URL",        // stop
            "isPlaying 0", "no URL", "URL " + lush, // play
            "player 1 made", "player 1 volume 0.5", "player 1 play", "isPlaying 1"));
}

TEST_F(SettingsFormMusicTest, ANewSourceOfTheRunningPhaseIsOpenedAtOnce)
{
    storeMusic(MusicPreset::lofi);
    timer().start();
    open();
    form->focusMusicPreset.set(MusicPreset::lush);

    EXPECT_THAT(applied(),
        ElementsAre("player 1 pause", "player 1 gone", "isPlaying 0", "no URL", "isPlaying 0", "no URL", "URL " + lush,
            "player 2 made", "player 2 volume 0.25", "player 2 play", "isPlaying 1"));
}

TEST_F(SettingsFormMusicTest, ANewSourceOfTheOtherPhaseWaitsForItsStart)
{
    storeMusic(MusicPreset::lofi);
    timer().start();
    open();
    form->breakMusicPreset.set(MusicPreset::lush);
    form->enableBreakMusic.set(false);

    EXPECT_THAT(applied(), IsEmpty());
}

TEST_F(SettingsFormMusicTest, ABreakComparesItsOwnSource)
{
    storeMusic(MusicPreset::lofi);
    timer().switchToPhase(PomodoroPhase::breakTime);
    timer().start();
    open();
    EXPECT_THAT(applied(), IsEmpty());

    calls.clear();
    form->focusMusicPreset.set(MusicPreset::lush);
    EXPECT_THAT(applied(), IsEmpty());

    calls.clear();
    form->breakCustomURL.set("http://break/2");
    EXPECT_THAT(applied(), testing::Contains("URL http://break/2"));
}

TEST_F(SettingsFormMusicTest, ANewSourceOfMusicThatIsOffRestartsNothing)
{
    timer().start();
    open();
    form->focusMusicPreset.set(MusicPreset::lush);

    EXPECT_THAT(applied(), IsEmpty());
}

TEST_F(SettingsFormMusicTest, TheStoredCustomAddressTypedAgainIsNoChange)
{
    storeMusic(MusicPreset::custom, "http://radio/1");
    timer().start();
    open();
    form->focusMusicPreset.set(MusicPreset::lofi);
    form->focusMusicPreset.set(MusicPreset::custom);
    form->focusCustomURL.set("http://radio/1");

    EXPECT_THAT(applied(), IsEmpty());
}

TEST_F(SettingsFormMusicTest, TheStoredCustomAddressIsAChangeWhenAnotherPresetWasStored)
{
    storeMusic(MusicPreset::lofi, "http://radio/1");
    timer().start();
    open();
    form->focusMusicPreset.set(MusicPreset::custom);
    form->focusCustomURL.set("http://radio/1");

    EXPECT_THAT(applied(),
        ElementsAre("player 1 pause", "player 1 gone", "isPlaying 0", "no URL", "isPlaying 0", "no URL",
            "URL http://radio/1", "player 2 made", "player 2 volume 0.25", "player 2 play", "isPlaying 1"));
}

TEST_F(SettingsFormMusicTest, AnyOtherCustomAddressIsAChange)
{
    storeMusic(MusicPreset::custom, "http://radio/1");
    timer().start();
    open();
    form->focusCustomURL.set("http://radio/1 ");

    EXPECT_THAT(applied(), testing::Contains("URL http://radio/1 "));
}

TEST_F(SettingsFormMusicTest, ACustomAddressIsNoChangeUnderAnotherPreset)
{
    storeMusic(MusicPreset::lofi, "http://radio/1");
    timer().start();
    open();
    form->focusCustomURL.set("http://radio/2");

    EXPECT_THAT(applied(), IsEmpty());
    EXPECT_EQ(settings.focusCustomURL(), "http://radio/2");
}

TEST_F(SettingsFormMusicTest, AnUnusableAddressIsStoredAndLeavesSilence)
{
    storeMusic(MusicPreset::custom, "http://radio/1");
    timer().start();
    open();
    form->focusCustomURL.set("no address");

    testing::internal::CaptureStdout();
    EXPECT_THAT(
        applied(), ElementsAre("player 1 pause", "player 1 gone", "isPlaying 0", "no URL", "isPlaying 0", "no URL"));
    EXPECT_EQ(testing::internal::GetCapturedStdout(), "Invalid music URL: no address\n");
    EXPECT_EQ(settings.focusCustomURL(), "no address");
}

TEST_F(SettingsFormMusicTest, AnUpdateThatResetsEndsTheMusicForGood)
{
    storeMusic(MusicPreset::lofi);
    timer().start();
    open();
    form->focusMinutes.set(10);
    form->focusMusicPreset.set(MusicPreset::lush);

    const auto done = applied();

    EXPECT_THAT(done, testing::Not(testing::Contains(testing::StartsWith("player 2"))));
    EXPECT_EQ(done.back(), "write breakMinutes");
}

// Loudness.

TEST_F(SettingsFormMusicTest, TheVolumeIsHeardAtOnceAndCancelRestoresIt)
{
    storeMusic(MusicPreset::lofi);
    timer().start();
    open();

    form->musicVolume.set(0.5F);
    form->musicVolume.set(0.75F);
    form->cancel();

    EXPECT_THAT(calls, ElementsAre("player 1 volume 0.5", "player 1 volume 0.75", "player 1 volume 0.25"));
    EXPECT_EQ(settings.musicVolume(), 0.25F);
    EXPECT_FALSE(store.value<float>("musicVolume"));
}

TEST_F(SettingsFormMusicTest, AFormDestroyedUnappliedRestoresTheVolume)
{
    storeMusic(MusicPreset::lofi);
    timer().start();
    open();
    form->musicVolume.set(0.75F);

    form.reset();

    EXPECT_THAT(calls, ElementsAre("player 1 volume 0.75", "player 1 volume 0.25"));
}

TEST_F(SettingsFormMusicTest, AnAppliedOrCancelledFormLeavesTheVolumeAlone)
{
    storeMusic(MusicPreset::lofi);
    timer().start();
    for (const auto& leave : {&SettingsForm::apply, &SettingsForm::cancel}) {
        open();
        (*form.*leave)();
        calls.clear();

        form.reset();

        EXPECT_THAT(calls, IsEmpty());
    }
}

TEST_F(SettingsFormMusicTest, TheVolumeIsLimitedToItsRange)
{
    storeMusic(MusicPreset::lofi);
    settings.musicVolume.set(1.75F);
    timer().start();
    open();

    form->musicVolume.set(-0.5F);
    form->cancel();

    EXPECT_THAT(calls, ElementsAre("player 1 volume 0", "player 1 volume 1"));
}

TEST_F(SettingsFormMusicTest, TheVolumeHasNoEffectWithoutAStream)
{
    open();

    form->musicVolume.set(0.5F);
    form->cancel();

    EXPECT_THAT(calls, IsEmpty());
}

TEST_F(SettingsFormMusicTest, CancelWritesNothing)
{
    timer().start();
    open();
    form->focusMinutes.set(10);
    form->enableFocusMusic.set(true);

    form->cancel();

    EXPECT_THAT(calls, IsEmpty());
    EXPECT_EQ(settings.focusMinutes(), 25);
}

} // namespace velto
