// SPDX-License-Identifier: MIT
#pragma once

#include "core/PomodoroTimer.h"
#include "observation/NotificationCenter.h"
#include "settings/AppSettings.h"
#include "support/ChangeLog.h"
#include "support/World.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace velto {

/// The timer in its world, and a log of all it does.
class TimerFixture : public testing::Test, protected World {
protected:
    using Lines = std::vector<std::string>;

    /// Made on first use; the log has all it does from then on.
    PomodoroTimer& timer()
    {
        const bool isNew = !m_timer;
        auto& made = World::timer();
        if (isNew)
            watch();
        return made;
    }

    void useMusic()
    {
        settings.enableFocusMusic.set(true);
        settings.focusMusicPreset.set(MusicPreset::lush);
        settings.enableBreakMusic.set(true);
        settings.breakMusicPreset.set(MusicPreset::ambient);
    }

    void startAndTick(std::int64_t ticks)
    {
        timer().start();
        tick(ticks);
        log.take();
    }

    /// From `remainingSeconds` down to the tick that ends the phase.
    void finishPhase()
    {
        timer().start();
        tick(timer().remainingSeconds() + 1);
    }

    void expectReady(PomodoroPhase phase, std::int64_t remaining)
    {
        EXPECT_EQ(timer().phase(), phase);
        EXPECT_EQ(timer().remainingSeconds(), remaining);
        EXPECT_FALSE(timer().isRunning());
        EXPECT_FALSE(timer().hasStarted());
        EXPECT_EQ(runLoop.liveTimers(), 0U);
    }

    [[nodiscard]] Lines storedKeys() const
    {
        Lines keys;
        for (const auto& write : store.writes)
            keys.push_back(write.first);
        return keys;
    }

    ChangeLog log;

    const std::string lush{streamUrl(MusicPreset::lush)};
    const std::string ambient{streamUrl(MusicPreset::ambient)};

private:
    void watch()
    {
        log.observe("remainingSeconds", m_timer->remainingSeconds);
        log.observe("isRunning", m_timer->isRunning);
        log.observe("hasStarted", m_timer->hasStarted);
        log.observe("phase", m_timer->phase);
        log.observe("autoTransition", m_timer->autoTransition);
        log.observe("focusDuration", m_timer->focusDuration);
        log.observe("breakDuration", m_timer->breakDuration);
        log.observe("isPlaying", m_timer->musicPlayer().isPlaying);
        log.observe("currentURL", m_timer->musicPlayer().currentURL);
        log.keep(NotificationCenter::defaultCenter().addObserver(
            pomodoroSessionCompleted, [this](const Notification& notification) {
                log.add("completed " + ChangeLog::text(std::any_cast<PomodoroPhase>(notification.object)));
            }));
        sounds.onPlay = [this] { log.add("sound " + sounds.played.back()); };
        store.onWrite = [this] { log.add("stored " + store.writes.back().first); };
        store.writes.clear();
        players.calls.clear();
    }
};

} // namespace velto
