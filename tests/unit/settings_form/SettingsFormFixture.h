// SPDX-License-Identifier: MIT
#pragma once

#include "settings_form/SettingsForm.h"
#include "support/World.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <optional>
#include <string>
#include <vector>

namespace velto {

using Calls = std::vector<std::string>;

inline const Calls resettingUpdate{"isRunning 0", "isPlaying 0", "isPlaying 0", "no URL", "focusDuration",
    "breakDuration", "remainingSeconds", "hasStarted 0", "write focusMinutes", "write breakMinutes"};
inline const Calls quietUpdate{"focusDuration", "breakDuration", "write focusMinutes", "write breakMinutes"};
inline const Calls thirteenWrites{"write focusMinutes", "write breakMinutes", "write autoTransition",
    "write countdownSound", "write focusEndSound", "write breakEndSound", "write focusMusicPreset",
    "write breakMusicPreset", "write focusCustomURL", "write breakCustomURL", "write enableFocusMusic",
    "write enableBreakMusic", "write musicVolume"};

/// A form in its world; `calls` has all that it does.
class SettingsFormFixture : public testing::Test, protected World {
protected:
    Calls calls; ///< Everything that reaches the store, the timer and the players, in order.
    std::optional<SettingsForm> form;
    std::vector<Subscription> subscriptions;

    /// Opens the form and starts to record.
    void open()
    {
        form.emplace(settings, timer());
        store.writes.clear();
        store.onWrite = [this] { calls.push_back("write " + store.writes.back().first); };
        players.calls.clear();
        players.onCall = [this] { calls.push_back("player " + players.calls.back()); };
        record(timer().isRunning, [](bool on) { return "isRunning " + std::to_string(on); });
        record(timer().hasStarted, [](bool on) { return "hasStarted " + std::to_string(on); });
        record(timer().phase, [](auto) { return std::string("phase"); });
        record(timer().remainingSeconds, [](auto) { return std::string("remainingSeconds"); });
        record(timer().focusDuration, [](auto) { return std::string("focusDuration"); });
        record(timer().breakDuration, [](auto) { return std::string("breakDuration"); });
        record(timer().autoTransition, [](auto) { return std::string("autoTransition"); });
        record(timer().musicPlayer().isPlaying, [](bool on) { return "isPlaying " + std::to_string(on); });
        record(timer().musicPlayer().currentURL, [](const auto& url) { return url ? "URL " + *url : "no URL"; });
    }

    /// What apply() does beyond writing the thirteen settings.
    Calls applied()
    {
        form->apply();
        EXPECT_GE(calls.size(), thirteenWrites.size());
        EXPECT_THAT(Calls(calls.begin(), calls.begin() + 13), testing::ElementsAreArray(thirteenWrites));
        return {calls.begin() + 13, calls.end()};
    }

    /// Music for both phases; that of the break is of another source.
    void storeMusic(MusicPreset preset, const std::string& url = "")
    {
        settings.enableFocusMusic.set(true);
        settings.focusMusicPreset.set(preset);
        settings.focusCustomURL.set(url);
        settings.enableBreakMusic.set(true);
        settings.breakMusicPreset.set(MusicPreset::custom);
        settings.breakCustomURL.set("http://break/1");
    }

private:
    template <class Published, class Text>
    void record(const Published& published, Text text)
    {
        subscriptions.push_back(
            published.laterChanges([this, text](const auto& value) { calls.push_back(text(value)); }));
    }
};

} // namespace velto
