// SPDX-License-Identifier: MIT
#include "Desktop.h"

#include <gtest/gtest.h>

#include <QApplication>

int main(int argc, char* argv[])
{
    testing::InitGoogleTest(&argc, argv);
    if (testing::GTEST_FLAG(list_tests))
        return RUN_ALL_TESTS();

    velto::Desktop desktop;
    QApplication application(argc, argv);
    application.setQuitOnLastWindowClosed(false);
    application.setDesktopFileName(QStringLiteral("org.velto.Velto"));
    return RUN_ALL_TESTS();
}
