// SPDX-License-Identifier: MIT
// A program of which only one runs: says "running" and then "activated" for every other launch.
#include "desktop/session/SingleInstance.h"

#include <QCoreApplication>

#include <iostream>

int main(int argc, char* argv[])
{
    QCoreApplication application(argc, argv);
    velto::SingleInstance instance{[] { std::cout << "activated" << std::endl; }};
    if (const auto status = instance.claim())
        return *status;
    std::cout << "running" << std::endl;
    return application.exec();
}
