// SPDX-License-Identifier: MIT
#pragma once

#include "core/PomodoroPhase.h"
#include "music/MusicPlayer.h"
#include "observation/Published.h"
#include "platform/RunLoop.h"

#include <cstdint>

namespace velto {

class AppSettings;

/// Posted at the end of every phase, while the engine still shows it; the object is the
/// `PomodoroPhase` that has ended.
inline constexpr auto pomodoroSessionCompleted = "pomodoroSessionCompleted";

/// Counts the current phase down once a second and moves on to the other phase at its end.
///
/// A phase of N seconds ends on tick N + 1: it stays at zero for one second. Main thread only.
class PomodoroTimer : public ObservableObject {
public:
    /// Reads the durations and `autoTransition` from the settings, once. All must outlive this.
    PomodoroTimer(AppSettings& settings, RunLoop& runLoop, StreamPlayerFactory& players);

    ReadOnlyPublished<std::int64_t, PomodoroTimer> remainingSeconds;
    ReadOnlyPublished<bool, PomodoroTimer> isRunning;
    /// Whether the phase has been started since it last had its full length.
    ReadOnlyPublished<bool, PomodoroTimer> hasStarted;
    ReadOnlyPublished<PomodoroPhase, PomodoroTimer> phase;
    /// Start the next phase at the end of one. Changes are written to the settings, never read back.
    Published<bool> autoTransition;
    ReadOnlyPublished<std::int64_t, PomodoroTimer> focusDuration; ///< Seconds.
    ReadOnlyPublished<std::int64_t, PomodoroTimer> breakDuration; ///< Seconds.

    [[nodiscard]] MusicPlayer& musicPlayer() { return m_musicPlayer; }

    /// Begins or resumes counting. No effect while running.
    void start();
    void pause();
    /// Returns the current phase to its full length, stopped.
    void reset();
    /// Moves to `newPhase` at its full length, stopped; for the current phase the same as `reset()`.
    void switchToPhase(PomodoroPhase newPhase);

    /// Stops and returns the current phase to its new full length. Less than a minute runs as
    /// one minute, but is stored in the settings as given.
    void updateDurations(std::int64_t focusMinutes, std::int64_t breakMinutes);
    /// The same without touching the countdown, the running state or the music.
    void updateDurationsWithoutReset(std::int64_t focusMinutes, std::int64_t breakMinutes);

    /// Opens the stream of the current phase. Leaves the player alone if that phase's music is
    /// off or has no address; for silence, stop it first.
    void startMusicForCurrentPhase();

private:
    void tick();
    void sessionFinished();
    void playSound(PomodoroPhase endedPhase);
    void setDurations(std::int64_t focusMinutes, std::int64_t breakMinutes);
    void storeDurations(std::int64_t focusMinutes, std::int64_t breakMinutes);
    [[nodiscard]] std::int64_t fullLength() const;

    AppSettings& m_settings;
    RunLoop& m_runLoop;
    MusicPlayer m_musicPlayer;
    Subscription m_ticks;
    Subscription m_autoTransitionWriteThrough;
};

} // namespace velto
