// SPDX-License-Identifier: MIT
#include "settings/AppSettings.h"

#include "settings/Minutes.h"
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

} // namespace

class AppSettingsTest : public testing::Test {
protected:
    [[nodiscard]] AppSettings load() { return {store, sounds}; }

    FakeKeyValueStore store;
    FakeSoundLibrary sounds;
};

TEST_F(AppSettingsTest, AnEmptyStoreYieldsTheDefaults)
{
    const auto settings = load();

    EXPECT_EQ(settings.focusMinutes(), 25);
    EXPECT_EQ(settings.breakMinutes(), 5);
    EXPECT_FALSE(settings.autoTransition());
    EXPECT_EQ(settings.countdownSound(), SoundOption::tink);
    EXPECT_EQ(settings.focusEndSound(), SoundOption::glass);
    EXPECT_EQ(settings.breakEndSound(), SoundOption::submarine);
    EXPECT_EQ(settings.focusMusicPreset(), MusicPreset::lofi);
    EXPECT_EQ(settings.breakMusicPreset(), MusicPreset::lofi);
    EXPECT_EQ(settings.focusCustomURL(), "");
    EXPECT_EQ(settings.breakCustomURL(), "");
    EXPECT_FALSE(settings.enableFocusMusic());
    EXPECT_FALSE(settings.enableBreakMusic());
    EXPECT_EQ(settings.musicVolume(), 0.25F);
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
    store.values = {
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

    const auto settings = load();

    EXPECT_EQ(settings.focusMinutes(), 50);
    EXPECT_EQ(settings.breakMinutes(), 10);
    EXPECT_TRUE(settings.autoTransition());
    EXPECT_EQ(settings.countdownSound(), SoundOption::ping);
    EXPECT_EQ(settings.focusEndSound(), SoundOption::basso);
    EXPECT_EQ(settings.breakEndSound(), SoundOption::none);
    EXPECT_EQ(settings.focusMusicPreset(), MusicPreset::custom);
    EXPECT_EQ(settings.breakMusicPreset(), MusicPreset::defconRadio);
    EXPECT_EQ(settings.focusCustomURL(), "https://example.org/focus");
    EXPECT_EQ(settings.breakCustomURL(), " any text ");
    EXPECT_TRUE(settings.enableFocusMusic());
    EXPECT_TRUE(settings.enableBreakMusic());
    EXPECT_EQ(settings.musicVolume(), 0.75F);
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
        for (const auto* key : {"focusMinutes", "breakMinutes", "autoTransition", "countdownSound", "focusEndSound",
                 "breakEndSound", "focusMusicPreset", "breakMusicPreset", "focusCustomURL", "breakCustomURL",
                 "enableFocusMusic", "enableBreakMusic", "musicVolume"})
            store.values[key] = everyKind[i];

        const auto settings = load();

        EXPECT_EQ(settings.focusMinutes(), i == 0 ? 1 : 25);
        EXPECT_EQ(settings.breakMinutes(), i == 0 ? 1 : 5);
        EXPECT_EQ(settings.autoTransition(), i == 1);
        EXPECT_EQ(settings.enableFocusMusic(), i == 1);
        EXPECT_EQ(settings.enableBreakMusic(), i == 1);
        EXPECT_EQ(settings.musicVolume(), i == 2 ? 1.0F : 0.25F);
        EXPECT_EQ(settings.focusCustomURL(), i == 3 ? "Basso" : "");
        EXPECT_EQ(settings.breakCustomURL(), i == 3 ? "Basso" : "");
        EXPECT_EQ(settings.countdownSound(), i == 4 ? SoundOption::basso : SoundOption::tink);
        EXPECT_EQ(settings.focusEndSound(), i == 4 ? SoundOption::basso : SoundOption::glass);
        EXPECT_EQ(settings.breakEndSound(), i == 4 ? SoundOption::basso : SoundOption::submarine);
        EXPECT_EQ(settings.focusMusicPreset(), i == 5 ? MusicPreset::lush : MusicPreset::lofi);
        EXPECT_EQ(settings.breakMusicPreset(), i == 5 ? MusicPreset::lush : MusicPreset::lofi);
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

    settings.focusMinutes.set(50);
    settings.breakMinutes.set(-1);
    settings.autoTransition.set(true);
    settings.countdownSound.set(SoundOption::basso);
    settings.focusEndSound.set(SoundOption::glass);
    settings.breakEndSound.set(SoundOption::tink);
    settings.focusMusicPreset.set(MusicPreset::defconRadio);
    settings.breakMusicPreset.set(MusicPreset::custom);
    settings.focusCustomURL.set("https://example.org/a");
    settings.breakCustomURL.set("");
    settings.enableFocusMusic.set(true);
    settings.enableBreakMusic.set(false);
    settings.musicVolume.set(0.5F);

    EXPECT_EQ(store.writes,
        (Writes{
            {"focusMinutes", std::int64_t{50}},
            {"breakMinutes", std::int64_t{-1}},
            {"autoTransition", true},
            {"countdownSound", blob(quoted("Basso"))},
            {"focusEndSound", blob(quoted("Glass"))},
            {"breakEndSound", blob(quoted("Tink"))},
            {"focusMusicPreset", blob(quoted("DEF CON Radio"))},
            {"breakMusicPreset", blob(quoted("Custom URL"))},
            {"focusCustomURL", std::string("https://example.org/a")},
            {"breakCustomURL", std::string()},
            {"enableFocusMusic", true},
            {"enableBreakMusic", false},
            {"musicVolume", 0.5F},
        }));
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
