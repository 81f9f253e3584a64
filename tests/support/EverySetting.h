// SPDX-License-Identifier: MIT
#pragma once

#include "settings/MusicPreset.h"
#include "settings/SoundOption.h"

#include <cstddef>
#include <cstdint>
#include <string>
#include <tuple>
#include <utility>

namespace velto {

/// The thirteen settings in the order in which they are written.
using EverySetting = std::tuple<std::int64_t, std::int64_t, bool, SoundOption, SoundOption, SoundOption, MusicPreset,
    MusicPreset, std::string, std::string, bool, bool, float>;

inline const EverySetting defaults{25, 5, false, SoundOption::tink, SoundOption::glass, SoundOption::submarine,
    MusicPreset::lofi, MusicPreset::lofi, "", "", false, false, 0.25F};
/// None is the default.
inline const EverySetting others{50, 10, true, SoundOption::ping, SoundOption::basso, SoundOption::none,
    MusicPreset::custom, MusicPreset::defconRadio, "https://example.org/focus", " any text ", true, true, 0.75F};

/// `settings` are the stored ones or the copy in the form.
template <class Settings>
auto fieldsOf(Settings& settings)
{
    auto& s = settings;
    return std::tie(s.focusMinutes, s.breakMinutes, s.autoTransition, s.countdownSound, s.focusEndSound,
        s.breakEndSound, s.focusMusicPreset, s.breakMusicPreset, s.focusCustomURL, s.breakCustomURL, s.enableFocusMusic,
        s.enableBreakMusic, s.musicVolume);
}

EverySetting valuesOf(const auto& settings)
{
    return std::apply([](const auto&... field) { return EverySetting{field()...}; }, fieldsOf(settings));
}

void setEvery(auto& settings, const EverySetting& values)
{
    [ fields = fieldsOf(settings), &values ]<std::size_t... i>(std::index_sequence<i...>)
    {
        (std::get<i>(fields).set(std::get<i>(values)), ...);
    }
    (std::make_index_sequence<std::tuple_size_v<EverySetting>>());
}

} // namespace velto
