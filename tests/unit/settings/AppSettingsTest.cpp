// SPDX-License-Identifier: MIT
#include "settings/AppSettings.h"

#include "settings/Minutes.h"
#include "support/EverySetting.h"
#include "support/FakeKeyValueStore.h"
#include "support/FakeSoundLibrary.h"

#include <gtest/gtest.h>

#include <limits>
#include <string>
#include <type_traits>
#include <utility>
#include <vector>

namespace velto {

namespace {

static_assert(!std::is_convertible_v<Setting<bool>&, Published<bool>&>, "no way to set it without storing it");

using Writes = std::vector<std::pair<std::string, StoredValue>>;

Blob blob(std::string_view bytes)
{
    return {bytes.begin(), bytes.end()};
}

std::string quoted(std::string_view text)
{
    return '"' + std::string(text) + '"';
}

/// `others` as they are stored.
const Writes otherWrites{
    {"focusMinutes", std::int64_t{50}},
    {"breakMinutes", std::int64_t{10}},
    {"autoTransition", true},
    {"countdownSound", blob(quoted("Ping"))},
    {"focusEndSound", blob(quoted("Basso"))},
    {"breakEndSound", blob(quoted("None"))},
    {"focusMusicPreset", blob(quoted("Custom URL"))},
    {"breakMusicPreset", blob(quoted("DEF CON Radio"))},
    {"focusCustomURL", std::string("https://example.org/focus")},
    {"breakCustomURL", std::string(" any text ")},
    {"enableFocusMusic", true},
    {"enableBreakMusic", true},
    {"musicVolume", 0.75F},
};

} // namespace

class AppSettingsTest : public testing::Test {
protected:
    [[nodiscard]] AppSettings load() { return {store, sounds}; }

    FakeKeyValueStore store;
    FakeSoundLibrary sounds;
};

TEST_F(AppSettingsTest, AnEmptyStoreYieldsTheDefaults)
{
    EXPECT_EQ(valuesOf(load()), defaults);
}

TEST_F(AppSettingsTest, LoadingWritesNothing)
{
    store.values["focusMinutes"] = std::string("nonsense");
    store.values["focusEndSound"] = blob("nonsense");

    (void)load();

    EXPECT_TRUE(store.writes.empty());
}

TEST_F(AppSettingsTest, LoadsWhatIsStored)
{
    for (const auto& [key, value] : otherWrites)
        store.values[key] = value;

    EXPECT_EQ(valuesOf(load()), others);
}

TEST_F(AppSettingsTest, ZeroAndNegativeMinutesAreKept)
{
    store.values["focusMinutes"] = std::int64_t{0};
    store.values["breakMinutes"] = std::int64_t{-3};

    const auto settings = load();

    EXPECT_EQ(settings.focusMinutes(), 0);
    EXPECT_EQ(settings.breakMinutes(), -3);
}

TEST_F(AppSettingsTest, MinutesThatCannotBeCountedInSecondsCountAsTheDefault)
{
    const std::int64_t most = 153722867280912930;
    const std::vector<std::pair<std::int64_t, bool>> cases{{most, true}, {most + 1, false}, {-most, true},
        {-most - 1, false}, {std::numeric_limits<std::int64_t>::max(), false},
        {std::numeric_limits<std::int64_t>::min(), false}};
    for (const auto& [minutes, isReadable] : cases) {
        store.values["focusMinutes"] = minutes;
        store.values["breakMinutes"] = minutes;

        const auto settings = load();

        EXPECT_EQ(settings.focusMinutes(), isReadable ? minutes : 25);
        EXPECT_EQ(settings.breakMinutes(), isReadable ? minutes : 5);
        EXPECT_EQ(minutesFitSeconds(minutes), isReadable) << minutes;
    }
}

TEST_F(AppSettingsTest, AValueOfTheWrongKindCountsAsTheDefault)
{
    const std::vector<StoredValue> everyKind{
        std::int64_t{1}, true, 1.0F, std::string("Basso"), blob(quoted("Basso")), blob(quoted("Lush"))};
    for (std::size_t i = 0; i < everyKind.size(); ++i) {
        SCOPED_TRACE(i);
        for (const auto& [key, value] : otherWrites)
            store.values[key] = everyKind[i];
        auto expected = defaults;
        auto& [focusMinutes, breakMinutes, autoTransition, countdown, focusEnd, breakEnd, focusPreset, breakPreset,
            focusURL, breakURL, focusMusic, breakMusic, volume]
            = expected;
        if (i == 0)
            focusMinutes = breakMinutes = 1;
        else if (i == 1)
            autoTransition = focusMusic = breakMusic = true;
        else if (i == 2)
            volume = 1;
        else if (i == 3)
            focusURL = breakURL = "Basso";
        else if (i == 4)
            countdown = focusEnd = breakEnd = SoundOption::basso;
        else
            focusPreset = breakPreset = MusicPreset::lush;

        EXPECT_EQ(valuesOf(load()), expected);
    }
}

TEST_F(AppSettingsTest, AStoredSoundIsAJsonStringOrCountsAsTheDefault)
{
    const std::vector<std::pair<std::string, SoundOption>> cases{
        {quoted("Basso"), SoundOption::basso},
        {"\"B\\u0061sso\"", SoundOption::basso},
        {quoted("basso"), SoundOption::glass},
        {"Basso", SoundOption::glass},
        {"\"Basso", SoundOption::glass},
        {quoted("Basso") + quoted("Basso"), SoundOption::glass},
        {quoted("Basso "), SoundOption::glass},
        {quoted("Gong"), SoundOption::glass},
        {"[\"Basso\"]", SoundOption::glass},
        {"{\"Basso\":1}", SoundOption::glass},
        {"1", SoundOption::glass},
        {"null", SoundOption::glass},
        {"\"\xff\"", SoundOption::glass},
        {quoted("Basso") + std::string("\0garbage", 8), SoundOption::glass},
        {quoted("Basso") + std::string(1, '\0'), SoundOption::glass},
        {"", SoundOption::glass},
    };
    for (const auto& [bytes, expected] : cases) {
        store.values["focusEndSound"] = blob(bytes);

        EXPECT_EQ(load().focusEndSound(), expected) << bytes;
    }
}

TEST_F(AppSettingsTest, EveryAssignmentIsWrittenAtOnceUnderItsKey)
{
    auto settings = load();

    setEvery(settings, others);

    EXPECT_EQ(store.writes, otherWrites);
}

TEST_F(AppSettingsTest, StoresNoneAsASixByteBlob)
{
    load().focusEndSound.set(SoundOption::none);

    EXPECT_EQ(store.object("focusEndSound"), StoredValue(Blob{0x22, 'N', 'o', 'n', 'e', 0x22}));
}

TEST_F(AppSettingsTest, LoadsWhatItWrote)
{
    for (const auto sound : allSoundOptions) {
        load().breakEndSound.set(sound);
        EXPECT_EQ(load().breakEndSound(), sound);
    }
    for (const auto preset : allMusicPresets) {
        load().breakMusicPreset.set(preset);
        EXPECT_EQ(load().breakMusicPreset(), preset);
    }
}

TEST_F(AppSettingsTest, AnAssignmentNotifiesThenSetsThenStores)
{
    auto settings = load();
    std::vector<std::string> steps;
    const auto note = [&](const std::string& step) {
        steps.push_back(step + " at " + std::to_string(settings.focusMinutes()) + " after "
            + std::to_string(store.writes.size()) + " writes");
    };
    const auto object = settings.willChange([&] { note("object"); });
    const auto value = settings.focusMinutes.laterChanges([&](std::int64_t) { note("value"); });
    store.onWrite = [&] { note("written"); };

    settings.focusMinutes.set(30);

    EXPECT_EQ(steps,
        (std::vector<std::string>{
            "object at 25 after 0 writes", "value at 25 after 0 writes", "written at 30 after 1 writes"}));
}

TEST_F(AppSettingsTest, AssigningAnEqualValueStillNotifiesAndWrites)
{
    auto settings = load();
    int notified = 0;
    const auto object = settings.willChange([&] { ++notified; });

    settings.focusMinutes.set(25);
    settings.focusEndSound.set(SoundOption::glass);

    EXPECT_EQ(notified, 2);
    EXPECT_EQ(store.writes, (Writes{{"focusMinutes", std::int64_t{25}}, {"focusEndSound", blob(quoted("Glass"))}}));
}

TEST_F(AppSettingsTest, TheVolumeIsNotClamped)
{
    auto settings = load();

    settings.musicVolume.set(1.7F);

    EXPECT_EQ(settings.musicVolume(), 1.7F);
    EXPECT_EQ(store.object("musicVolume"), StoredValue(1.7F));
    EXPECT_EQ(load().musicVolume(), 1.7F);
}

TEST_F(AppSettingsTest, ReadingNeverTouchesTheStore)
{
    const auto settings = load();

    store.values["focusMinutes"] = std::int64_t{99};

    EXPECT_EQ(settings.focusMinutes(), 25);
}

TEST_F(AppSettingsTest, APresetHasItsOwnStreamWhateverTheCustomAddress)
{
    auto settings = load();
    settings.focusCustomURL.set("https://example.org/mine");
    settings.focusMusicPreset.set(MusicPreset::lush);
    settings.breakMusicPreset.set(MusicPreset::ambient);

    EXPECT_EQ(settings.getFocusMusicURL(), streamUrl(MusicPreset::lush));
    EXPECT_EQ(settings.getBreakMusicURL(), streamUrl(MusicPreset::ambient));
}

TEST_F(AppSettingsTest, CustomIsExactlyWhatTheUserTypedEvenNothing)
{
    auto settings = load();
    settings.focusMusicPreset.set(MusicPreset::custom);
    settings.focusCustomURL.set("  https://example.org/mine \n");
    settings.breakMusicPreset.set(MusicPreset::custom);

    EXPECT_EQ(settings.getFocusMusicURL(), "  https://example.org/mine \n");
    EXPECT_EQ(settings.getBreakMusicURL(), "");
}

TEST_F(AppSettingsTest, PlayingNoneDoesNotAskTheLibrary)
{
    load().playSound(SoundOption::none);

    EXPECT_TRUE(sounds.asked.empty());
}

TEST_F(AppSettingsTest, EveryOtherSoundIsLookedUpByItsExactNameAndPlayed)
{
    std::vector<std::string> names;
    for (const auto sound : allSoundOptions) {
        load().playSound(sound);
        if (sound != SoundOption::none)
            names.emplace_back(rawValue(sound));
    }

    EXPECT_EQ(sounds.asked, names);
    EXPECT_EQ(sounds.played, names);
    EXPECT_EQ(names.size(), 14U);
}

TEST_F(AppSettingsTest, AMissingSoundIsSkippedSilently)
{
    sounds.missing = {"Submarine"};

    load().playSound(SoundOption::submarine);

    EXPECT_EQ(sounds.asked, std::vector<std::string>{"Submarine"});
    EXPECT_TRUE(sounds.played.empty());
}

} // namespace velto
