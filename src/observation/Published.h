// SPDX-License-Identifier: MIT
#pragma once

#include "observation/ObservableObject.h"

#include <functional>
#include <memory>
#include <utility>

namespace velto {

/// A value whose observers hear of every assignment before it is stored.
///
/// An assignment of an equal value is announced like any other. Main thread only.
template <class T>
class Published {
public:
    using Handler = std::function<void(const T&)>;

    /// `owner` announces each change too, first of all; it must outlive this.
    Published(ObservableObject& owner, T initial) : m_owner(owner), m_value(std::move(initial)) { }
    Published(const Published&) = delete;
    Published& operator=(const Published&) = delete;

    [[nodiscard]] const T& operator()() const { return m_value; }

    /// Notifies, then stores. During the notification reading still gives the old value.
    void set(T value)
    {
        m_owner.m_willChange.send();
        m_changes.send(value);
        m_value = std::move(value);
    }

    /// `handler` gets the current value at once and every new one after it.
    Subscription changes(Handler handler) const
    {
        // One for all calls: it may keep state.
        const auto observer = std::make_shared<Handler>(std::move(handler));
        auto subscription = m_changes.subscribe([observer](const T& value) { (*observer)(value); });
        (*observer)(m_value);
        return subscription;
    }

private:
    ObservableObject& m_owner;
    mutable Broadcast<T> m_changes;
    T m_value;
};

/// A published value that only its owner assigns.
template <class T, class Owner>
class ReadOnlyPublished : public Published<T> {
public:
    using Published<T>::Published;

private:
    friend Owner;
    using Published<T>::set;
};

} // namespace velto
