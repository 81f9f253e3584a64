// SPDX-License-Identifier: MIT
#include "stream/StreamPlayback.h"
#include "stream/WebAddress.h"

#include <poll.h>
#include <sys/prctl.h>
#include <unistd.h>

#include <atomic>
#include <charconv>
#include <csignal>
#include <cstdlib>
#include <iostream>
#include <mutex>
#include <string>
#include <string_view>
#include <thread>

namespace velto {

namespace {

constexpr int mostRedirections = 10;

std::mutex standardInput; ///< Held while something was read from it that is not yet obeyed.
std::atomic<float> volume = 0;

template <class Number>
bool parse(std::string_view text, Number& number)
{
    Number parsed{};
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), parsed);
    if (error != std::errc{} || end != text.data() + text.size())
        return false;
    number = parsed;
    return true;
}

/// Starts this program anew with another address: that is how a connection is left behind.
[[noreturn]] void follow(const std::string& url, int redirections)
{
    const std::lock_guard lock(standardInput);
    if (redirections < mostRedirections)
        execl("/proc/self/exe", "velto-stream", url.c_str(), std::to_string(volume).c_str(),
            std::to_string(redirections + 1).c_str(), nullptr);
    std::cerr << "velto.audio: not followed any more: " << url << std::endl;
    _exit(EXIT_FAILURE);
}

/// Takes a volume from each line of standard input, and ends the process with it.
[[noreturn]] void obey()
{
    std::string pending;
    for (;;) {
        pollfd input{STDIN_FILENO, POLLIN, 0};
        poll(&input, 1, -1);

        const std::lock_guard lock(standardInput);
        char piece[512];
        const auto size = read(STDIN_FILENO, piece, sizeof piece);
        if (size <= 0)
            _exit(EXIT_SUCCESS);
        pending.append(piece, static_cast<std::size_t>(size));
        for (auto end = pending.find('\n'); end != std::string::npos; end = pending.find('\n')) {
            if (float level = 0; parse(std::string_view(pending).substr(0, end), level))
                volume = level;
            pending.erase(0, end + 1);
        }
    }
}

} // namespace
} // namespace velto

/// velto-stream ADDRESS VOLUME REDIRECTIONS
///
/// Plays a stream until it ends, fails or falls silent, and for as long as standard input is open. Each line there is
/// the volume from then on: linear, 0 to 1. Nothing but standard input is ever waited for on the main thread, so that
/// the end is obeyed whatever hangs.
int main(int argc, char** argv)
{
    using namespace velto;

    float level = 0;
    int redirections = 0;
    if (argc != 4 || !isWebAddress(argv[1]) || !parse(argv[2], level) || !parse(argv[3], redirections)) {
        std::cerr << "velto-stream ADDRESS VOLUME REDIRECTIONS" << std::endl;
        return EXIT_FAILURE;
    }
    volume = level;

    // Nothing plays on after the one who asked for it was killed.
    prctl(PR_SET_PDEATHSIG, SIGKILL);
    close_range(STDERR_FILENO + 1, ~0U, 0);
    // Whatever a plug-in prints is no more than a diagnostic.
    dup2(STDERR_FILENO, STDOUT_FILENO);

    std::thread([url = std::string(argv[1]), redirections] {
        auto* playback = new StreamPlayback(
            url, volume, [redirections](const std::string& target) { follow(target, redirections); });
        playback->start();
    }).detach();
    obey();
}
