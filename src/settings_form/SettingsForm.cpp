// SPDX-License-Identifier: MIT
#include "settings_form/SettingsForm.h"

#include "core/PomodoroTimer.h"
#include "settings/AppSettings.h"

#include <array>
#include <cmath>
#include <cstdio>

namespace velto {

namespace {

struct PhaseMusic {
    bool isOn;
    MusicPreset preset;
    std::string url;
};

/// `source` is the settings or the form.
template <class Source>
PhaseMusic musicOf(const Source& source, PomodoroPhase phase)
{
    if (phase == PomodoroPhase::focus)
        return {source.enableFocusMusic(), source.focusMusicPreset(), source.focusCustomURL()};
    return {source.enableBreakMusic(), source.breakMusicPreset(), source.breakCustomURL()};
}

} // namespace

std::string percentText(float volume)
{
    const double percent = static_cast<double>(volume) * 100;
    const double nearest = std::round(percent);
    // The float for 53 percent lies a little below 0.53.
    const double shown = static_cast<float>(nearest / 100) == volume ? nearest : std::trunc(percent);
    std::array<char, 64> text{};
    // Adding zero makes a negative zero positive.
    std::snprintf(text.data(), text.size(), "%.0f%%", shown + 0.0);
    return text.data();
}

SettingsForm::SettingsForm(AppSettings& settings, PomodoroTimer& timer) :
    focusMinutes(*this, settings.focusMinutes()),
    breakMinutes(*this, settings.breakMinutes()),
    autoTransition(*this, settings.autoTransition()),
    countdownSound(*this, settings.countdownSound()),
    focusEndSound(*this, settings.focusEndSound()),
    breakEndSound(*this, settings.breakEndSound()),
    focusMusicPreset(*this, settings.focusMusicPreset()),
    breakMusicPreset(*this, settings.breakMusicPreset()),
    focusCustomURL(*this, settings.focusCustomURL()),
    breakCustomURL(*this, settings.breakCustomURL()),
    enableFocusMusic(*this, settings.enableFocusMusic()),
    enableBreakMusic(*this, settings.enableBreakMusic()),
    musicVolume(*this, settings.musicVolume()),
    m_settings(settings),
    m_timer(timer),
    m_originalMusicVolume(settings.musicVolume())
{
    m_volumePreview = musicVolume.laterChanges([this](float volume) { m_timer.musicPlayer().setVolume(volume); });
}

SettingsForm::~SettingsForm()
{
    cancel();
}

bool SettingsForm::canApply() const
{
    return focusMinutes() >= 1 && breakMinutes() >= 1;
}

void SettingsForm::preview(SoundOption sound) const
{
    m_settings.playSound(sound);
}

void SettingsForm::apply()
{
    m_originalMusicVolume.reset();
    const bool focusChanged = m_settings.focusMinutes() != focusMinutes();
    const bool breakChanged = m_settings.breakMinutes() != breakMinutes();
    const auto phase = m_timer.phase();
    const auto before = musicOf(m_settings, phase);

    m_settings.focusMinutes.set(focusMinutes());
    m_settings.breakMinutes.set(breakMinutes());
    m_settings.autoTransition.set(autoTransition());
    m_settings.countdownSound.set(countdownSound());
    m_settings.focusEndSound.set(focusEndSound());
    m_settings.breakEndSound.set(breakEndSound());
    m_settings.focusMusicPreset.set(focusMusicPreset());
    m_settings.breakMusicPreset.set(breakMusicPreset());
    m_settings.focusCustomURL.set(focusCustomURL());
    m_settings.breakCustomURL.set(breakCustomURL());
    m_settings.enableFocusMusic.set(enableFocusMusic());
    m_settings.enableBreakMusic.set(enableBreakMusic());
    m_settings.musicVolume.set(musicVolume());

    applyDurations(focusChanged, breakChanged);

    if (!m_timer.isRunning())
        return;
    const auto now = musicOf(*this, phase);
    const bool hasOtherSource
        = now.preset != before.preset || (now.preset == MusicPreset::custom && now.url != before.url);
    if (now.isOn == before.isOn && !(now.isOn && hasOtherSource))
        return;
    m_timer.musicPlayer().stop();
    if (now.isOn)
        m_timer.startMusicForCurrentPhase();
}

/// The current phase starts over with its new length; a change of the other one leaves it undisturbed.
void SettingsForm::applyDurations(bool focusChanged, bool breakChanged)
{
    const bool isFocus = m_timer.phase() == PomodoroPhase::focus;
    if (isFocus ? focusChanged : breakChanged)
        m_timer.updateDurations(focusMinutes(), breakMinutes());
    else if (focusChanged || breakChanged)
        m_timer.updateDurationsWithoutReset(focusMinutes(), breakMinutes());
}

void SettingsForm::cancel()
{
    if (const auto volume = std::exchange(m_originalMusicVolume, std::nullopt))
        m_timer.musicPlayer().setVolume(*volume);
}

} // namespace velto
