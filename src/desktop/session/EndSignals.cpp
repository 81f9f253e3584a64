// SPDX-License-Identifier: MIT
#include "desktop/session/EndSignals.h"

#include <array>
#include <cerrno>
#include <csignal>

#include <fcntl.h>
#include <unistd.h>

namespace velto {

namespace {

constexpr std::array endSignals{SIGTERM, SIGINT, SIGHUP};
volatile std::sig_atomic_t writeEnd = -1;

void tell(int /*signal*/)
{
    const int error = errno;
    [[maybe_unused]] const auto written = ::write(writeEnd, "", 1);
    errno = error;
}

/// The end to read from. Stays open to the end of the process, as the signals do.
int makePipe()
{
    std::array<int, 2> pipe{-1, -1};
    [[maybe_unused]] const int failure = ::pipe2(pipe.data(), O_CLOEXEC | O_NONBLOCK);
    writeEnd = pipe[1];
    return pipe[0];
}

} // namespace

EndSignals::EndSignals(const std::function<void()>& handler) : m_notifier(makePipe(), QSocketNotifier::Read)
{
    QObject::connect(&m_notifier, &QSocketNotifier::activated, &m_notifier, [this, handler] {
        m_notifier.setEnabled(false);
        handler();
    });
    for (const int number : endSignals) {
        struct sigaction previous { };
        struct sigaction action { };
        action.sa_handler = tell;
        action.sa_flags = SA_RESTART | static_cast<int>(SA_RESETHAND);
        if (::sigaction(number, nullptr, &previous) == 0 && previous.sa_handler != SIG_IGN)
            ::sigaction(number, &action, nullptr);
    }
}

} // namespace velto
