// SPDX-License-Identifier: MIT
#pragma once

#include "observation/Published.h"

#include <memory>
#include <tuple>
#include <utility>
#include <vector>

namespace velto {

/// Observes several published values as one: `handler` gets the latest of all of them, once on
/// subscription and then for every assignment of any. The values must outlive the subscription.
template <class Handler, class... T>
Subscription combineLatest(Handler handler, const PublishedValue<T>&... sources)
{
    struct State {
        std::tuple<T...> latest;
        bool complete = false;
        std::vector<Subscription> subscriptions;
    };
    auto state = std::make_shared<State>(State{std::tuple<T...>{sources()...}, false, {}});

    const auto observe = [&]<std::size_t... I>(std::index_sequence<I...>)
    {
        (state->subscriptions.push_back(sources.changes([weak = std::weak_ptr(state), handler](const T& value) {
            const auto alive = weak.lock();
            if (!alive)
                return;
            std::get<I>(alive->latest) = value;
            if (alive->complete)
                std::apply(handler, alive->latest);
        })),
            ...);
    };
    observe(std::index_sequence_for<T...>{});
    state->complete = true;
    std::apply(handler, state->latest);
    return Subscription([state = std::move(state)]() mutable { state->subscriptions.clear(); });
}

} // namespace velto
