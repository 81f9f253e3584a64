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
    void startWatching();
    [[nodiscard]] std::chrono::milliseconds longestTurn() const;
    /// Whether no turn held up the next one. A turn that starts a process waits until that one has had a processor, so
    /// that a limit has to be wider by what a thread waits for one at the worst moment.
    [[nodiscard]] bool isNeverHeldUp() const;

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
        explicit Turn(WatchedApplication& application);
        Turn(const Turn&) = delete;
        Turn& operator=(const Turn&) = delete;
        ~Turn();

    private:
        WatchedApplication& m_application;
        std::chrono::nanoseconds m_start;
        std::chrono::nanoseconds m_standstill;
    };

    void beat(const std::stop_token& stop);
    void awaitBeat() const;
    /// Since some moment: how long the calling thread has been waiting or computing.
    [[nodiscard]] static std::chrono::nanoseconds ownTime();

    std::chrono::nanoseconds m_longest{};
    std::atomic<std::chrono::nanoseconds> m_standstill{}; ///< For how long the machine did.
    std::atomic<int> m_beats = 0;
    std::atomic<std::chrono::nanoseconds> m_hindrance{}; ///< The longest wait for a processor during a moment.
    std::jthread m_heart;
};

} // namespace velto
