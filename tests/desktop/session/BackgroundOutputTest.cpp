// SPDX-License-Identifier: MIT
#include "desktop/session/BackgroundOutput.h"

#include <QCoreApplication>
#include <gtest/gtest.h>

#include <chrono>
#include <csignal>
#include <filesystem>
#include <iterator>
#include <optional>
#include <sstream>
#include <string>
#include <utility>

#include <fcntl.h>
#include <sys/ioctl.h>
#include <unistd.h>

namespace velto {

namespace {

using namespace std::chrono_literals;
using Clock = std::chrono::steady_clock;

class BackgroundOutputTest : public testing::Test {
protected:
    BackgroundOutputTest()
    {
        std::signal(SIGPIPE, SIG_IGN);
        EXPECT_EQ(pipe2(ends, O_CLOEXEC), 0);
        output.emplace(stream, ends[1]);
    }
    ~BackgroundOutputTest() override
    {
        output.reset();
        closeReadingEnd();
        // The other end stays open: a writer that was left behind would write to whatever gets its number next.
    }

    /// What is there, and what comes while the event loop runs, up to `size`.
    std::string read(std::size_t size) const
    {
        std::string text(size, '\0');
        std::size_t length = 0;
        while (length < size) {
            QCoreApplication::processEvents();
            const auto part = ::read(ends[0], text.data() + length, size - length);
            if (part <= 0)
                break;
            length += static_cast<std::size_t>(part);
        }
        return text.substr(0, length);
    }

    /// Until nothing comes any more.
    std::string readAll() const
    {
        std::string text;
        for (int available = 0;;) {
            QCoreApplication::processEvents();
            ioctl(ends[0], FIONREAD, &available);
            if (available == 0)
                return text;
            text += read(static_cast<std::size_t>(available));
        }
    }

    void closeReadingEnd()
    {
        if (ends[0] >= 0)
            close(std::exchange(ends[0], -1));
    }

    int ends[2] = {-1, -1};
    std::ostringstream stream;
    std::optional<BackgroundOutput> output;
};

} // namespace

TEST_F(BackgroundOutputTest, AFlushedLineIsWrittenAtOnce)
{
    stream << "one" << std::endl;

    EXPECT_EQ(read(4), "one\n");
}

TEST_F(BackgroundOutputTest, LinesKeepTheirOrder)
{
    std::string expected;
    for (int i = 0; i < 1000; ++i) {
        stream << i << std::endl;
        expected += std::to_string(i) + "\n";
    }

    EXPECT_EQ(read(expected.size()), expected);
}

TEST_F(BackgroundOutputTest, APipeThatNobodyReadsHoldsUpNothing)
{
    const std::string text(1 << 20, 'x');
    const auto start = Clock::now();

    stream << text << std::endl;

    EXPECT_LT(Clock::now() - start, 1s);
    EXPECT_EQ(read(text.size() + 1), text + "\n");
}

TEST_F(BackgroundOutputTest, ItNeedsNoThread)
{
    const auto threads = [] { return std::distance(std::filesystem::directory_iterator("/proc/self/task"), {}); };
    const auto before = threads();

    stream << std::string(1 << 20, 'x') << std::endl;

    EXPECT_EQ(threads(), before);
}

TEST_F(BackgroundOutputTest, WhatWaitsForAReaderIsBoundedAndMadeOfWholeLines)
{
    std::string line(100'000, 'x');
    line.back() = '\n';
    for (int i = 0; i < 100; ++i)
        stream << line << std::flush;

    const auto text = readAll();
    EXPECT_EQ(text.size() % line.size(), 0);
    EXPECT_GT(text.size(), 10 * line.size());
    EXPECT_LT(text.size(), 15 * line.size());
    stream << "more" << std::endl;
    EXPECT_EQ(readAll(), "more\n");
}

TEST_F(BackgroundOutputTest, WhatIsWrittenLastStillComesOut)
{
    stream << "last" << std::endl;
    output.reset();

    close(std::exchange(ends[1], -1));
    EXPECT_EQ(read(100), "last\n");
}

TEST_F(BackgroundOutputTest, GoingAwayDoesNotWaitForAReader)
{
    stream << std::string(1 << 20, 'x') << std::endl;
    const auto start = Clock::now();

    output.reset();

    EXPECT_LT(Clock::now() - start, 800ms);
}

TEST_F(BackgroundOutputTest, AReaderThatIsGoneIsNoHarm)
{
    closeReadingEnd();
    stream << "one" << std::endl;
    stream << "two" << std::endl;

    output.reset();

    stream << "three" << std::endl;
    EXPECT_EQ(stream.str(), "three\n");
}

} // namespace velto

int main(int argc, char* argv[])
{
    testing::InitGoogleTest(&argc, argv);
    const QCoreApplication application(argc, argv);
    return RUN_ALL_TESTS();
}
