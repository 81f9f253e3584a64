// SPDX-License-Identifier: MIT
#include "StreamTest.h"

#include <QDir>
#include <QFile>
#include <QRegularExpression>

#include <algorithm>

namespace velto {
namespace {

using namespace std::chrono_literals;

/// What the program that plays a stream can still do when somebody else has taken it over.
class SandboxTest : public StreamTest {
protected:
    void TearDown() override
    {
        program->kill();
        EXPECT_TRUE(eventually([&] { return program->state() == QProcess::NotRunning; }));
        StreamTest::TearDown();
    }

    void start(const std::string& url, const QString& before = {})
    {
        program = startProcess("sh", {"-c", before + "exec '" VELTO_STREAM_PROGRAM "' 2>&1"});
        program->write(QByteArray::fromStdString(url) + "\n1\n");
    }

    /// A file of the running program in /proc; empty when it has ended.
    [[nodiscard]] QByteArray file(const QString& name) const
    {
        QFile opened(QString("/proc/%1/%2").arg(program->processId()).arg(name));
        return opened.open(QIODevice::ReadOnly) ? opened.readAll() : QByteArray();
    }

    /// Of all the memory that it had at one time; 0 when it has ended.
    [[nodiscard]] int mebibytes() const
    {
        return QRegularExpression("VmHWM:\\s*(\\d+)").match(file("status")).captured(1).toInt() >> 10;
    }

    std::unique_ptr<QProcess> program;
};

TEST_F(SandboxTest, PlaysWhereTheUsersThreadsHaveLargeStacks)
{
    recording = std::make_unique<Recording>();
    start(streams.url("live.m3u8"), "ulimit -s 262144; ");
    EXPECT_TRUE(eventually([&] { return toneIsHeard(); }));
}

TEST_F(SandboxTest, HoldsInEveryThread)
{
    recording = std::make_unique<Recording>();
    start(streams.url("live.m3u8"));
    ASSERT_TRUE(eventually([&] { return toneIsHeard(); }));

    const auto threads
        = QDir(QString("/proc/%1/task").arg(program->processId())).entryList(QDir::NoDotAndDotDot | QDir::Dirs);
    EXPECT_GT(threads.size(), 4);
    for (const auto& thread : threads) {
        const auto status = file("task/" + thread + "/status");
        EXPECT_TRUE(status.contains("NoNewPrivs:\t1")) << status.toStdString();
        EXPECT_TRUE(status.contains("Seccomp:\t2")) << status.toStdString();
        EXPECT_TRUE(status.contains("Seccomp_filters:\t2")) << status.toStdString();
    }
    const auto limits = QString(file("limits")).simplified();
    EXPECT_TRUE(limits.contains("Max core file size 0 0")) << limits.toStdString();
    EXPECT_TRUE(limits.contains("Max file size 0 0")) << limits.toStdString();
    EXPECT_TRUE(limits.contains("Max data size 536870912 536870912")) << limits.toStdString();
}

TEST_F(SandboxTest, RefusesAnIntruder)
{
    const QDir home(qEnvironmentVariable("HOME"));
    ASSERT_TRUE(home.mkpath(".ssh"));
    QFile secret(home.filePath(".ssh/id"));
    ASSERT_TRUE(secret.open(QIODevice::WriteOnly));
    qputenv("GST_PLUGIN_PATH", VELTO_INTRUDER_FOLDER);
    const auto registry = qgetenv("GST_REGISTRY");
    ASSERT_TRUE(QFile::copy(registry, home.filePath("registry")));
    qputenv("GST_REGISTRY", home.filePath("registry").toUtf8());

    start(streams.url("tone.mp3"));
    QByteArray told;
    EXPECT_TRUE(eventually([&] {
        told += program->readAllStandardOutput();
        return told.contains("intruder: done");
    })) << told.toStdString();

    EXPECT_EQ(told.count(" refused"), 13) << told.toStdString();
    EXPECT_EQ(told.count(" succeeded"), 0) << told.toStdString();
    qunsetenv("GST_PLUGIN_PATH");
    qputenv("GST_REGISTRY", registry);
}

TEST_F(SandboxTest, EndsWhenAStreamTakesTooMuchMemory)
{
    for (const auto* path : {"tag", "endless.m3u8"}) {
        start(streams.url(path));

        int most = 0;
        EXPECT_TRUE(eventually([&] {
            most = std::max(most, mebibytes());
            return program->state() == QProcess::NotRunning;
        })) << path;
        EXPECT_LT(most, 512) << path;
        EXPECT_GT(most, 20) << path;
    }
}

} // namespace
} // namespace velto
