// SPDX-License-Identifier: MIT
#include "StreamTest.h"

#include <malloc.h>

#include <cmath>
#include <utility>

namespace velto {
namespace {

using namespace std::chrono_literals;

class GstStreamPlayerTest : public StreamTest { };

TEST_F(GstStreamPlayerTest, TouchesNothingBeforeTheFirstStream)
{
    const auto before = Resources::now();

    player = players->makePlayer(streams.url("tone.mp3"));
    player->setVolume(0.5);
    player->pause();

    EXPECT_EQ(Resources::now().threads, before.threads);
    EXPECT_EQ(Resources::now().handles, before.handles);
    EXPECT_EQ(streams.connections(), 0);
}

TEST_F(GstStreamPlayerTest, TakesWebAddressesOnly)
{
    EXPECT_TRUE(players->accepts("https://example.org/stream"));
    EXPECT_FALSE(players->accepts("file:///etc/passwd"));
    EXPECT_FALSE(players->accepts(""));
}

TEST_F(GstStreamPlayerTest, IsHeardWithinTwoSecondsOverOneConnection)
{
    recording = std::make_unique<Recording>();
    const auto start = Clock::now();
    play(streams.url("tone.mp3"));

    ASSERT_TRUE(eventually([&] { return toneIsHeard(); }));

    EXPECT_LT(Clock::now() - start, 2s);
    EXPECT_EQ(streams.connections(), 1);
    EXPECT_EQ(streams.openConnections(), 1);
}

TEST_F(GstStreamPlayerTest, PlaysInTheRoleOfMusicUnderTheProgramsName)
{
    play(streams.url("tone.mp3"));
    ASSERT_TRUE(eventually([&] { return toneIsHeard(); }));

    const auto inputs = sound.list("sink-inputs");
    EXPECT_TRUE(inputs.contains("media.role = \"music\"")) << inputs.toStdString();
    EXPECT_TRUE(inputs.contains("application.name = \"velto\"")) << inputs.toStdString();
    EXPECT_TRUE(inputs.contains("application.id = \"org.velto.Velto\"")) << inputs.toStdString();
}

TEST_F(GstStreamPlayerTest, PauseSilencesAtOnceAndClosesTheConnection)
{
    play(streams.url("tone.mp3"));
    ASSERT_TRUE(eventually([&] { return toneIsHeard(); }));

    const auto pause = Clock::now();
    player->pause();

    ASSERT_TRUE(eventually([&] { return streams.openConnections() == 0; }));
    ASSERT_TRUE(eventually([&] { return Clock::now() - pause > 1s; }));
    EXPECT_LT(recording->lastSound() - pause, 300ms);
    EXPECT_EQ(recording->amplitude(tone), 0);
}

TEST_F(GstStreamPlayerTest, EveryPlayOpensTheStreamAnew)
{
    play(streams.url("tone.mp3"));
    ASSERT_TRUE(eventually([&] { return toneIsHeard(); }));

    player->pause();
    ASSERT_TRUE(eventually([&] { return streams.openConnections() == 0; }));
    player->play();
    ASSERT_TRUE(eventually([&] { return streams.connections() == 2 && toneIsHeard(); }));
    player->play();
    ASSERT_TRUE(eventually([&] { return streams.connections() == 3 && streams.openConnections() == 1; }));
    ASSERT_TRUE(eventually([&] { return toneIsHeard(); }));
}

TEST_F(GstStreamPlayerTest, VolumeIsLinear)
{
    play(streams.url("tone.mp3"));
    ASSERT_TRUE(eventually([&] { return toneIsHeard(); }));
    const std::pair<float, double> volumes[]{
        {0.5F, 0.5}, {0.25F, 0.25}, {1.7F, 1}, {-0.2F, 0}, {0.5F, 0.5}, {std::nanf(""), 0}, {1, 1}};
    for (const auto& [volume, amplitude] : volumes) {
        player->setVolume(volume);
        EXPECT_TRUE(eventually([&] {
            return std::abs(recording->amplitude(tone) / toneAmplitude - amplitude) < std::max(0.05 * amplitude, 0.001);
        })) << volume
            << " gives " << recording->amplitude(tone) / toneAmplitude;
    }
}

TEST_F(GstStreamPlayerTest, StartsAtTheVolumeSetBefore)
{
    recording = std::make_unique<Recording>();
    player = players->makePlayer(streams.url("tone.mp3"));
    player->setVolume(0.25);
    player->play();

    ASSERT_TRUE(eventually([&] { return recording->amplitude(tone) > 0.2 * toneAmplitude; }));
    const auto& samples = recording->samples();
    EXPECT_LT(*std::ranges::max_element(samples), 0.3 * toneAmplitude);
}

TEST_F(GstStreamPlayerTest, PlaysTheUsualKindsOfStream)
{
    for (const auto* path : {"tone.aac", "tone.ogg", "shoutcast", "titles", "relative/to", "to-secure"}) {
        play(streams.url(path));
        EXPECT_TRUE(eventually([&] { return toneIsHeard(); }, 15s)) << path;
        player->pause();
        EXPECT_TRUE(eventually([&] { return recording->amplitude(tone) == 0; })) << path;
    }
}

TEST_F(GstStreamPlayerTest, PlaysOverAConnectionThatTheSystemTrusts)
{
    play(streams.url("tone.mp3", "good"));

    EXPECT_TRUE(eventually([&] { return toneIsHeard(); }));
}

TEST_F(GstStreamPlayerTest, ComesBackWhenTheStreamEnds)
{
    play(streams.url("dropping"));
    ASSERT_TRUE(eventually([&] { return toneIsHeard(); }));
    ASSERT_TRUE(eventually([&] { return !toneIsHeard(); }));

    EXPECT_TRUE(eventually([&] { return streams.connections() == 2 && toneIsHeard(); }));
}

TEST_F(GstStreamPlayerTest, ComesBackWhenTheStreamStalls)
{
    play(streams.url("stalling"));
    ASSERT_TRUE(eventually([&] { return toneIsHeard(); }));
    ASSERT_TRUE(eventually([&] { return !toneIsHeard(); }));
    const auto silent = Clock::now();

    EXPECT_TRUE(eventually([&] { return streams.connections() == 2; }));
    EXPECT_LT(Clock::now() - silent, 10s);
    EXPECT_TRUE(eventually([&] { return toneIsHeard(); }));
}

TEST_F(GstStreamPlayerTest, ComesBackWithTheSoundServer)
{
    play(streams.url("tone.mp3"));
    ASSERT_TRUE(eventually([&] { return toneIsHeard(); }));

    recording.reset();
    sound.kill();
    ASSERT_TRUE(eventually([&] { return streams.openConnections() == 0; }));
    sound.start();
    recording = std::make_unique<Recording>();

    EXPECT_TRUE(eventually([&] { return toneIsHeard(); }));
}

TEST_F(GstStreamPlayerTest, AHangingSoundServerHoldsUpNobody)
{
    play(streams.url("tone.mp3"));
    ASSERT_TRUE(eventually([&] { return toneIsHeard(); }));

    sound.freeze();
    const auto start = Clock::now();
    player->setVolume(0.5);
    player->pause();
    player->play();
    player->pause();
    EXPECT_LT(Clock::now() - start, 50ms);
    QTest::qWait(200);
    stopWatchingLoop();

    const auto quit = Clock::now();
    player.reset();
    players.reset();
    EXPECT_LT(Clock::now() - quit, 1s);
    sound.thaw();
}

class ManyRoundsTest : public StreamTest {
protected:
    /// Plays each of `urls` in turn, twenty times to get to know them, and then 180 times more.
    void leavesNothingBehind(const std::vector<std::string>& urls)
    {
        // Two hundred streams in as many moments keep a small machine busy; others watch the loop.
        loop.reset();
        // What the first stream ever brings with it stays.
        play(streams.url("tone.mp3"));
        ASSERT_TRUE(eventually([&] { return toneIsHeard(); }));
        player->pause();
        recording.reset();

        const auto playRounds = [&](std::size_t rounds) {
            for (std::size_t i = 0; i < rounds; ++i) {
                const auto connections = streams.connections();
                player = players->makePlayer(urls[i % urls.size()]);
                player->play();
                EXPECT_TRUE(eventually([&] { return streams.connections() > connections; }));
                player->pause();
                EXPECT_TRUE(eventually([&] { return streams.openConnections() == 0; }));
            }
            malloc_trim(0);
        };
        playRounds(20);
        const auto before = Resources::now();

        playRounds(180);

        // Threads that are kept for reuse go a while later.
        EXPECT_TRUE(eventually([&] {
            const auto now = Resources::now();
            return now.threads <= before.threads && now.handles <= before.handles && now.sockets <= before.sockets;
        })) << before
            << " became " << Resources::now();
        EXPECT_LT(Resources::now().memory, before.memory + (2 << 20)) << before << " became " << Resources::now();
    }
};

TEST_F(ManyRoundsTest, OfPlayingLeaveNothingBehind)
{
    leavesNothingBehind({streams.url("tone.mp3")});
}

TEST_F(ManyRoundsTest, OfMisbehaviourLeaveNothingBehind)
{
    leavesNothingBehind({streams.url("silent"), streams.url("missing"), streams.url("broken"), streams.url("page"),
        streams.url("garbage"), streams.url("loop/1"), streams.url("to-plain", "good"), streams.url("to-file"),
        streams.url("dropping"), streams.url("stalling"), streams.url("trickle"), streams.url("tone.mp3", "wrong-host"),
        streams.url("tone.mp3", "expired"), streams.url("tone.mp3", "unknown-authority"), streams.url("titles"),
        streams.url("long-name"), streams.url("playlist.m3u"), streams.url("playlist.m3u8/passwd")});
}

} // namespace
} // namespace velto
