// SPDX-License-Identifier: MIT
#include "settings/SoundOption.h"

#include "platform/Text.h"

#include <algorithm>

namespace velto {

std::string_view rawValue(SoundOption sound)
{
    constexpr std::array<std::string_view, allSoundOptions.size()> names{translatable("SoundOption", "None"), "Basso",
        "Blow", "Bottle", "Frog", "Funk", "Glass", "Hero", "Morse", "Ping", "Pop", "Purr", "Sosumi", "Submarine",
        "Tink"};
    return names.at(static_cast<std::size_t>(sound));
}

std::optional<SoundOption> soundOption(std::string_view text)
{
    const auto* found = std::ranges::find(allSoundOptions, text, [](SoundOption sound) { return rawValue(sound); });
    return found == allSoundOptions.end() ? std::nullopt : std::optional(*found);
}

} // namespace velto
