// SPDX-License-Identifier: MIT
#pragma once

#include <array>
#include <optional>
#include <string_view>

namespace velto {

/// The sources of background music, in the order of the pickers and menus.
enum class MusicPreset { lofi, ambient, grooveSalad, defconRadio, spaceStation, lush, custom };

inline constexpr std::array allMusicPresets{
    MusicPreset::lofi,
    MusicPreset::ambient,
    MusicPreset::grooveSalad,
    MusicPreset::defconRadio,
    MusicPreset::spaceStation,
    MusicPreset::lush,
    MusicPreset::custom,
};

/// Serves as both the text shown and the stored value.
[[nodiscard]] std::string_view rawValue(MusicPreset preset);

/// Absent unless `text` is exactly a raw value.
[[nodiscard]] std::optional<MusicPreset> musicPreset(std::string_view rawValue);

/// Address of the stream; empty for `custom`, whose address the user types.
[[nodiscard]] std::string_view streamUrl(MusicPreset preset);

/// One line about the stream.
[[nodiscard]] std::string_view description(MusicPreset preset);

} // namespace velto
