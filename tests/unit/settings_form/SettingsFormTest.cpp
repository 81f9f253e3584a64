// SPDX-License-Identifier: MIT
#include "settings_form/SettingsForm.h"

#include "core/PomodoroTimer.h"
#include "settings/AppSettings.h"
#include "support/FakeKeyValueStore.h"
#include "support/FakeRunLoop.h"
#include "support/FakeSoundLibrary.h"
#include "support/FakeStreamPlayerFactory.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cmath>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace velto {

namespace {

using namespace std::chrono_literals;
using testing::ElementsAre;
using testing::ElementsAreArray;
using testing::IsEmpty;

using Calls = std::vector<std::string>;

const Calls resettingUpdate{"isRunning 0", "isPlaying 0", "isPlaying 0", "no URL", "focusDuration", "breakDuration",
    "remainingSeconds", "hasStarted 0", "write focusMinutes", "write breakMinutes"};
const Calls quietUpdate{"focusDuration", "breakDuration", "write focusMinutes", "write breakMinutes"};
const Calls thirteenWrites{"write focusMinutes", "write breakMinutes", "write autoTransition", "write countdownSound",
    "write focusEndSound", "write breakEndSound", "write focusMusicPreset", "write breakMusicPreset",
    "write focusCustomURL", "write breakCustomURL", "write enableFocusMusic", "write enableBreakMusic",
    "write musicVolume"};

const std::string lush{streamUrl(MusicPreset::lush)};

} // namespace

class SettingsFormTest : public testing::Test {
protected:
    Calls calls; ///< Everything that reaches the store, the timer and the players, in order.
    FakeKeyValueStore store;
    FakeSoundLibrary sounds;
    FakeStreamPlayerFactory players;
    FakeRunLoop runLoop;
    std::optional<AppSettings> settings;
    std::optional<PomodoroTimer> timer;
    std::optional<SettingsForm> form;
    std::vector<Subscription> subscriptions;

    void launch()
    {
        settings.emplace(store, sounds);
        timer.emplace(*settings, runLoop, players);
    }

    /// Opens the form and starts to record.
    void open()
    {
        if (!timer)
            launch();
        form.emplace(*settings, *timer);
        store.writes.clear();
        store.onWrite = [this] { calls.push_back("write " + store.writes.back().first); };
        players.calls.clear();
        players.onCall = [this] { calls.push_back("player " + players.calls.back()); };
        record(timer->isRunning, [](bool on) { return "isRunning " + std::to_string(on); });
        record(timer->hasStarted, [](bool on) { return "hasStarted " + std::to_string(on); });
        record(timer->phase, [](auto) { return std::string("phase"); });
        record(timer->remainingSeconds, [](auto) { return std::string("remainingSeconds"); });
        record(timer->focusDuration, [](auto) { return std::string("focusDuration"); });
        record(timer->breakDuration, [](auto) { return std::string("breakDuration"); });
        record(timer->autoTransition, [](auto) { return std::string("autoTransition"); });
        record(timer->musicPlayer().isPlaying, [](bool on) { return "isPlaying " + std::to_string(on); });
        record(timer->musicPlayer().currentURL, [](const auto& url) { return url ? "URL " + *url : "no URL"; });
    }

    /// What apply() does beyond writing the thirteen settings.
    Calls applied()
    {
        form->apply();
        EXPECT_GE(calls.size(), thirteenWrites.size());
        EXPECT_THAT(Calls(calls.begin(), calls.begin() + 13), ElementsAreArray(thirteenWrites));
        return {calls.begin() + 13, calls.end()};
    }

    void storeMusic(MusicPreset preset, const std::string& url = "")
    {
        if (!settings)
            launch();
        settings->enableFocusMusic.set(true);
        settings->focusMusicPreset.set(preset);
        settings->focusCustomURL.set(url);
        settings->enableBreakMusic.set(true);
        settings->breakMusicPreset.set(preset);
        settings->breakCustomURL.set(url);
    }

private:
    template <class Published, class Text>
    void record(const Published& published, Text text)
    {
        subscriptions.push_back(
            published.laterChanges([this, text](const auto& value) { calls.push_back(text(value)); }));
    }
};

TEST_F(SettingsFormTest, StartsFromTheCurrentSettings)
{
    launch();
    settings->focusMinutes.set(40);
    settings->breakMinutes.set(10);
    settings->autoTransition.set(true);
    settings->countdownSound.set(SoundOption::pop);
    settings->focusEndSound.set(SoundOption::hero);
    settings->breakEndSound.set(SoundOption::none);
    settings->focusMusicPreset.set(MusicPreset::lush);
    settings->breakMusicPreset.set(MusicPreset::custom);
    settings->focusCustomURL.set("focus address");
    settings->breakCustomURL.set("break address");
    settings->enableFocusMusic.set(true);
    settings->enableBreakMusic.set(true);
    settings->musicVolume.set(0.5F);

    open();

    EXPECT_EQ(form->focusMinutes(), 40);
    EXPECT_EQ(form->breakMinutes(), 10);
    EXPECT_TRUE(form->autoTransition());
    EXPECT_EQ(form->countdownSound(), SoundOption::pop);
    EXPECT_EQ(form->focusEndSound(), SoundOption::hero);
    EXPECT_EQ(form->breakEndSound(), SoundOption::none);
    EXPECT_EQ(form->focusMusicPreset(), MusicPreset::lush);
    EXPECT_EQ(form->breakMusicPreset(), MusicPreset::custom);
    EXPECT_EQ(form->focusCustomURL(), "focus address");
    EXPECT_EQ(form->breakCustomURL(), "break address");
    EXPECT_TRUE(form->enableFocusMusic());
    EXPECT_TRUE(form->enableBreakMusic());
    EXPECT_EQ(form->musicVolume(), 0.5F);
    EXPECT_THAT(calls, IsEmpty());
}

TEST_F(SettingsFormTest, AnOpenFormIsNotRefreshedByLaterChangesOfTheSettings)
{
    open();

    settings->focusMinutes.set(50);
    settings->enableFocusMusic.set(true);

    EXPECT_EQ(form->focusMinutes(), 25);
    EXPECT_FALSE(form->enableFocusMusic());
}

TEST_F(SettingsFormTest, NothingButTheLoudnessLeavesTheFormBeforeApply)
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
    EXPECT_EQ(settings->focusMinutes(), 25);
    EXPECT_EQ(settings->musicVolume(), 0.25F);
}

TEST_F(SettingsFormTest, ApplyingAnUntouchedFormWritesAllThirteenSettingsAndCallsNothing)
{
    launch();
    settings->focusMinutes.set(31);
    settings->focusCustomURL.set("kept");
    timer->start();
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
    form->focusMinutes.set(999);
    form->breakMinutes.set(1);
    form->autoTransition.set(true);
    form->countdownSound.set(SoundOption::basso);
    form->focusEndSound.set(SoundOption::blow);
    form->breakEndSound.set(SoundOption::bottle);
    form->focusMusicPreset.set(MusicPreset::ambient);
    form->breakMusicPreset.set(MusicPreset::custom);
    form->focusCustomURL.set("a");
    form->breakCustomURL.set(" not an address ");
    form->enableFocusMusic.set(true);
    form->enableBreakMusic.set(true);
    form->musicVolume.set(0.75F);

    form->apply();

    EXPECT_EQ(settings->focusMinutes(), 999);
    EXPECT_EQ(settings->breakMinutes(), 1);
    EXPECT_TRUE(settings->autoTransition());
    EXPECT_EQ(settings->countdownSound(), SoundOption::basso);
    EXPECT_EQ(settings->focusEndSound(), SoundOption::blow);
    EXPECT_EQ(settings->breakEndSound(), SoundOption::bottle);
    EXPECT_EQ(settings->focusMusicPreset(), MusicPreset::ambient);
    EXPECT_EQ(settings->breakMusicPreset(), MusicPreset::custom);
    EXPECT_EQ(settings->focusCustomURL(), "a");
    EXPECT_EQ(settings->breakCustomURL(), " not an address ");
    EXPECT_TRUE(settings->enableFocusMusic());
    EXPECT_TRUE(settings->enableBreakMusic());
    EXPECT_EQ(settings->musicVolume(), 0.75F);
}

// Durations.

TEST_F(SettingsFormTest, OtherBreakMinutesLeaveARunningFocusAlone)
{
    launch();
    timer->start();
    runLoop.advance(30s);
    open();
    form->breakMinutes.set(7);

    EXPECT_THAT(applied(), ElementsAreArray(quietUpdate));
    EXPECT_TRUE(timer->isRunning());
    EXPECT_EQ(timer->remainingSeconds(), 1500 - 30);
    EXPECT_EQ(timer->breakDuration(), 7 * 60);
}

TEST_F(SettingsFormTest, OtherFocusMinutesStartARunningFocusOver)
{
    launch();
    timer->start();
    runLoop.advance(30s);
    open();
    form->focusMinutes.set(10);

    EXPECT_THAT(applied(), ElementsAreArray(resettingUpdate));
    EXPECT_FALSE(timer->isRunning());
    EXPECT_EQ(timer->remainingSeconds(), 600);
}

TEST_F(SettingsFormTest, BothDurationsChangedDuringAFocusTakeOneResettingUpdate)
{
    open();
    form->focusMinutes.set(10);
    form->breakMinutes.set(2);

    EXPECT_THAT(applied(), ElementsAreArray(resettingUpdate));
    EXPECT_EQ(timer->focusDuration(), 600);
    EXPECT_EQ(timer->breakDuration(), 120);
}

TEST_F(SettingsFormTest, BothDurationsChangedDuringABreakTakeOneResettingUpdate)
{
    launch();
    timer->switchToPhase(PomodoroPhase::breakTime);
    open();
    form->focusMinutes.set(10);
    form->breakMinutes.set(2);

    EXPECT_THAT(applied(), ElementsAreArray(resettingUpdate));
    EXPECT_EQ(timer->remainingSeconds(), 120);
}

TEST_F(SettingsFormTest, OtherFocusMinutesLeaveARunningBreakAlone)
{
    launch();
    timer->switchToPhase(PomodoroPhase::breakTime);
    timer->start();
    open();
    form->focusMinutes.set(10);

    EXPECT_THAT(applied(), ElementsAreArray(quietUpdate));
    EXPECT_TRUE(timer->isRunning());
    EXPECT_EQ(timer->focusDuration(), 600);
}

TEST_F(SettingsFormTest, OtherBreakMinutesStartARunningBreakOver)
{
    launch();
    timer->switchToPhase(PomodoroPhase::breakTime);
    timer->start();
    open();
    form->breakMinutes.set(2);

    EXPECT_THAT(applied(), ElementsAreArray(resettingUpdate));
    EXPECT_EQ(timer->remainingSeconds(), 120);
}

TEST_F(SettingsFormTest, WhatCountsAsAChangeIsTheSettingNotTheOpenedValue)
{
    open();
    settings->focusMinutes.set(50);
    calls.clear();

    EXPECT_THAT(applied(), ElementsAreArray(resettingUpdate));
    EXPECT_EQ(timer->focusDuration(), 1500);
}

TEST_F(SettingsFormTest, CanBeAppliedFromOneMinuteOn)
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
    launch();
    settings->focusMinutes.set(1);
    timer.emplace(*settings, runLoop, players);
    timer->start();
    open();
    form->autoTransition.set(true);

    EXPECT_THAT(applied(), IsEmpty());

    EXPECT_EQ(store.value<bool>("autoTransition"), true);
    EXPECT_FALSE(timer->autoTransition());
    runLoop.advance(61s);
    EXPECT_EQ(timer->phase(), PomodoroPhase::breakTime);
    EXPECT_FALSE(timer->isRunning());

    PomodoroTimer nextLaunch{*settings, runLoop, players};
    EXPECT_TRUE(nextLaunch.autoTransition());
}

// Music.

TEST_F(SettingsFormTest, APausedTimersMusicIsLeftAsItIs)
{
    storeMusic(MusicPreset::lofi);
    timer->start();
    timer->pause();
    open();
    form->focusMusicPreset.set(MusicPreset::lush);

    EXPECT_THAT(applied(), IsEmpty());
}

TEST_F(SettingsFormTest, AnIdleTimersMusicIsLeftAsItIs)
{
    open();
    form->enableFocusMusic.set(true);

    EXPECT_THAT(applied(), IsEmpty());
}

TEST_F(SettingsFormTest, SwitchingTheFocusMusicOnDuringARunningBreakRestartsNothing)
{
    launch();
    timer->switchToPhase(PomodoroPhase::breakTime);
    timer->start();
    open();
    form->enableFocusMusic.set(true);

    EXPECT_THAT(applied(), IsEmpty());
}

TEST_F(SettingsFormTest, SwitchingTheBreakMusicOffDuringARunningBreakStopsItAndStartsNothing)
{
    storeMusic(MusicPreset::lofi);
    timer->switchToPhase(PomodoroPhase::breakTime);
    timer->start();
    open();
    form->enableBreakMusic.set(false);

    EXPECT_THAT(applied(), ElementsAre("player 1 pause", "player 1 gone", "isPlaying 0", "no URL"));
}

TEST_F(SettingsFormTest, SwitchingTheFocusMusicOnDuringARunningFocusStartsIt)
{
    launch();
    settings->focusMusicPreset.set(MusicPreset::lush);
    timer->start();
    open();
    form->enableFocusMusic.set(true);
    form->musicVolume.set(0.5F);

    EXPECT_THAT(applied(),
        ElementsAre("isPlaying 0", "no URL",        // stop
            "isPlaying 0", "no URL", "URL " + lush, // play
            "player 1 made", "player 1 volume 0.5", "player 1 play", "isPlaying 1"));
}

TEST_F(SettingsFormTest, AnotherSourceIsOpenedAtOnceWhileItsPhaseRuns)
{
    storeMusic(MusicPreset::lofi);
    timer->start();
    open();
    form->focusMusicPreset.set(MusicPreset::lush);

    EXPECT_THAT(applied(),
        ElementsAre("player 1 pause", "player 1 gone", "isPlaying 0", "no URL", "isPlaying 0", "no URL", "URL " + lush,
            "player 2 made", "player 2 volume 0.25", "player 2 play", "isPlaying 1"));
}

TEST_F(SettingsFormTest, AnotherSourceOfTheOtherPhaseWaitsForItsStart)
{
    storeMusic(MusicPreset::lofi);
    timer->start();
    open();
    form->breakMusicPreset.set(MusicPreset::lush);
    form->enableBreakMusic.set(false);

    EXPECT_THAT(applied(), IsEmpty());
}

TEST_F(SettingsFormTest, AnotherSourceOfSilencedMusicRestartsNothing)
{
    launch();
    timer->start();
    open();
    form->focusMusicPreset.set(MusicPreset::lush);

    EXPECT_THAT(applied(), IsEmpty());
}

TEST_F(SettingsFormTest, TheStoredCustomAddressTypedAgainIsNoChange)
{
    storeMusic(MusicPreset::custom, "http://radio/1");
    timer->start();
    open();
    form->focusMusicPreset.set(MusicPreset::lofi);
    form->focusMusicPreset.set(MusicPreset::custom);
    form->focusCustomURL.set("http://radio/1");

    EXPECT_THAT(applied(), IsEmpty());
}

TEST_F(SettingsFormTest, TheStoredCustomAddressIsAChangeWhenAnotherPresetWasStored)
{
    storeMusic(MusicPreset::lofi, "http://radio/1");
    timer->start();
    open();
    form->focusMusicPreset.set(MusicPreset::custom);
    form->focusCustomURL.set("http://radio/1");

    EXPECT_THAT(applied(),
        ElementsAre("player 1 pause", "player 1 gone", "isPlaying 0", "no URL", "isPlaying 0", "no URL",
            "URL http://radio/1", "player 2 made", "player 2 volume 0.25", "player 2 play", "isPlaying 1"));
}

TEST_F(SettingsFormTest, AnotherCustomAddressIsAChangeToTheLetter)
{
    storeMusic(MusicPreset::custom, "http://radio/1");
    timer->start();
    open();
    form->focusCustomURL.set("http://radio/1 ");

    EXPECT_THAT(applied(), testing::Contains("URL http://radio/1 "));
}

TEST_F(SettingsFormTest, ACustomAddressBehindAnotherPresetIsNoChange)
{
    storeMusic(MusicPreset::lofi, "http://radio/1");
    timer->start();
    open();
    form->focusCustomURL.set("http://radio/2");

    EXPECT_THAT(applied(), IsEmpty());
    EXPECT_EQ(settings->focusCustomURL(), "http://radio/2");
}

TEST_F(SettingsFormTest, AnUnusableAddressIsStoredAsTypedAndLeavesSilence)
{
    storeMusic(MusicPreset::custom, "http://radio/1");
    timer->start();
    open();
    form->focusCustomURL.set("no address");

    testing::internal::CaptureStdout();
    EXPECT_THAT(
        applied(), ElementsAre("player 1 pause", "player 1 gone", "isPlaying 0", "no URL", "isPlaying 0", "no URL"));
    EXPECT_EQ(testing::internal::GetCapturedStdout(), "Invalid music URL: no address\n");
    EXPECT_EQ(settings->focusCustomURL(), "no address");
}

TEST_F(SettingsFormTest, AResettingUpdateEndsTheMusicOfARunningPhaseForGood)
{
    storeMusic(MusicPreset::lofi);
    timer->start();
    open();
    form->focusMinutes.set(10);
    form->focusMusicPreset.set(MusicPreset::lush);

    const auto done = applied();

    EXPECT_THAT(done, testing::Not(testing::Contains(testing::StartsWith("player 2"))));
    EXPECT_EQ(done.back(), "write breakMinutes");
}

// Loudness.

TEST_F(SettingsFormTest, TheLoudnessIsHeardAtOnceAndCancelRestoresIt)
{
    storeMusic(MusicPreset::lofi);
    timer->start();
    open();

    form->musicVolume.set(0.5F);
    form->musicVolume.set(0.75F);
    form->cancel();

    EXPECT_THAT(calls, ElementsAre("player 1 volume 0.5", "player 1 volume 0.75", "player 1 volume 0.25"));
    EXPECT_EQ(settings->musicVolume(), 0.25F);
    EXPECT_FALSE(store.value<float>("musicVolume"));
}

TEST_F(SettingsFormTest, AFormThatGoesUnappliedRestoresTheLoudness)
{
    storeMusic(MusicPreset::lofi);
    timer->start();
    open();
    form->musicVolume.set(0.75F);

    form.reset();

    EXPECT_THAT(calls, ElementsAre("player 1 volume 0.75", "player 1 volume 0.25"));
}

TEST_F(SettingsFormTest, OnceItIsAppliedOrCancelledAFormLeavesTheLoudnessAlone)
{
    storeMusic(MusicPreset::lofi);
    timer->start();
    for (const auto& leave : {&SettingsForm::apply, &SettingsForm::cancel}) {
        open();
        (*form.*leave)();
        calls.clear();

        form.reset();

        EXPECT_THAT(calls, IsEmpty());
    }
}

TEST_F(SettingsFormTest, TheLoudnessIsHeardWithinItsRange)
{
    storeMusic(MusicPreset::lofi);
    settings->musicVolume.set(1.75F);
    timer->start();
    open();

    form->musicVolume.set(-0.5F);
    form->cancel();

    EXPECT_THAT(calls, ElementsAre("player 1 volume 0", "player 1 volume 1"));
}

TEST_F(SettingsFormTest, TheLoudnessHasNoEffectWhileNothingIsOpen)
{
    open();

    form->musicVolume.set(0.5F);
    form->cancel();

    EXPECT_THAT(calls, IsEmpty());
}

TEST_F(SettingsFormTest, CancelWritesNothing)
{
    launch();
    timer->start();
    open();
    form->focusMinutes.set(10);
    form->enableFocusMusic.set(true);

    form->cancel();

    EXPECT_THAT(calls, IsEmpty());
    EXPECT_EQ(settings->focusMinutes(), 25);
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

TEST(PercentTextTest, IsCutOffTowardZero)
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
