// SPDX-License-Identifier: MIT
#include "core/PomodoroTimer.h"

#include "core/CheckedArithmetic.h"
#include "observation/NotificationCenter.h"
#include "settings/AppSettings.h"

#include <algorithm>
#include <chrono>

namespace velto {

namespace {

constexpr std::int64_t countdownCueSeconds = 10;

std::int64_t seconds(std::int64_t minutes)
{
    return checkedMultiply(minutes, 60);
}

} // namespace

PomodoroTimer::PomodoroTimer(AppSettings& settings, RunLoop& runLoop, StreamPlayerFactory& players) :
    remainingSeconds(*this, seconds(settings.focusMinutes())),
    isRunning(*this, false),
    hasStarted(*this, false),
    phase(*this, PomodoroPhase::focus),
    autoTransition(*this, settings.autoTransition()),
    focusDuration(*this, seconds(settings.focusMinutes())),
    breakDuration(*this, seconds(settings.breakMinutes())),
    m_settings(settings),
    m_runLoop(runLoop),
    m_musicPlayer(players)
{
    m_autoTransitionWriteThrough = autoTransition.laterChanges([this](bool on) { m_settings.autoTransition.set(on); });
}

void PomodoroTimer::start()
{
    if (isRunning())
        return;
    isRunning.set(true);
    hasStarted.set(true);
    startMusicForCurrentPhase();
    m_ticks = m_runLoop.every(std::chrono::seconds(1), [this] { tick(); });
}

void PomodoroTimer::pause()
{
    isRunning.set(false);
    m_ticks.cancel();
    m_musicPlayer.pause();
}

void PomodoroTimer::reset()
{
    pause();
    hasStarted.set(false);
    remainingSeconds.set(fullLength());
    m_musicPlayer.stop();
}

void PomodoroTimer::switchToPhase(PomodoroPhase newPhase)
{
    if (newPhase == phase()) {
        reset();
        return;
    }
    pause();
    m_musicPlayer.stop();
    phase.set(newPhase);
    hasStarted.set(false);
    remainingSeconds.set(fullLength());
}

void PomodoroTimer::updateDurations(std::int64_t focusMinutes, std::int64_t breakMinutes)
{
    pause();
    m_musicPlayer.stop();
    setDurations(focusMinutes, breakMinutes);
    remainingSeconds.set(fullLength());
    hasStarted.set(false);
    storeDurations(focusMinutes, breakMinutes);
}

void PomodoroTimer::updateDurationsWithoutReset(std::int64_t focusMinutes, std::int64_t breakMinutes)
{
    setDurations(focusMinutes, breakMinutes);
    storeDurations(focusMinutes, breakMinutes);
}

void PomodoroTimer::startMusicForCurrentPhase()
{
    const bool isFocus = phase() == PomodoroPhase::focus;
    if (!(isFocus ? m_settings.enableFocusMusic() : m_settings.enableBreakMusic()))
        return;
    const auto url = isFocus ? m_settings.getFocusMusicURL() : m_settings.getBreakMusicURL();
    if (!url.empty())
        m_musicPlayer.play(url, m_settings.musicVolume());
}

void PomodoroTimer::tick()
{
    if (remainingSeconds() < 1) {
        sessionFinished();
        return;
    }
    if (remainingSeconds() <= countdownCueSeconds)
        m_settings.playSound(m_settings.countdownSound());
    remainingSeconds.set(checkedSubtract(remainingSeconds(), 1));
}

void PomodoroTimer::sessionFinished()
{
    pause();
    m_musicPlayer.stop();
    playSound(phase());
    phase.set(otherPhase(phase()));
    remainingSeconds.set(fullLength());
    hasStarted.set(false);
    if (autoTransition())
        start();
}

void PomodoroTimer::playSound(PomodoroPhase endedPhase)
{
    m_settings.playSound(endedPhase == PomodoroPhase::focus ? m_settings.focusEndSound() : m_settings.breakEndSound());
    NotificationCenter::defaultCenter().post(pomodoroSessionCompleted, endedPhase);
}

void PomodoroTimer::setDurations(std::int64_t focusMinutes, std::int64_t breakMinutes)
{
    const auto focusSeconds = seconds(std::max<std::int64_t>(focusMinutes, 1));
    const auto breakSeconds = seconds(std::max<std::int64_t>(breakMinutes, 1));
    focusDuration.set(focusSeconds);
    breakDuration.set(breakSeconds);
}

void PomodoroTimer::storeDurations(std::int64_t focusMinutes, std::int64_t breakMinutes)
{
    m_settings.focusMinutes.set(focusMinutes);
    m_settings.breakMinutes.set(breakMinutes);
}

std::int64_t PomodoroTimer::fullLength() const
{
    return phase() == PomodoroPhase::focus ? focusDuration() : breakDuration();
}

} // namespace velto
