// SPDX-License-Identifier: MIT
#include "settings/AppSettings.h"

#include "platform/KeyValueStore.h"
#include "platform/SoundLibrary.h"
#include "settings/Minutes.h"

#include <nlohmann/json.hpp>

#include <algorithm>
#include <optional>
#include <string_view>

namespace velto {

namespace {

// Enumerations are stored as JSON text: a single string, the raw value.

Blob encodeJsonString(std::string_view text)
{
    const auto encoded = nlohmann::json(text).dump();
    return {encoded.begin(), encoded.end()};
}

std::optional<std::string> decodeJsonString(const Blob& blob)
{
    // The parser takes a NUL for the end of its input.
    if (std::ranges::find(blob, 0) != blob.end())
        return std::nullopt;
    const auto value = nlohmann::json::parse(blob, nullptr, /*allow_exceptions=*/false);
    return value.is_string() ? std::optional(value.get<std::string>()) : std::nullopt;
}

template <class T>
Setting<T> nativeSetting(
    ObservableObject& owner, KeyValueStore& store, std::string_view key, T fallback, bool (*isReadable)(T) = nullptr)
{
    auto stored = store.value<T>(key);
    if (stored && isReadable && !isReadable(*stored))
        stored.reset();
    return {owner, std::move(stored).value_or(std::move(fallback)),
        [&store, key](const T& value) { store.set(key, value); }};
}

template <class T>
Setting<T> enumSetting(ObservableObject& owner, KeyValueStore& store, std::string_view key,
    std::optional<T> (*fromRawValue)(std::string_view), T fallback)
{
    std::optional<T> stored;
    if (const auto blob = store.value<Blob>(key))
        if (const auto text = decodeJsonString(*blob))
            stored = fromRawValue(*text);
    return {owner, stored.value_or(fallback),
        [&store, key](const T& value) { store.set(key, encodeJsonString(rawValue(value))); }};
}

std::string musicUrl(MusicPreset preset, const std::string& customUrl)
{
    return preset == MusicPreset::custom ? customUrl : std::string(streamUrl(preset));
}

} // namespace

AppSettings::AppSettings(KeyValueStore& defaults, SoundLibrary& sounds) :
    focusMinutes(nativeSetting<std::int64_t>(*this, defaults, "focusMinutes", 25, minutesFitSeconds)),
    breakMinutes(nativeSetting<std::int64_t>(*this, defaults, "breakMinutes", 5, minutesFitSeconds)),
    autoTransition(nativeSetting(*this, defaults, "autoTransition", false)),
    countdownSound(enumSetting(*this, defaults, "countdownSound", soundOption, SoundOption::tink)),
    focusEndSound(enumSetting(*this, defaults, "focusEndSound", soundOption, SoundOption::glass)),
    breakEndSound(enumSetting(*this, defaults, "breakEndSound", soundOption, SoundOption::submarine)),
    focusMusicPreset(enumSetting(*this, defaults, "focusMusicPreset", musicPreset, MusicPreset::lofi)),
    breakMusicPreset(enumSetting(*this, defaults, "breakMusicPreset", musicPreset, MusicPreset::lofi)),
    focusCustomURL(nativeSetting<std::string>(*this, defaults, "focusCustomURL", "")),
    breakCustomURL(nativeSetting<std::string>(*this, defaults, "breakCustomURL", "")),
    enableFocusMusic(nativeSetting(*this, defaults, "enableFocusMusic", false)),
    enableBreakMusic(nativeSetting(*this, defaults, "enableBreakMusic", false)),
    musicVolume(nativeSetting(*this, defaults, "musicVolume", 0.25F)),
    m_sounds(sounds)
{
}

std::string AppSettings::getFocusMusicURL() const
{
    return musicUrl(focusMusicPreset(), focusCustomURL());
}

std::string AppSettings::getBreakMusicURL() const
{
    return musicUrl(breakMusicPreset(), breakCustomURL());
}

void AppSettings::playSound(SoundOption option)
{
    if (option == SoundOption::none)
        return;
    if (const auto sound = m_sounds.soundNamed(rawValue(option)))
        sound->play();
}

} // namespace velto
