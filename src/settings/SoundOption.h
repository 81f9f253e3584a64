// SPDX-License-Identifier: MIT
#pragma once

#include <array>
#include <optional>
#include <string_view>

namespace velto {

/// The cues a user can choose, in the order of the pickers.
enum class SoundOption {
    none,
    basso,
    blow,
    bottle,
    frog,
    funk,
    glass,
    hero,
    morse,
    ping,
    pop,
    purr,
    sosumi,
    submarine,
    tink,
};

inline constexpr std::array allSoundOptions{
    SoundOption::none,
    SoundOption::basso,
    SoundOption::blow,
    SoundOption::bottle,
    SoundOption::frog,
    SoundOption::funk,
    SoundOption::glass,
    SoundOption::hero,
    SoundOption::morse,
    SoundOption::ping,
    SoundOption::pop,
    SoundOption::purr,
    SoundOption::sosumi,
    SoundOption::submarine,
    SoundOption::tink,
};

/// Serves as the text shown, the sound's name and the stored value.
[[nodiscard]] std::string_view rawValue(SoundOption sound);

/// Absent unless `text` is exactly a raw value.
[[nodiscard]] std::optional<SoundOption> soundOption(std::string_view rawValue);

} // namespace velto
