// SPDX-License-Identifier: MIT
#pragma once

#include "Recording.h"
#include "Resources.h"
#include "SoundServer.h"
#include "StreamServer.h"
#include "WatchedApplication.h"
#include "desktop/session/QtRunLoop.h"
#include "desktop/sound/ProcessStreamPlayerFactory.h"

#include <gtest/gtest.h>

#include <vector>

namespace velto {

/// A player, a server of streams and a server of sound; and nothing of it may hold up the event loop, go slowly or
/// stay.
class StreamTest : public testing::Test {
protected:
    using Clock = std::chrono::steady_clock;

    static constexpr double tone = 440;
    static constexpr double toneAmplitude = 0.5;

    void SetUp() override;
    void TearDown() override;

    /// Begins a recording, unless there is one, and plays at full loudness.
    void listenTo(const std::string& url);
    /// What a player is told is a turn of the event loop.
    void play(const std::string& url, float volume = 1);
    void playAgain();
    void setVolume(float volume);
    void pause();
    void dropPlayer();

    /// The runs of the program that plays, while they last and until they are reaped.
    [[nodiscard]] std::vector<pid_t> playing() const;
    [[nodiscard]] bool toneIsHeard() { return recording->amplitude(tone) > 0.8 * toneAmplitude; }

    SoundServer sound;
    StreamServer streams;
    std::unique_ptr<Recording> recording;
    QtRunLoop runLoop;
    ProcessStreamPlayerFactory players{VELTO_STREAM_PROGRAM, runLoop};
    std::unique_ptr<StreamPlayer> player;
    WatchedApplication& application = WatchedApplication::instance();
};

} // namespace velto
