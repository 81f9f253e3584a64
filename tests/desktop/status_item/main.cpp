// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include <QApplication>
#include <QProcess>

#include <cstdlib>

/// Runs the tests on a session bus of their own.
int main(int argc, char* argv[])
{
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    qunsetenv("XDG_CURRENT_DESKTOP");
    // Listing the tests comes before an application can be needed.
    testing::InitGoogleTest(&argc, argv);

    QProcess bus;
    bus.start(QStringLiteral("dbus-daemon"),
        {QStringLiteral("--session"), QStringLiteral("--nofork"), QStringLiteral("--nopidfile"),
            QStringLiteral("--print-address=1")});
    if (!bus.waitForReadyRead())
        return EXIT_FAILURE;
    qputenv("DBUS_SESSION_BUS_ADDRESS", bus.readLine().trimmed());

    QApplication application(argc, argv);
    const int result = RUN_ALL_TESTS();
    bus.kill();
    bus.waitForFinished();
    return result;
}
