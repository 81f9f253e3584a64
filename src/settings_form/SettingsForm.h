// SPDX-License-Identifier: MIT
#pragma once

#include "observation/Published.h"
#include "settings/MusicPreset.h"
#include "settings/SoundOption.h"

#include <cstdint>
#include <optional>
#include <string>

namespace velto {

class AppSettings;
class PomodoroTimer;

/// A loudness as people read it: "25%" for 0.25. Fractions of a percent are cut off, except where `volume` is the
/// float nearest to a whole percent.
[[nodiscard]] std::string percentText(float volume);

/// The working copy behind the settings form: taken once, edited freely, then applied or cancelled.
///
/// Only the loudness is heard while it is edited. Nothing is clamped. Main thread only.
class SettingsForm : public ObservableObject {
public:
    /// Both must outlive this.
    SettingsForm(AppSettings& settings, PomodoroTimer& timer);
    /// Cancels what was not applied.
    ~SettingsForm();

    Published<std::int64_t> focusMinutes;
    Published<std::int64_t> breakMinutes;
    Published<bool> autoTransition;
    Published<SoundOption> countdownSound;
    Published<SoundOption> focusEndSound;
    Published<SoundOption> breakEndSound;
    Published<MusicPreset> focusMusicPreset;
    Published<MusicPreset> breakMusicPreset;
    Published<std::string> focusCustomURL;
    Published<std::string> breakCustomURL;
    Published<bool> enableFocusMusic;
    Published<bool> enableBreakMusic;
    Published<float> musicVolume; ///< Linear amplitude, 0 to 1. Each change is heard at once.

    /// Both durations are a minute or more.
    [[nodiscard]] bool canApply() const;

    /// Plays the sound, so that it can be chosen by ear.
    void preview(SoundOption sound) const;

    /// Writes every setting, then brings the timer and the music of a running phase in line with
    /// what has changed. The timer's own auto-transition is left alone: it follows at the next launch.
    void apply();

    /// Restores the loudness, unless the form was applied. Nothing else has to be undone.
    void cancel();

private:
    void applyDurations(bool focusChanged, bool breakChanged);

    AppSettings& m_settings;
    PomodoroTimer& m_timer;
    std::optional<float> m_originalMusicVolume; ///< Absent once the form is applied or cancelled.
    Subscription m_volumePreview;
};

} // namespace velto
