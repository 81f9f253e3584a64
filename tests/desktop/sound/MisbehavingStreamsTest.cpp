// SPDX-License-Identifier: MIT
#include "Misbehaviour.h"
#include "StreamTest.h"

namespace velto {
namespace {

using namespace std::chrono_literals;

class MisbehavingStreamsTest : public StreamTest, public testing::WithParamInterface<Misbehaviour> { };

TEST_P(MisbehavingStreamsTest, DisturbNothing)
{
    const auto before = Resources::now();
    recording = std::make_unique<Recording>();

    play(streams.url(GetParam().path, GetParam().port));
    if (GetParam().connectionsForATry == 0) {
        QTest::qWait(3000);
    } else {
        const int tries = 1 + 2 * GetParam().connectionsForATry;
        EXPECT_TRUE(eventually([&] { return streams.connections() >= tries; })) << streams.connections();
    }

    EXPECT_TRUE(recording->isSilent());
    recording.reset();
    dropPlayer();
    EXPECT_TRUE(eventually([&] { return streams.openConnections() == 0; }, 1s));
    EXPECT_TRUE(eventually([&] { return Resources::now().areNoMoreThan(before); }))
        << before << " became " << Resources::now();
}

INSTANTIATE_TEST_SUITE_P(All, MisbehavingStreamsTest, testing::ValuesIn(allMisbehaviours),
    [](const auto& instance) { return instance.param.name; });

} // namespace
} // namespace velto
