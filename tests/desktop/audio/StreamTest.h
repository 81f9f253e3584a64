// SPDX-License-Identifier: MIT
#pragma once

#include "LoopWatch.h"
#include "Recording.h"
#include "Resources.h"
#include "SoundServer.h"
#include "StreamServer.h"
#include "desktop/GstStreamPlayerFactory.h"

#include <gtest/gtest.h>

#include <optional>

namespace velto {

/// A player, a server of streams and a server of sound; and nothing of it may hold up the event loop,
/// go slowly or stay.
class StreamTest : public testing::Test {
protected:
    using Clock = std::chrono::steady_clock;

    static constexpr double tone = 440;
    static constexpr double toneAmplitude = 0.5;

    void SetUp() override { sound.start(); }
    void TearDown() override;

    /// Plays at full loudness.
    void play(const std::string& url);
    /// For what may hold it up: going.
    void stopWatchingLoop();
    [[nodiscard]] bool toneIsHeard() { return recording->amplitude(tone) > 0.8 * toneAmplitude; }

    SoundServer sound;
    StreamServer streams;
    std::unique_ptr<Recording> recording;
    std::optional<LoopWatch> loop{std::in_place};
    std::unique_ptr<GstStreamPlayerFactory> players = std::make_unique<GstStreamPlayerFactory>();
    std::unique_ptr<StreamPlayer> player;
};

} // namespace velto
