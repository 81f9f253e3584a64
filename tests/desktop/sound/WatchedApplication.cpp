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
    thread_local const int file = open("/proc/thread-self/schedstat", O_RDONLY | O_CLOEXEC);
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
    awaitBeat(); // It has opened all that it will.
}

WatchedApplication& WatchedApplication::instance()
{
    return *static_cast<WatchedApplication*>(QCoreApplication::instance());
}

std::chrono::milliseconds WatchedApplication::longestTurn() const
{
    return std::chrono::duration_cast<std::chrono::milliseconds>(m_longest);
}

void WatchedApplication::startWatching()
{
    m_longest = {};
    m_hindrance = 0ns;
}

bool WatchedApplication::isNeverHeldUp() const
{
    return m_longest < 50ms + m_hindrance.load();
}

bool WatchedApplication::notify(QObject* receiver, QEvent* event)
{
    const Turn turn(*this);
    return QCoreApplication::notify(receiver, event);
}

/// Beats every millisecond. Counts what a beat is late beyond the usual, and for how long it waits for a processor.
void WatchedApplication::beat(const std::stop_token& stop)
{
    constexpr std::chrono::nanoseconds usualDelay = 10ms;
    constexpr int moment = 250;
    auto queued = timeQueued();
    for (auto last = ownTime(); !stop.stop_requested();) {
        std::this_thread::sleep_for(1ms);
        m_hindrance = std::max(m_hindrance.load(), timeQueued() - queued);
        if (m_beats % moment == 0)
            queued = timeQueued();
        const auto now = ownTime();
        m_standstill = m_standstill.load() + std::max(now - last - usualDelay, 0ns);
        last = now;
        ++m_beats;
    }
}

void WatchedApplication::awaitBeat() const
{
    for (const int beats = m_beats; m_beats == beats;)
        std::this_thread::sleep_for(1ms);
}

std::chrono::nanoseconds WatchedApplication::ownTime()
{
    return std::chrono::steady_clock::now().time_since_epoch() - timeQueued();
}

WatchedApplication::Turn::Turn(WatchedApplication& application) :
    m_application(application),
    m_start(ownTime()),
    m_standstill(application.m_standstill)
{
}

WatchedApplication::Turn::~Turn()
{
    const auto length = ownTime() - m_start;
    if (length <= m_application.m_longest)
        return;
    // Whether the machine stood still is known after the next beat.
    m_application.awaitBeat();
    m_application.m_longest
        = std::max(m_application.m_longest, length - (m_application.m_standstill.load() - m_standstill));
}

} // namespace velto
