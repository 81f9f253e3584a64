// SPDX-License-Identifier: MIT
// A program of which only one runs: says "running" and then "activated" for every other launch.
#include "desktop/bus/SessionBus.h"
#include "desktop/session/SingleInstance.h"

#include <QCoreApplication>

#include <iostream>

int main(int argc, char* argv[])
{
    QCoreApplication application(argc, argv);
    velto::SessionBus bus{QStringLiteral("instance")};
    velto::SingleInstance instance{bus, [] { std::cout << "activated" << std::endl; }};
    if (const auto status = instance.claim())
        return *status;
    std::cout << "running" << std::endl;
    return application.exec();
}
