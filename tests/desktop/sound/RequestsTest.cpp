// SPDX-License-Identifier: MIT
#include "OwnNetwork.h"
#include "StreamTest.h"

#include <ostream>

namespace velto {
namespace {

using namespace std::chrono_literals;

constexpr auto machine = "127.0.0.1";

/// A stream at one address that leads to another one.
struct Step {
    const char* name;
    const char* way; ///< "redirect" or "segments".
    const char* fromPort;
    const char* from;
    const char* toPort;
    const char* to;
};

std::ostream& operator<<(std::ostream& stream, const Step& step)
{
    return stream << step.name;
}

class RequestsTest : public StreamTest, public testing::WithParamInterface<Step> {
protected:
    void SetUp() override
    {
        if (!OwnNetwork::isEntered())
            GTEST_SKIP() << "needs a network namespace";
        StreamTest::SetUp();
    }

    [[nodiscard]] std::string address() const
    {
        const auto& step = GetParam();
        auto target = QString::fromStdString(streams.url("forbidden", step.toPort, step.to)).replace("://", "/");
        return streams.url(QString(step.way) + "/" + target, step.fromPort, step.from);
    }
};

using RefusedRequestsTest = RequestsTest;
using AllowedRequestsTest = RequestsTest;

TEST_P(RefusedRequestsTest, AreNotMade)
{
    play(address());

    // Each attempt asks for the address, and for nothing else.
    EXPECT_TRUE(eventually([&] { return streams.requests() >= 2; }));
    EXPECT_EQ(streams.forbiddenRequests(), 0);
    EXPECT_EQ(streams.connections(), streams.requests());
}

TEST_P(AllowedRequestsTest, AreMade)
{
    play(address());

    EXPECT_TRUE(eventually([&] { return streams.forbiddenRequests() > 0; }));
}

INSTANTIATE_TEST_SUITE_P(All, RefusedRequestsTest,
    testing::Values(Step{"RedirectionFromProtected", "redirect", "good", machine, "plain", machine},
        Step{"SegmentFromProtected", "segments", "good", machine, "plain", machine},
        Step{"RedirectionFromTheWorldToTheMachine", "redirect", "plain", OwnNetwork::world, "plain", machine},
        Step{"RedirectionFromTheWorldHome", "redirect", "plain", OwnNetwork::world, "plain", OwnNetwork::home},
        Step{"RedirectionFromHomeToTheMachine", "redirect", "plain", OwnNetwork::home, "plain", machine},
        Step{"SegmentFromTheWorldToTheMachine", "segments", "plain", OwnNetwork::world, "plain", machine},
        Step{"SegmentFromTheWorldHome", "segments", "plain", OwnNetwork::world, "plain", OwnNetwork::home},
        Step{"SegmentFromTheWorldToAnyAddress", "segments", "plain", OwnNetwork::world, "plain", "0.0.0.0"},
        Step{"SegmentFromTheWorldToAMappedAddress", "segments", "plain", OwnNetwork::world, "plain",
            "[::ffff:127.0.0.1]"}),
    [](const auto& instance) { return instance.param.name; });

INSTANTIATE_TEST_SUITE_P(All, AllowedRequestsTest,
    testing::Values(Step{"RedirectionToProtected", "redirect", "plain", machine, "good", machine},
        Step{"SegmentToProtected", "segments", "plain", machine, "good", machine},
        Step{"RedirectionWithinTheWorld", "redirect", "plain", OwnNetwork::world, "plain", OwnNetwork::world},
        Step{"SegmentWithinTheWorld", "segments", "plain", OwnNetwork::world, "plain", OwnNetwork::world},
        Step{"RedirectionFromHomeToTheWorld", "redirect", "plain", OwnNetwork::home, "plain", OwnNetwork::world},
        Step{"SegmentFromTheMachineHome", "segments", "plain", machine, "plain", OwnNetwork::home}),
    [](const auto& instance) { return instance.param.name; });

class RedirectedSegmentsTest : public StreamTest {
protected:
    /// Where a segment is that `path` answers for.
    [[nodiscard]] std::string segmentsOf(const std::string& segment) const
    {
        return streams.url("segments/" + QString::fromStdString(segment).replace("://", "/"), "good");
    }
};

TEST_F(RedirectedSegmentsTest, StayProtected)
{
    const auto target = QString::fromStdString(streams.url("forbidden")).replace("://", "/");
    play(segmentsOf(streams.url("redirect/" + target, "good")));

    EXPECT_TRUE(eventually([&] { return streams.requests() >= 4; }));
    EXPECT_EQ(streams.forbiddenRequests(), 0);
}

TEST_F(RedirectedSegmentsTest, AreFollowedTenTimesAndNoMore)
{
    play(segmentsOf(streams.url("loop/38", "good")));

    // The playlist, the segment and ten redirections.
    EXPECT_TRUE(eventually([&] { return playing().size() == 1; }));
    EXPECT_TRUE(eventually([&] { return playing().empty(); }));
    EXPECT_EQ(streams.requests(), 12);
}

} // namespace
} // namespace velto
