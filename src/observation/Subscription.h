// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <utility>

namespace velto {

/// Keeps something going - an observation, a timer, a pending action - until it is dropped.
///
///     Subscription m_ticks = runLoop.every(1s, [this] { tick(); }); // a member: ticks as long as its owner lives
///     m_ticks = {};                                                 // no more ticks
///
/// Main thread only. An empty subscription keeps nothing.
class [[nodiscard]] Subscription {
public:
    Subscription() = default;
    explicit Subscription(std::function<void()> end) : m_end(std::move(end)) { }
    Subscription(Subscription&& other) noexcept : m_end(std::exchange(other.m_end, nullptr)) { }
    Subscription& operator=(Subscription&& other) noexcept
    {
        if (this != &other) {
            cancel();
            m_end = std::exchange(other.m_end, nullptr);
        }
        return *this;
    }
    Subscription(const Subscription&) = delete;
    Subscription& operator=(const Subscription&) = delete;
    ~Subscription() { cancel(); }

    /// Ends it now; harmless on an empty or already cancelled one.
    void cancel()
    {
        if (auto end = std::exchange(m_end, nullptr))
            end();
    }

    [[nodiscard]] bool isActive() const { return static_cast<bool>(m_end); }

private:
    std::function<void()> m_end;
};

} // namespace velto
