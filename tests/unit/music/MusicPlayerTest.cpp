// SPDX-License-Identifier: MIT
#include "music/MusicPlayer.h"

#include "support/ChangeLog.h"
#include "support/FakeStreamPlayerFactory.h"

#include <gtest/gtest.h>

#include <iostream>
#include <optional>
#include <sstream>
#include <string>
#include <vector>

namespace velto {

namespace {

/// Standard output, kept instead of shown.
class CapturedOutput : public std::stringbuf {
public:
    CapturedOutput() { std::cout.rdbuf(this); }
    CapturedOutput(const CapturedOutput&) = delete;
    CapturedOutput& operator=(const CapturedOutput&) = delete;
    ~CapturedOutput() override { std::cout.rdbuf(m_original); }

    std::string flushed; ///< What a reader at the other end has by now.

protected:
    int sync() override
    {
        flushed = str();
        return 0;
    }

private:
    std::streambuf* m_original = std::cout.rdbuf();
};

const std::string url = "https://radio.example/live";

} // namespace

class MusicPlayerTest : public testing::Test {
protected:
    using Lines = std::vector<std::string>;

    MusicPlayerTest()
    {
        log.observe("isPlaying", music->isPlaying);
        log.observe("currentURL", music->currentURL);
    }

    void expectState(bool isPlaying, const std::optional<std::string>& currentURL) const
    {
        EXPECT_EQ(music->isPlaying(), isPlaying);
        EXPECT_EQ(music->currentURL(), currentURL);
    }

    CapturedOutput output;
    ChangeLog log; // Written to until the last player is gone.
    FakeStreamPlayerFactory players;
    std::optional<MusicPlayer> music{players};
};

TEST_F(MusicPlayerTest, BeginsIdle)
{
    expectState(false, std::nullopt);
    EXPECT_TRUE(players.opened.empty());
}

TEST_F(MusicPlayerTest, PlayOpensTheStreamAtTheVolumeAndReportsIt)
{
    music->play(url, 0.25F);

    EXPECT_EQ(players.opened, Lines{url});
    EXPECT_EQ(players.calls, (Lines{"1 made", "1 volume 0.25", "1 play"}));
    expectState(true, url);
    EXPECT_EQ(output.flushed, "Started playing music from: https://radio.example/live\n");
}

TEST_F(MusicPlayerTest, PlayPublishesTheAddressBeforeThePlayerAndPlayingAfterIt)
{
    players.onCall = [this] { log.add(players.calls.back()); };

    music->play(url, 0.25F);

    EXPECT_EQ(log.take(),
        (Lines{"isPlaying=false", "currentURL=absent", "currentURL=" + url, "1 made", "1 volume 0.25", "1 play",
            "isPlaying=true"}));
}

TEST_F(MusicPlayerTest, ReportsTheStartOnceItPlays)
{
    std::string saidBefore = "?";
    const auto playing = music->isPlaying.changes([&](bool now) {
        if (now)
            saidBefore = output.str();
    });

    music->play(url, 0.25F);

    EXPECT_EQ(saidBefore, "");
}

TEST_F(MusicPlayerTest, PlayingTheSameAddressTwiceStartsItFromScratch)
{
    music->play(url, 0.25F);
    music->play(url, 0.5F);

    EXPECT_EQ(players.calls,
        (Lines{"1 made", "1 volume 0.25", "1 play", "1 pause", "1 gone", "2 made", "2 volume 0.5", "2 play"}));
    expectState(true, url);
    EXPECT_EQ(output.flushed,
        "Started playing music from: https://radio.example/live\n"
        "Started playing music from: https://radio.example/live\n");
}

TEST_F(MusicPlayerTest, AnUnusableAddressIsReportedAndStopsTheMusic)
{
    music->play(url, 0.25F);
    log.take();

    music->play("no address", 0.25F);

    EXPECT_EQ(players.calls, (Lines{"1 made", "1 volume 0.25", "1 play", "1 pause", "1 gone"}));
    EXPECT_EQ(log.take(), (Lines{"isPlaying=false", "currentURL=absent"}));
    expectState(false, std::nullopt);
    EXPECT_EQ(output.flushed,
        "Started playing music from: https://radio.example/live\n"
        "Invalid music URL: no address\n");
}

TEST_F(MusicPlayerTest, AnEmptyAddressIsReportedWithNothingAfterTheColon)
{
    music->play("", 0.25F);

    EXPECT_EQ(output.flushed, "Invalid music URL: \n");
    EXPECT_TRUE(players.opened.empty());
    expectState(false, std::nullopt);
}

TEST_F(MusicPlayerTest, AnAddressWithLineBreaksIsReportedInOneLine)
{
    music->play("no\naddress\r\n", 0.25F);
    music->play("http://radio.example/\n", 0.25F);

    EXPECT_EQ(output.flushed,
        "Invalid music URL: no%0Aaddress%0D%0A\n"
        "Started playing music from: http://radio.example/%0A\n");
    EXPECT_EQ(players.opened, Lines{"http://radio.example/\n"});
    expectState(true, "http://radio.example/\n");
}

TEST_F(MusicPlayerTest, PlayDoesNotLimitTheVolume)
{
    music->play(url, 1.7F);
    EXPECT_EQ(players.calls.at(1), "1 volume 1.7");

    music->play(url, -0.5F);
    EXPECT_EQ(players.calls.at(6), "2 volume -0.5");
}

TEST_F(MusicPlayerTest, SetVolumeLimitsToZeroToOneWithoutNotifying)
{
    music->play(url, 0.25F);
    log.take();
    players.calls.clear();
    const auto printed = output.str();

    for (const float volume : {1.7F, -0.2F, 1.0F, 0.0F, 0.75F})
        music->setVolume(volume);

    EXPECT_EQ(players.calls, (Lines{"1 volume 1", "1 volume 0", "1 volume 1", "1 volume 0", "1 volume 0.75"}));
    EXPECT_TRUE(log.take().empty());
    EXPECT_EQ(output.str(), printed);
}

TEST_F(MusicPlayerTest, SetVolumeHasNoEffectWhileIdle)
{
    music->setVolume(0.5F);
    music->play(url, 0.25F);
    music->stop();
    players.calls.clear();
    music->setVolume(0.5F);

    EXPECT_TRUE(players.calls.empty());
}

TEST_F(MusicPlayerTest, SetVolumeReachesAPausedStream)
{
    music->play(url, 0.25F);
    music->pause();

    music->setVolume(0.5F);

    EXPECT_EQ(players.calls.back(), "1 volume 0.5");
}

TEST_F(MusicPlayerTest, PauseKeepsTheStreamAndItsAddress)
{
    music->play(url, 0.25F);
    log.take();

    music->pause();

    EXPECT_EQ(players.calls, (Lines{"1 made", "1 volume 0.25", "1 play", "1 pause"}));
    EXPECT_EQ(log.take(), Lines{"isPlaying=false"});
    expectState(false, url);
}

TEST_F(MusicPlayerTest, StopAfterPausePausesAgainAndDiscardsThePlayer)
{
    music->play(url, 0.25F);
    music->pause();
    log.take();
    players.onCall = [this] { log.add(players.calls.back()); };

    music->stop();

    EXPECT_EQ(log.take(), (Lines{"1 pause", "1 gone", "isPlaying=false", "currentURL=absent"}));
    expectState(false, std::nullopt);
}

TEST_F(MusicPlayerTest, StopAndPauseWhileIdleStillNotify)
{
    music->stop();
    EXPECT_EQ(log.take(), (Lines{"isPlaying=false", "currentURL=absent"}));

    music->pause();
    EXPECT_EQ(log.take(), Lines{"isPlaying=false"});
    EXPECT_TRUE(players.calls.empty());
}

TEST_F(MusicPlayerTest, OnlyPlayPrints)
{
    music->play(url, 0.25F);
    const auto printed = output.str();

    music->pause();
    music->stop();

    EXPECT_EQ(output.str(), printed);
}

TEST_F(MusicPlayerTest, DestroyingItReleasesThePlayerWithoutPausing)
{
    music->play(url, 0.25F);

    music.reset();

    EXPECT_EQ(players.calls, (Lines{"1 made", "1 volume 0.25", "1 play", "1 gone"}));
}

} // namespace velto
