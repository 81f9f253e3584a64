// SPDX-License-Identifier: MIT
#include "fixtures/Desktop.h"

#include <gtest/gtest.h>

#include <QDBusConnection>
#include <QDBusInterface>
#include <QProcess>

#include <algorithm>
#include <vector>

namespace velto {

namespace {

constexpr int patience = 30000; // ms

QProcess* launch()
{
    return Desktop::current().start(QStringLiteral(INSTANCE));
}

bool isRunning(QProcess& process)
{
    return eventually([&] { return process.canReadLine(); }) && process.readLine() == "running\n";
}

bool isActivated(QProcess& process)
{
    return eventually([&] { return process.canReadLine(); }) && process.readLine() == "activated\n";
}

} // namespace

TEST(SingleInstanceTest, ASecondLaunchActivatesTheFirstAndLeavesWithSuccess)
{
    QProcess* first = launch();
    ASSERT_TRUE(isRunning(*first));

    for (int i = 0; i < 3; ++i) {
        QProcess* second = launch();

        ASSERT_TRUE(second->waitForFinished(patience));
        EXPECT_EQ(second->exitStatus(), QProcess::NormalExit);
        EXPECT_EQ(second->exitCode(), 0);
        EXPECT_EQ(second->readAllStandardOutput(), "");
        EXPECT_TRUE(isActivated(*first));
    }
    EXPECT_EQ(first->state(), QProcess::Running);
}

TEST(SingleInstanceTest, OfManyLaunchesAtOnceOneRunsAndHearsOfAllOthers)
{
    constexpr int launches = 8;
    std::vector<QProcess*> processes;
    for (int i = 0; i < launches; ++i)
        processes.push_back(launch());

    const auto running = [](QProcess* process) { return process->state() == QProcess::Running; };
    ASSERT_TRUE(eventually([&] { return std::ranges::count_if(processes, running) == 1; }));
    QProcess* first = *std::ranges::find_if(processes, running);

    ASSERT_TRUE(isRunning(*first));
    for (int i = 1; i < launches; ++i)
        EXPECT_TRUE(isActivated(*first)) << i;
    for (QProcess* process : processes) {
        if (process != first) {
            EXPECT_EQ(process->exitCode(), 0);
        }
    }
    EXPECT_TRUE(stays([&] { return running(first); }));
}

TEST(SingleInstanceTest, WithTheFirstGoneTheNextOneRuns)
{
    QProcess* first = launch();
    ASSERT_TRUE(isRunning(*first));
    first->kill();
    ASSERT_TRUE(first->waitForFinished(patience));

    EXPECT_TRUE(isRunning(*launch()));
}

TEST(SingleInstanceTest, TheDesktopEntryActivatesItToo)
{
    QProcess* first = launch();
    ASSERT_TRUE(isRunning(*first));

    QDBusInterface application{QStringLiteral("org.velto.Velto"), QStringLiteral("/org/velto/Velto"),
        QStringLiteral("org.freedesktop.Application")};
    EXPECT_EQ(application.call(QStringLiteral("Activate"), QVariantMap{}).type(), QDBusMessage::ReplyMessage);
    EXPECT_TRUE(isActivated(*first));
    EXPECT_EQ(
        application.call(QStringLiteral("Open"), QStringList{}, QVariantMap{}).type(), QDBusMessage::ReplyMessage);
    EXPECT_TRUE(isActivated(*first));
}

TEST(SingleInstanceTest, WithoutASessionBusTheProgramSimplyRuns)
{
    qputenv("DBUS_SESSION_BUS_ADDRESS", "unix:path=/nonexistent/bus");

    EXPECT_TRUE(isRunning(*launch()));
    EXPECT_TRUE(isRunning(*launch()));
}

} // namespace velto
