// SPDX-License-Identifier: MIT
#include "settings_form/SettingsForm.h"

#include "core/PomodoroTimer.h"
#include "settings/AppSettings.h"

#include <array>
#include <cmath>
#include <cstdio>

namespace velto {

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
    const auto sourceChanged
        = [](MusicPreset oldPreset, MusicPreset newPreset, const std::string& oldURL, const std::string& newURL) {
              return oldPreset != newPreset || (newPreset == MusicPreset::custom && oldURL != newURL);
          };
    const bool focusChanged = m_settings.focusMinutes() != focusMinutes();
    const bool breakChanged = m_settings.breakMinutes() != breakMinutes();
    const bool focusSourceChanged = sourceChanged(
        m_settings.focusMusicPreset(), focusMusicPreset(), m_settings.focusCustomURL(), focusCustomURL());
    const bool breakSourceChanged = sourceChanged(
        m_settings.breakMusicPreset(), breakMusicPreset(), m_settings.breakCustomURL(), breakCustomURL());
    const bool focusMusicToggled = m_settings.enableFocusMusic() != enableFocusMusic();
    const bool breakMusicToggled = m_settings.enableBreakMusic() != enableBreakMusic();

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
    const bool isFocus = m_timer.phase() == PomodoroPhase::focus;
    const bool isEnabled = isFocus ? enableFocusMusic() : enableBreakMusic();
    const bool wasToggled = isFocus ? focusMusicToggled : breakMusicToggled;
    const bool hasOtherSource = isFocus ? focusSourceChanged : breakSourceChanged;
    if (!wasToggled && !(hasOtherSource && isEnabled))
        return;
    m_timer.musicPlayer().stop();
    if (isEnabled)
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
