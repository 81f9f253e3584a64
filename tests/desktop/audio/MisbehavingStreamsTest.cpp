// SPDX-License-Identifier: MIT
#include "StreamTest.h"

namespace velto {
namespace {

using namespace std::chrono_literals;

/// A stream that is not to be heard, but tried again and again.
struct Misbehaviour {
    const char* name;
    const char* path;
    const char* port = "plain";
    int connectionsForATry = 1;
};

std::ostream& operator<<(std::ostream& stream, const Misbehaviour& misbehaviour)
{
    return stream << misbehaviour.name;
}

class MisbehavingStreamsTest : public StreamTest, public testing::WithParamInterface<Misbehaviour> { };

TEST_P(MisbehavingStreamsTest, DisturbNothing)
{
    // What the first stream ever brings with it stays, and is not counted.
    play(streams.url("tone.mp3"));
    ASSERT_TRUE(eventually([&] { return toneIsHeard(); }));
    player.reset();
    ASSERT_TRUE(eventually([&] { return recording->amplitude(tone) == 0 && streams.openConnections() == 0; }));
    QTest::qWait(500);
    const auto before = Resources::now();
    recording = std::make_unique<Recording>();

    play(streams.url(GetParam().path, GetParam().port));
    if (GetParam().port == std::string("refused")) {
        QTest::qWait(3000);
    } else {
        const int tries = 1 + 2 * GetParam().connectionsForATry;
        EXPECT_TRUE(eventually([&] { return streams.connections() >= tries; })) << streams.connections();
    }

    EXPECT_TRUE(recording->isSilent());
    const auto stop = Clock::now();
    player.reset();
    EXPECT_LT(Clock::now() - stop, 50ms);
    ASSERT_TRUE(eventually([&] { return streams.openConnections() == 0; }));
    EXPECT_LT(Clock::now() - stop, 1s);
    EXPECT_TRUE(eventually([&] {
        const auto now = Resources::now();
        return now.threads <= before.threads && now.handles <= before.handles && now.sockets <= before.sockets;
    })) << before
        << " became " << Resources::now();
}

INSTANTIATE_TEST_SUITE_P(All, MisbehavingStreamsTest,
    testing::Values(Misbehaviour{"Refused", "tone.mp3", "refused"}, Misbehaviour{"NeverAnswering", "silent"},
        Misbehaviour{"Missing", "missing"}, Misbehaviour{"Broken", "broken"}, Misbehaviour{"Page", "page"},
        Misbehaviour{"Garbage", "garbage"}, Misbehaviour{"RedirectLoop", "loop/1", "plain", 11},
        Misbehaviour{"RedirectToPlain", "to-plain", "good"}, Misbehaviour{"RedirectToFile", "to-file"},
        Misbehaviour{"OneByteASecond", "trickle"}, Misbehaviour{"EndlessHeader", "long-name"},
        Misbehaviour{"WrongHost", "tone.mp3", "wrong-host"}, Misbehaviour{"Expired", "tone.mp3", "expired"},
        Misbehaviour{"UnknownAuthority", "tone.mp3", "unknown-authority"},
        Misbehaviour{"PlaylistOfFiles", "playlist.m3u"}, Misbehaviour{"OtherPlaylistOfFiles", "playlist.pls"},
        Misbehaviour{"SegmentsInFiles", "playlist.m3u8/tone"},
        Misbehaviour{"SegmentsInPasswd", "playlist.m3u8/passwd"}),
    [](const auto& instance) { return instance.param.name; });

} // namespace
} // namespace velto
