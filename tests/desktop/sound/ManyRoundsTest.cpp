// SPDX-License-Identifier: MIT
#include "Misbehaviour.h"
#include "StreamTest.h"

#include <malloc.h>

#include <random>

namespace velto {
namespace {

using namespace std::chrono_literals;

/// Two hundred times the same stream, stopped at every moment there is.
class ManyRoundsTest : public StreamTest, public testing::WithParamInterface<Misbehaviour> {
protected:
    void playRounds(int rounds)
    {
        for (int i = 0; i < rounds; ++i) {
            const auto connections = streams.connections();
            play(streams.url(GetParam().path, GetParam().port));
            switch (i % 4) {
            case 0: // At once.
                break;
            case 1: // While the program gets ready.
                waitUpTo(40ms);
                break;
            case 2: // When it connects.
                EXPECT_TRUE(eventually([&] { return hasConnected(connections); }));
                break;
            default: // When it hears what it gets.
                EXPECT_TRUE(eventually([&] { return hasConnected(connections); }));
                waitUpTo(30ms);
            }
            pause();
        }
        dropPlayer();
        EXPECT_TRUE(eventually([&] { return streams.openConnections() == 0 && playing().empty(); }));
        malloc_trim(0);
    }

    bool hasConnected(int before)
    {
        return GetParam().connectionsForATry ? streams.connections() > before : playing().empty();
    }

    void waitUpTo(std::chrono::milliseconds longest)
    {
        QTest::qWait(std::uniform_int_distribution(0, static_cast<int>(longest.count()))(m_random));
    }

private:
    std::minstd_rand m_random{1};
};

TEST_P(ManyRoundsTest, LeaveNothingBehind)
{
    playRounds(20);
    const auto before = Resources::now();

    playRounds(180);

    EXPECT_TRUE(eventually([&] { return Resources::now().areNoMoreThan(before); }))
        << before << " became " << Resources::now();
    // One object a round would be more.
    EXPECT_LT(Resources::now().memory, before.memory + (128 << 10)) << before << " became " << Resources::now();
}

std::string nameOf(const testing::TestParamInfo<Misbehaviour>& instance)
{
    return instance.param.name;
}

INSTANTIATE_TEST_SUITE_P(Of, ManyRoundsTest, testing::ValuesIn(allMisbehaviours), nameOf);
INSTANTIATE_TEST_SUITE_P(OfSound, ManyRoundsTest,
    testing::Values(Misbehaviour{"Music", "tone.mp3"}, Misbehaviour{"ProtectedMusic", "tone.mp3", "good"},
        Misbehaviour{"LongTitles", "titles"}),
    nameOf);

} // namespace
} // namespace velto
