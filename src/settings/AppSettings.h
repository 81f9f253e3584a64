// SPDX-License-Identifier: MIT
#pragma once

#include "observation/ObservableObject.h"
#include "settings/MusicPreset.h"
#include "settings/Setting.h"
#include "settings/SoundOption.h"

#include <cstdint>
#include <string>

namespace velto {

class KeyValueStore;
class SoundLibrary;

/// What the user has set: thirteen values, read from the store once, written to it on every assignment.
///
/// Nothing is clamped or validated but that minutes fit when counted in seconds. A stored value that is missing or
/// unreadable counts as the default.
/// Main thread only.
class AppSettings : public ObservableObject {
public:
    /// Writes nothing. Both arguments must outlive this.
    AppSettings(KeyValueStore& defaults, SoundLibrary& sounds);

    Setting<std::int64_t> focusMinutes;
    Setting<std::int64_t> breakMinutes;
    Setting<bool> autoTransition;
    Setting<SoundOption> countdownSound;
    Setting<SoundOption> focusEndSound;
    Setting<SoundOption> breakEndSound;
    Setting<MusicPreset> focusMusicPreset;
    Setting<MusicPreset> breakMusicPreset;
    Setting<std::string> focusCustomURL;
    Setting<std::string> breakCustomURL;
    Setting<bool> enableFocusMusic;
    Setting<bool> enableBreakMusic;
    Setting<float> musicVolume; ///< Linear amplitude, 0 silent to 1 full.

    /// Address of the phase's stream: the preset's, or exactly what the user typed, possibly empty.
    [[nodiscard]] std::string getFocusMusicURL() const;
    [[nodiscard]] std::string getBreakMusicURL() const;

    /// Starts the sound and returns at once; silent for `none` and for a sound the system lacks.
    void playSound(SoundOption sound);

private:
    SoundLibrary& m_sounds;
};

} // namespace velto
