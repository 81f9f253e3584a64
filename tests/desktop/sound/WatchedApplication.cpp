// SPDX-License-Identifier: MIT
#include "WatchedApplication.h"

#include <fcntl.h>
#include <unistd.h>

#include <algorithm>
#include <cstdlib>

namespace velto {

using namespace std::chrono_literals;

namespace {

/// For how long this thread was ready to go on, but without a processor: the second number of schedstat, see proc(5).
std::chrono::nanoseconds timeQueued()
{
    static const int file = open("/proc/thread-self/schedstat", O_RDONLY | O_CLOEXEC);
    char text[128] = {};
    if (pread(file, text, sizeof text - 1, 0) <= 0)
        return {};
    char* rest = nullptr;
    std::strtoll(text, &rest, 10);
    return std::chrono::nanoseconds(std::strtoll(rest, nullptr, 10));
}

} // namespace

WatchedApplication::WatchedApplication(int& argc, char** argv) :
    QCoreApplication(argc, argv),
    m_heart([this](const std::stop_token& stop) { beat(stop); })
{
}

WatchedApplication& WatchedApplication::instance()
{
    return *static_cast<WatchedApplication*>(QCoreApplication::instance());
}

std::chrono::milliseconds WatchedApplication::longestTurn() const
{
    return std::chrono::duration_cast<std::chrono::milliseconds>(m_longest);
}

bool WatchedApplication::notify(QObject* receiver, QEvent* event)
{
    const Turn turn(*this);
    return QCoreApplication::notify(receiver, event);
}

/// Counts the time that passes, but of a beat that comes too late only the usual delay.
void WatchedApplication::beat(const std::stop_token& stop)
{
    constexpr std::chrono::nanoseconds usualDelay = 10ms;
    for (auto last = std::chrono::steady_clock::now(); !stop.stop_requested();) {
        std::this_thread::sleep_for(1ms);
        const auto now = std::chrono::steady_clock::now();
        m_machineTime = m_machineTime.load() + std::min<std::chrono::nanoseconds>(now - last, usualDelay);
        last = now;
    }
}

std::chrono::nanoseconds WatchedApplication::ownTime() const
{
    return m_machineTime.load() - timeQueued();
}

WatchedApplication::Turn::~Turn()
{
    m_application.m_longest = std::max(m_application.m_longest, m_application.ownTime() - m_start);
}

} // namespace velto
