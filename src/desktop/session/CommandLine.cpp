// SPDX-License-Identifier: MIT
#include "desktop/session/CommandLine.h"

#include "desktop/bus/SessionBus.h"
#include "desktop/session/BuildBundle.h"
#include "desktop/x11/X11Desktop.h"

#include <QtGlobal>

#include <algorithm>
#include <iostream>
#include <span>
#include <string_view>

namespace velto {

namespace {

constexpr auto help = "Usage: velto\n"
                      "A focus timer in the panel bar. Started again, it shows the card of the one that runs.\n"
                      "\n"
                      "  --help     says this\n"
                      "  --version  says which one it is\n"
                      "\n"
                      "The options of every Qt program are understood, too.\n";

/// Unless the user has chosen another, windows are on X11.
bool needsX11(std::span<char*> arguments)
{
    const auto platform = qEnvironmentVariable("QT_QPA_PLATFORM");
    return (platform.isEmpty() || platform == QLatin1String("xcb"))
        && std::ranges::none_of(
            arguments, [](std::string_view argument) { return argument == "-platform" || argument == "--platform"; });
}

} // namespace

std::optional<int> answerBeforeStart(int argc, char* argv[])
{
    const std::span arguments(argv, static_cast<std::size_t>(argc));
    const std::string_view only = argc == 2 ? arguments[1] : "";
    if (only == "--help") {
        std::cout << help;
        return 0;
    }
    if (only == "--version") {
        std::cout << "velto " << BuildBundle().string("CFBundleShortVersionString").value_or("") << '\n';
        return 0;
    }
    if (needsX11(arguments) && !x11::serverAnswers()) {
        std::cerr << "velto: there is no display; velto needs an X server, which on Wayland is XWayland\n";
        return 1;
    }
    if (SessionBus::hangs()) {
        std::cerr << "velto: the session bus does not answer\n";
        return 1;
    }
    return std::nullopt;
}

std::optional<int> refuseUnknown(const QStringList& arguments)
{
    if (arguments.size() < 2)
        return std::nullopt;
    std::cerr << "velto: unknown argument " << arguments[1].toStdString() << " (velto --help says what it knows)\n";
    return 2;
}

} // namespace velto
