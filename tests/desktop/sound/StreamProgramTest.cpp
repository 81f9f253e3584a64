// SPDX-License-Identifier: MIT
#include "StreamTest.h"

#include <csignal>

namespace velto {
namespace {

using namespace std::chrono_literals;

/// What plays a stream, without anybody who starts it again.
class StreamProgramTest : public StreamTest {
protected:
    void TearDown() override
    {
        program->kill();
        EXPECT_TRUE(eventually([&] { return hasEnded(); }));
        StreamTest::TearDown();
    }

    void start(const std::string& url, const char* volume = "1")
    {
        program = startProcess(VELTO_STREAM_PROGRAM, {});
        program->write(QByteArray::fromStdString(url) + "\n" + volume + "\n");
    }

    [[nodiscard]] bool hasEnded() const { return program->state() == QProcess::NotRunning; }

    /// Whether it leaves of its own accord, and says nothing that velto would pass on.
    [[nodiscard]] bool endsInSilence(std::chrono::milliseconds timeout)
    {
        return eventually([&] { return hasEnded(); }, timeout) && program->exitStatus() == QProcess::NormalExit
            && program->readAllStandardOutput().isEmpty();
    }

    std::unique_ptr<QProcess> program;
};

TEST_F(StreamProgramTest, EndsAtOnceWithItsStandardInput)
{
    for (const auto* path : {"tone.mp3", "silent"}) {
        start(streams.url(path));
        ASSERT_TRUE(eventually([&] { return streams.openConnections() == 1; })) << path;

        program->closeWriteChannel();

        EXPECT_TRUE(endsInSilence(1s)) << path;
        EXPECT_TRUE(eventually([&] { return streams.openConnections() == 0; })) << path;
    }
}

TEST_F(StreamProgramTest, EndsWithItsStandardInputWhileTheSoundServerHangs)
{
    sound.freeze();
    start(streams.url("tone.mp3"));
    QTest::qWait(300);

    program->closeWriteChannel();

    EXPECT_TRUE(endsInSilence(1s));
    sound.thaw();
}

TEST_F(StreamProgramTest, EndsOfItselfWhileTheSoundServerHangs)
{
    recording = std::make_unique<Recording>();
    start(streams.url("tone.mp3"));
    ASSERT_TRUE(eventually([&] { return toneIsHeard(); }));

    sound.freeze();

    EXPECT_TRUE(endsInSilence(10s));
    sound.thaw();
}

TEST_F(StreamProgramTest, TriesAStreamOnce)
{
    for (const auto* path : {"missing", "garbage", "dropping"}) {
        const auto connections = streams.connections();
        start(streams.url(path));

        EXPECT_TRUE(endsInSilence(20s)) << path;
        EXPECT_EQ(streams.connections(), connections + 1) << path;
    }
}

TEST_F(StreamProgramTest, FollowsARedirectionWithTheVolumeThatHolds)
{
    recording = std::make_unique<Recording>();
    start(streams.url("to-secure"), "0.25");
    ASSERT_TRUE(eventually([&] { return recording->amplitude(tone) > 0.2 * toneAmplitude; }));
    EXPECT_LT(recording->amplitude(tone), 0.3 * toneAmplitude);
    EXPECT_EQ(streams.openConnections(), 1);

    program->write("0.5\nnonsense\n\n");
    EXPECT_TRUE(eventually([&] { return recording->amplitude(tone) > 0.45 * toneAmplitude; }));
    program->write("0.");
    QTest::qWait(200);
    program->write("75\n");
    EXPECT_TRUE(eventually([&] { return recording->amplitude(tone) > 0.7 * toneAmplitude; }));
}

TEST_F(StreamProgramTest, FollowsTenRedirectionsAndNoMore)
{
    start(streams.url("loop/39"));
    EXPECT_TRUE(endsInSilence(20s));
    EXPECT_EQ(streams.connections(), 11);

    recording = std::make_unique<Recording>();
    start(streams.url("loop/40"));
    EXPECT_TRUE(eventually([&] { return toneIsHeard(); }));
}

TEST_F(StreamProgramTest, PlaysNothingButTheWeb)
{
    for (const auto* url : {"file:///etc/passwd", "", "playbin", "http:///stream"}) {
        start(url);
        EXPECT_TRUE(endsInSilence(10s)) << url;
        EXPECT_NE(program->exitCode(), 0) << url;
    }
}

} // namespace
} // namespace velto
