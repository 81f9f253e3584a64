// SPDX-License-Identifier: MIT
#include "SettingsFormFixture.h"
#include "support/EverySetting.h"

namespace velto {

using namespace std::chrono_literals;
using testing::ElementsAre;
using testing::ElementsAreArray;
using testing::IsEmpty;

using SettingsFormTest = SettingsFormFixture;

TEST_F(SettingsFormTest, StartsFromTheCurrentSettings)
{
    setEvery(settings, others);

    open();

    EXPECT_EQ(valuesOf(*form), others);
    EXPECT_THAT(calls, IsEmpty());
}

TEST_F(SettingsFormTest, AnOpenFormIgnoresLaterChangesOfTheSettings)
{
    open();

    settings.focusMinutes.set(50);
    settings.enableFocusMusic.set(true);

    EXPECT_EQ(form->focusMinutes(), 25);
    EXPECT_FALSE(form->enableFocusMusic());
}

TEST_F(SettingsFormTest, OnlyTheVolumeTakesEffectBeforeApply)
{
    open();

    form->focusMinutes.set(10);
    form->breakMinutes.set(6);
    form->autoTransition.set(true);
    form->countdownSound.set(SoundOption::none);
    form->focusMusicPreset.set(MusicPreset::custom);
    form->focusCustomURL.set("http://x");
    form->enableFocusMusic.set(true);
    form->musicVolume.set(1);

    EXPECT_THAT(calls, IsEmpty());
    EXPECT_EQ(settings.focusMinutes(), 25);
    EXPECT_EQ(settings.musicVolume(), 0.25F);
}

TEST_F(SettingsFormTest, ApplyingAnUntouchedFormWritesAllThirteenSettingsAndCallsNothing)
{
    settings.focusMinutes.set(31);
    settings.focusCustomURL.set("kept");
    timer().start();
    open();

    form->apply();

    EXPECT_THAT(calls, ElementsAreArray(thirteenWrites));
    EXPECT_EQ(store.value<std::int64_t>("focusMinutes"), 31);
    EXPECT_EQ(store.value<std::int64_t>("breakMinutes"), 5);
    EXPECT_EQ(store.value<bool>("autoTransition"), false);
    EXPECT_EQ(store.value<std::string>("focusCustomURL"), "kept");
    EXPECT_EQ(store.value<std::string>("breakCustomURL"), "");
    EXPECT_EQ(store.value<bool>("enableFocusMusic"), false);
    EXPECT_EQ(store.value<float>("musicVolume"), 0.25F);
    EXPECT_EQ(store.value<Blob>("breakEndSound"), (Blob{'"', 'S', 'u', 'b', 'm', 'a', 'r', 'i', 'n', 'e', '"'}));
    EXPECT_EQ(store.value<Blob>("focusMusicPreset"), (Blob{'"', 'L', 'o', '-', 'F', 'i', '"'}));
}

TEST_F(SettingsFormTest, ApplyingWritesEveryEditedValue)
{
    open();
    setEvery(*form, others);

    form->apply();

    EXPECT_EQ(valuesOf(settings), others);
}

TEST_F(SettingsFormTest, EachPhasesMusicIsSwitchedSeparately)
{
    settings.enableBreakMusic.set(true);
    open();
    EXPECT_FALSE(form->enableFocusMusic());
    EXPECT_TRUE(form->enableBreakMusic());

    form->enableFocusMusic.set(true);
    form->enableBreakMusic.set(false);
    form->apply();

    EXPECT_TRUE(settings.enableFocusMusic());
    EXPECT_FALSE(settings.enableBreakMusic());
}

// Durations.

TEST_F(SettingsFormTest, NewBreakMinutesLeaveARunningFocusAlone)
{
    timer().start();
    runLoop.advance(30s);
    open();
    form->breakMinutes.set(7);

    EXPECT_THAT(applied(), ElementsAreArray(quietUpdate));
    EXPECT_TRUE(timer().isRunning());
    EXPECT_EQ(timer().remainingSeconds(), 1500 - 30);
    EXPECT_EQ(timer().breakDuration(), 7 * 60);
}

TEST_F(SettingsFormTest, NewFocusMinutesRestartARunningFocus)
{
    timer().start();
    runLoop.advance(30s);
    open();
    form->focusMinutes.set(10);

    EXPECT_THAT(applied(), ElementsAreArray(resettingUpdate));
    EXPECT_FALSE(timer().isRunning());
    EXPECT_EQ(timer().remainingSeconds(), 600);
}

TEST_F(SettingsFormTest, ChangingBothDurationsDuringAFocusResetsOnce)
{
    open();
    form->focusMinutes.set(10);
    form->breakMinutes.set(2);

    EXPECT_THAT(applied(), ElementsAreArray(resettingUpdate));
    EXPECT_EQ(timer().focusDuration(), 600);
    EXPECT_EQ(timer().breakDuration(), 120);
}

TEST_F(SettingsFormTest, ChangingBothDurationsDuringABreakResetsOnce)
{
    timer().switchToPhase(PomodoroPhase::breakTime);
    open();
    form->focusMinutes.set(10);
    form->breakMinutes.set(2);

    EXPECT_THAT(applied(), ElementsAreArray(resettingUpdate));
    EXPECT_EQ(timer().remainingSeconds(), 120);
}

TEST_F(SettingsFormTest, NewFocusMinutesLeaveARunningBreakAlone)
{
    timer().switchToPhase(PomodoroPhase::breakTime);
    timer().start();
    open();
    form->focusMinutes.set(10);

    EXPECT_THAT(applied(), ElementsAreArray(quietUpdate));
    EXPECT_TRUE(timer().isRunning());
    EXPECT_EQ(timer().focusDuration(), 600);
}

TEST_F(SettingsFormTest, NewBreakMinutesRestartARunningBreak)
{
    timer().switchToPhase(PomodoroPhase::breakTime);
    timer().start();
    open();
    form->breakMinutes.set(2);

    EXPECT_THAT(applied(), ElementsAreArray(resettingUpdate));
    EXPECT_EQ(timer().remainingSeconds(), 120);
}

TEST_F(SettingsFormTest, ChangesAreRelativeToTheSettingNotTheOpenedValue)
{
    open();
    settings.focusMinutes.set(50);
    calls.clear();

    EXPECT_THAT(applied(), ElementsAreArray(resettingUpdate));
    EXPECT_EQ(timer().focusDuration(), 1500);
}

TEST_F(SettingsFormTest, CanBeAppliedFromOneMinuteUp)
{
    open();

    for (const auto& [focus, brk, expected] : std::vector<std::tuple<std::int64_t, std::int64_t, bool>>{{25, 5, true},
             {1, 1, true}, {0, 5, false}, {25, 0, false}, {-1, 5, false}, {25, -7, false}, {0, 0, false}}) {
        form->focusMinutes.set(focus);
        form->breakMinutes.set(brk);
        EXPECT_EQ(form->canApply(), expected) << focus << ' ' << brk;
    }
}

// Auto-transition.

TEST_F(SettingsFormTest, AutoTransitionIsStoredButTheRunningTimerKeepsItsOwn)
{
    settings.focusMinutes.set(1);
    timer().start();
    open();
    form->autoTransition.set(true);

    EXPECT_THAT(applied(), IsEmpty());

    EXPECT_EQ(store.value<bool>("autoTransition"), true);
    EXPECT_FALSE(timer().autoTransition());
    runLoop.advance(61s);
    EXPECT_EQ(timer().phase(), PomodoroPhase::breakTime);
    EXPECT_FALSE(timer().isRunning());

    PomodoroTimer nextLaunch{settings, runLoop, players};
    EXPECT_TRUE(nextLaunch.autoTransition());
}

// Sounds and texts.

TEST_F(SettingsFormTest, PreviewPlaysTheSoundAndChangesNothing)
{
    open();

    form->preview(SoundOption::submarine);
    form->preview(SoundOption::none);

    EXPECT_THAT(sounds.played, ElementsAre("Submarine"));
    EXPECT_THAT(calls, IsEmpty());
    EXPECT_EQ(form->countdownSound(), SoundOption::tink);
}

TEST(PercentTextTest, RoundsTowardZero)
{
    EXPECT_EQ(percentText(0.25F), "25%");
    EXPECT_EQ(percentText(0.999F), "99%");
    EXPECT_EQ(percentText(0.0F), "0%");
    EXPECT_EQ(percentText(0.009F), "0%");
    EXPECT_EQ(percentText(1.0F), "100%");
    EXPECT_EQ(percentText(1.7F), "170%");
    EXPECT_EQ(percentText(-0.009F), "0%");
    EXPECT_EQ(percentText(-0.259F), "-25%");
}

TEST(PercentTextTest, TheFloatNearestToAPercentageIsThatPercentage)
{
    for (int percent = 0; percent <= 100; ++percent)
        EXPECT_EQ(percentText(static_cast<float>(percent / 100.0)), std::to_string(percent) + '%');
    EXPECT_EQ(percentText(std::nextafter(0.53F, 0.0F)), "52%");
}

} // namespace velto
