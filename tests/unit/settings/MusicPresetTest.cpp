// SPDX-License-Identifier: MIT
#include "settings/MusicPreset.h"

#include <gtest/gtest.h>

#include <set>
#include <string>
#include <vector>

namespace velto {

namespace {

struct Row {
    MusicPreset preset;
    std::string name;
    std::string description;
    std::string path;
};

const std::vector<Row> rows{
    {MusicPreset::lofi, "Lo-Fi", "Chill beats for focus", "/0r0xa792kwzuv"},
    {MusicPreset::ambient, "Deep Space Ambient", "Deep space ambient", "/deepspaceone-128-mp3"},
    {MusicPreset::grooveSalad, "Groove Salad", "Downtempo grooves", "/groovesalad-128-mp3"},
    {MusicPreset::defconRadio, "DEF CON Radio", "Hacker/cyberpunk vibes", "/defcon-128-mp3"},
    {MusicPreset::spaceStation, "Space Station", "Beatless ambient", "/spacestation-128-mp3"},
    {MusicPreset::lush, "Lush", "Sensuous & mellow", "/lush-128-mp3"},
    {MusicPreset::custom, "Custom URL", "Your own streaming URL", ""},
};

/// What stands between "https://" and `path`.
std::string hostOf(const std::string& url, const std::string& path)
{
    const std::string scheme = "https://";
    EXPECT_TRUE(url.starts_with(scheme) && url.ends_with(path)) << url;
    return url.substr(scheme.size(), url.size() - scheme.size() - path.size());
}

} // namespace

TEST(MusicPresetTest, ThereAreSevenFromLofiToCustom)
{
    ASSERT_EQ(allMusicPresets.size(), rows.size());
    for (std::size_t i = 0; i < rows.size(); ++i) {
        EXPECT_EQ(allMusicPresets.at(i), rows[i].preset);
        EXPECT_EQ(rawValue(rows[i].preset), rows[i].name);
        EXPECT_EQ(description(rows[i].preset), rows[i].description);
    }
}

TEST(MusicPresetTest, EachIsFoundByItsName)
{
    for (const auto& row : rows)
        EXPECT_EQ(musicPreset(row.name), row.preset);
}

TEST(MusicPresetTest, NamesAreMatchedExactly)
{
    for (const auto* text : {"Def Con Radio", "def con radio", "DEF CON RADIO", "DEF CON Radio ", "Custom", ""})
        EXPECT_EQ(musicPreset(text), std::nullopt) << text;
}

TEST(MusicPresetTest, LofiHasAHostOfItsOwnAndTheRadioStreamsShareOne)
{
    std::set<std::string> radioHosts;
    for (const auto& row : rows)
        if (row.preset != MusicPreset::lofi && row.preset != MusicPreset::custom)
            radioHosts.insert(hostOf(std::string(streamUrl(row.preset)), row.path));

    const auto lofiHost = hostOf(std::string(streamUrl(MusicPreset::lofi)), rows.front().path);

    ASSERT_EQ(radioHosts.size(), 1U);
    for (const auto& host : {*radioHosts.begin(), lofiHost}) {
        EXPECT_FALSE(host.empty());
        EXPECT_EQ(host.find('/'), std::string::npos) << host;
    }
    EXPECT_FALSE(radioHosts.contains(lofiHost));
}

TEST(MusicPresetTest, TheStreamOfCustomIsEmpty)
{
    EXPECT_EQ(streamUrl(MusicPreset::custom), "");
}

} // namespace velto
