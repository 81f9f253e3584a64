// SPDX-License-Identifier: MIT
// Does with a settings file what one run of the program may: loads it, assigns every setting, ends.
#include "desktop/storage/PlistKeyValueStore.h"
#include "settings/AppSettings.h"
#include "support/FakeSoundLibrary.h"

#include <chrono>
#include <cstdlib>

int main(int argc, char* argv[])
{
    if (argc != 2)
        return EXIT_FAILURE;

    using namespace velto;
    PlistKeyValueStore store{argv[1]};
    FakeSoundLibrary sounds;
    AppSettings settings{store, sounds};
    settings.focusMinutes.set(50);
    store.waitUntilWritten(std::chrono::minutes{1});
    settings.breakMinutes.set(10);
    settings.autoTransition.set(true);
    settings.countdownSound.set(SoundOption::none);
    settings.focusEndSound.set(SoundOption::none);
    settings.breakEndSound.set(SoundOption::none);
    store.waitUntilWritten(std::chrono::minutes{1});
    settings.focusMusicPreset.set(MusicPreset::lush);
    settings.breakMusicPreset.set(MusicPreset::lush);
    settings.focusCustomURL.set("https://radio.example/focus");
    settings.breakCustomURL.set("https://radio.example/break");
    settings.enableFocusMusic.set(true);
    settings.enableBreakMusic.set(true);
    settings.musicVolume.set(0.5F);
}
