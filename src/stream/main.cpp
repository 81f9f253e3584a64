// SPDX-License-Identifier: MIT
#include "stream/Sandbox.h"
#include "stream/StreamPlayback.h"
#include "stream/VolumeLine.h"
#include "stream/WebAddress.h"

#include <sys/prctl.h>
#include <unistd.h>

#include <atomic>
#include <csignal>
#include <cstdlib>
#include <iostream>
#include <string>
#include <thread>

/// velto-stream
///
/// Plays a stream until it ends, fails or falls silent, and for as long as standard input is open. The first line there
/// is the address, where no other program sees it; each one after it is the volume from then on: linear, 0 to 1, and 0
/// before. Nothing but standard input is ever waited for on the main thread, so that the end is obeyed whatever hangs.
int main()
{
    using namespace velto;

    // Stops playing when velto is killed.
    prctl(PR_SET_PDEATHSIG, SIGKILL);
    close_range(STDERR_FILENO + 1, ~0U, 0);
    // What plug-ins print are diagnostics.
    dup2(STDERR_FILENO, STDOUT_FILENO);

    std::string url;
    std::getline(std::cin, url);
    if (!isWebAddress(url)) {
        std::cerr << "velto-stream: no web address on standard input" << std::endl;
        return EXIT_FAILURE;
    }

    StreamPlayback::initialise();
    enterSandbox();

    std::atomic<float> volume = 0;
    std::thread([&volume, url] { (new StreamPlayback(url, volume))->start(); }).detach();

    for (std::string line; std::getline(std::cin, line);)
        volume = volumeIn(line).value_or(volume);
    _exit(EXIT_SUCCESS);
}
