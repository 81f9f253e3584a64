// SPDX-License-Identifier: MIT
#include "StreamTest.h"

namespace velto {

using namespace std::chrono_literals;

void StreamTest::play(const std::string& url)
{
    if (!recording)
        recording = std::make_unique<Recording>();
    ASSERT_TRUE(players->accepts(url));
    player = players->makePlayer(url);
    player->setVolume(1);
    player->play();
}

void StreamTest::TearDown()
{
    stopWatchingLoop();
    const auto start = Clock::now();
    player.reset();
    players.reset();
    EXPECT_LT(Clock::now() - start, 1s);
    EXPECT_TRUE(eventually([&] { return streams.openConnections() == 0; }));
}

void StreamTest::stopWatchingLoop()
{
    if (loop) {
        EXPECT_TRUE(loop->ranSmoothly()) << loop->longestStall().count() << " ms";
    }
    loop.reset();
}

} // namespace velto
