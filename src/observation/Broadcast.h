// SPDX-License-Identifier: MIT
#pragma once

#include "observation/Subscription.h"

#include <algorithm>
#include <functional>
#include <memory>
#include <utility>
#include <vector>

namespace velto {

/// Delivers a value to every subscriber, in the order of subscription.
///
/// Main thread only. Subscribing, dropping a subscription, sending again and destroying the
/// broadcast are all allowed during a delivery. A dropped subscriber hears nothing more of
/// it; a new one is reached by the delivery under way. Subscriptions may outlive the broadcast.
template <class... Args>
class Broadcast {
public:
    using Handler = std::function<void(const Args&...)>;

    Broadcast() = default;
    Broadcast(const Broadcast&) = delete;
    Broadcast& operator=(const Broadcast&) = delete;
    ~Broadcast()
    {
        for (const auto& subscriber : m_state->subscribers)
            subscriber->alive = false;
    }

    Subscription subscribe(Handler handler)
    {
        auto subscriber = std::make_shared<Subscriber>(Subscriber{std::move(handler)});
        m_state->subscribers.push_back(subscriber);
        return Subscription([weak = std::weak_ptr(m_state), subscriber] {
            subscriber->alive = false;
            if (const auto state = weak.lock(); state && state->deliveries == 0)
                state->removeDead();
        });
    }

    void send(const Args&... args)
    {
        const auto state = m_state;
        ++state->deliveries;
        // By index: the list may grow while it is walked.
        for (std::size_t i = 0; i < state->subscribers.size(); ++i) {
            if (const auto subscriber = state->subscribers[i]; subscriber->alive)
                subscriber->handler(args...);
        }
        if (--state->deliveries == 0)
            state->removeDead();
    }

    [[nodiscard]] std::size_t subscriberCount() const
    {
        return static_cast<std::size_t>(
            std::ranges::count_if(m_state->subscribers, [](const auto& s) { return s->alive; }));
    }

private:
    struct Subscriber {
        Handler handler;
        bool alive = true;
    };
    struct State {
        std::vector<std::shared_ptr<Subscriber>> subscribers;
        int deliveries = 0;

        void removeDead()
        {
            const auto dead = std::stable_partition(
                subscribers.begin(), subscribers.end(), [](const auto& subscriber) { return subscriber->alive; });
            // They go last, when the list is whole again: a handler may own other subscriptions to it.
            const std::vector<std::shared_ptr<Subscriber>> gone(dead, subscribers.end());
            subscribers.erase(dead, subscribers.end());
        }
    };

    std::shared_ptr<State> m_state = std::make_shared<State>();
};

} // namespace velto
