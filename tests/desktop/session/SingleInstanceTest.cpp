// SPDX-License-Identifier: MIT
#include "fixtures/Desktop.h"

#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QDBusConnection>
#include <QDBusInterface>
#include <QProcess>

#include <algorithm>
#include <utility>
#include <vector>

#include <csignal>

namespace velto {

namespace {

constexpr int patience = 30000; // ms

QProcess* launch()
{
    return Desktop::current().start(QStringLiteral(INSTANCE));
}

/// Its status and what it says on standard error.
std::pair<int, QByteArray> launchAndWait()
{
    QProcess process;
    process.start(QStringLiteral(INSTANCE), QStringList());
    process.waitForFinished(patience);
    return {process.exitCode(), process.readAllStandardError()};
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

TEST(SingleInstanceTest, OneThatDoesNotAnswerIsNamedAsWhatIsInTheWay)
{
    QProcess* first = launch();
    ASSERT_TRUE(isRunning(*first));
    ASSERT_EQ(kill(static_cast<pid_t>(first->processId()), SIGSTOP), 0);

    const auto second = launchAndWait();
    first->kill();

    EXPECT_EQ(second,
        std::pair(1,
            QStringLiteral("velto: already running as process %1, which does not answer\n")
                .arg(first->processId())
                .toUtf8()));
}

TEST(SingleInstanceTest, OneThatDiesWhileItIsAskedMakesRoom)
{
    QProcess* first = launch();
    ASSERT_TRUE(isRunning(*first));
    ASSERT_EQ(kill(static_cast<pid_t>(first->processId()), SIGSTOP), 0);

    QProcess* second = launch();
    ASSERT_FALSE(second->waitForReadyRead(1000)) << "it waits for the first";
    first->kill();

    EXPECT_TRUE(isRunning(*second));
}

TEST(SingleInstanceTest, AStrangerWithTheNameIsSaidToBeInTheWay)
{
    auto stranger = QDBusConnection::connectToBus(QDBusConnection::SessionBus, QStringLiteral("stranger"));
    ASSERT_TRUE(stranger.registerService(QStringLiteral("org.velto.Velto")));

    const auto second = launchAndWait();
    QDBusConnection::disconnectFromBus(QStringLiteral("stranger"));

    EXPECT_EQ(second,
        std::pair(1,
            QStringLiteral("velto: another program, process %1, has the name org.velto.Velto on the session bus\n")
                .arg(QCoreApplication::applicationPid())
                .toUtf8()));
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
