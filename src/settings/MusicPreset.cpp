// SPDX-License-Identifier: MIT
#include "settings/MusicPreset.h"

#include "platform/Text.h"

#include <algorithm>

// The hosts come from the build configuration.
#define RADIO_STREAM(path) "https://" VELTO_RADIO_HOST path
#define LOFI_STREAM(path) "https://" VELTO_LOFI_HOST path

namespace velto {

namespace {

struct Entry {
    std::string_view rawValue;
    std::string_view description;
    std::string_view streamUrl;
};

constexpr std::array<Entry, allMusicPresets.size()> table{{
    {"Lo-Fi", translatable("MusicPreset", "Chill beats for focus"), LOFI_STREAM("/0r0xa792kwzuv")},
    {"Deep Space Ambient", translatable("MusicPreset", "Deep space ambient"), RADIO_STREAM("/deepspaceone-128-mp3")},
    {"Groove Salad", translatable("MusicPreset", "Downtempo grooves"), RADIO_STREAM("/groovesalad-128-mp3")},
    {"DEF CON Radio", translatable("MusicPreset", "Hacker/cyberpunk vibes"), RADIO_STREAM("/defcon-128-mp3")},
    {"Space Station", translatable("MusicPreset", "Beatless ambient"), RADIO_STREAM("/spacestation-128-mp3")},
    {"Lush", translatable("MusicPreset", "Sensuous & mellow"), RADIO_STREAM("/lush-128-mp3")},
    {translatable("Menu", "Custom URL"), translatable("MusicPreset", "Your own streaming URL"), ""},
}};

const Entry& entry(MusicPreset preset)
{
    return table.at(static_cast<std::size_t>(preset));
}

} // namespace

std::string_view rawValue(MusicPreset preset)
{
    return entry(preset).rawValue;
}

std::optional<MusicPreset> musicPreset(std::string_view text)
{
    const auto* found = std::ranges::find(allMusicPresets, text, [](MusicPreset preset) { return rawValue(preset); });
    return found == allMusicPresets.end() ? std::nullopt : std::optional(*found);
}

std::string_view streamUrl(MusicPreset preset)
{
    return entry(preset).streamUrl;
}

std::string_view description(MusicPreset preset)
{
    return entry(preset).description;
}

} // namespace velto
