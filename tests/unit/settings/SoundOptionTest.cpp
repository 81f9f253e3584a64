// SPDX-License-Identifier: MIT
#include "settings/SoundOption.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace velto {

TEST(SoundOptionTest, ThereAreFifteenFromNoneToTink)
{
    std::vector<std::string> names;
    for (const auto sound : allSoundOptions)
        names.emplace_back(rawValue(sound));

    EXPECT_EQ(names,
        (std::vector<std::string>{"None", "Basso", "Blow", "Bottle", "Frog", "Funk", "Glass", "Hero", "Morse", "Ping",
            "Pop", "Purr", "Sosumi", "Submarine", "Tink"}));
    EXPECT_EQ(allSoundOptions.front(), SoundOption::none);
    EXPECT_EQ(allSoundOptions.back(), SoundOption::tink);
    EXPECT_EQ(rawValue(SoundOption::glass), "Glass");
    EXPECT_EQ(rawValue(SoundOption::submarine), "Submarine");
}

TEST(SoundOptionTest, EachIsFoundByItsName)
{
    for (const auto sound : allSoundOptions)
        EXPECT_EQ(soundOption(rawValue(sound)), sound);
}

TEST(SoundOptionTest, NamesAreMatchedExactly)
{
    for (const auto* text : {"glass", "GLASS", "Glass ", " Glass", "Glas", "Gong", ""})
        EXPECT_EQ(soundOption(text), std::nullopt) << text;
}

} // namespace velto
