// SPDX-License-Identifier: MIT
#include "StreamTest.h"

#include <filesystem>
#include <fstream>
#include <string>

namespace velto {

using namespace std::chrono_literals;

void StreamTest::SetUp()
{
    sound.start();
    application.startWatching();
}

void StreamTest::TearDown()
{
    dropPlayer();
    EXPECT_TRUE(eventually([&] { return streams.openConnections() == 0; }));
    EXPECT_TRUE(eventually([&] { return playing().empty(); }));
    EXPECT_TRUE(application.isNeverHeldUp()) << application.longestTurn().count() << " ms";
}

void StreamTest::listenTo(const std::string& url)
{
    if (!recording)
        recording = std::make_unique<Recording>();
    play(url);
}

void StreamTest::play(const std::string& url, float volume)
{
    ASSERT_TRUE(players.accepts(url));
    dropPlayer();
    application.turn([&] {
        player = players.makePlayer(url);
        player->setVolume(volume);
        player->play();
    });
}

void StreamTest::playAgain()
{
    application.turn([&] { player->play(); });
}

void StreamTest::setVolume(float volume)
{
    application.turn([&] { player->setVolume(volume); });
}

void StreamTest::pause()
{
    application.turn([&] { player->pause(); });
}

void StreamTest::dropPlayer()
{
    application.turn([&] { player.reset(); });
}

std::vector<pid_t> StreamTest::playing() const
{
    std::vector<pid_t> found;
    std::ifstream children("/proc/thread-self/children");
    for (pid_t child = 0; children >> child;) {
        std::ifstream file("/proc/" + std::to_string(child) + "/comm");
        std::string name;
        file >> name;
        if (name == "velto-stream")
            found.push_back(child);
    }
    return found;
}

} // namespace velto
