// SPDX-License-Identifier: MIT
#include "desktop/session/Language.h"

#include <gtest/gtest.h>

#include <QApplication>

int main(int argc, char* argv[])
{
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    // Listing the tests comes before an application can be needed.
    testing::InitGoogleTest(&argc, argv);
    QApplication application(argc, argv);
    velto::speak({qEnvironmentVariable("VELTO_LANGUAGE", "en")});
    return RUN_ALL_TESTS();
}
