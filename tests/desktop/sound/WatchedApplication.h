// SPDX-License-Identifier: MIT
#pragma once

#include <QCoreApplication>

#include <atomic>
#include <chrono>
#include <thread>

namespace velto {

/// Measures for how long each event, and whatever else is called a turn, keeps the main thread from the next one.
///
/// That is the time during which the thread computes or waits for anything. Time during which it was ready to go on but
/// other programs had all the processors does not count, nor does time during which the machine itself stood still.
class WatchedApplication final : public QCoreApplication {
public:
    WatchedApplication(int& argc, char** argv);

    [[nodiscard]] static WatchedApplication& instance();

    /// Forgets all turns so far.
    void startWatching() { m_longest = {}; }
    [[nodiscard]] std::chrono::milliseconds longestTurn() const;

    /// Measures `work` as if it were an event.
    template <class Work>
    void turn(Work work)
    {
        const Turn turn(*this);
        work();
    }

    bool notify(QObject* receiver, QEvent* event) override;

private:
    class Turn {
    public:
        explicit Turn(WatchedApplication& application) : m_application(application), m_start(application.ownTime()) { }
        Turn(const Turn&) = delete;
        Turn& operator=(const Turn&) = delete;
        ~Turn();

    private:
        WatchedApplication& m_application;
        std::chrono::nanoseconds m_start;
    };

    void beat(const std::stop_token& stop);
    /// Since some moment: how long this thread has been waiting, or computing on a machine that ran.
    [[nodiscard]] std::chrono::nanoseconds ownTime() const;

    std::chrono::nanoseconds m_longest{};
    std::atomic<std::chrono::nanoseconds> m_machineTime{}; ///< Stands still with the machine.
    std::jthread m_heart;
};

} // namespace velto
