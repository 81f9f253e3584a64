// SPDX-License-Identifier: MIT
#pragma once

#include "observation/ObservableObject.h"

#include <functional>
#include <memory>
#include <utility>

namespace velto {

/// A value whose observers hear of every assignment before it is stored. Derived classes decide who may assign it.
///
///     const auto shown = timer.phase.changes([](PomodoroPhase phase) { show(phase); });      // now and later
///     const auto heard = timer.phase.laterChanges([](PomodoroPhase phase) { ring(phase); }); // later only
///     if (timer.phase() == PomodoroPhase::focus) ...
///
/// An assignment of an equal value is announced like any other. Main thread only.
template <class T>
class PublishedValue {
public:
    using Handler = std::function<void(const T&)>;

    /// `owner` announces each change first; it must outlive this.
    PublishedValue(ObservableObject& owner, T initial) : m_owner(owner), m_value(std::move(initial)) { }
    PublishedValue(const PublishedValue&) = delete;
    PublishedValue& operator=(const PublishedValue&) = delete;

    [[nodiscard]] const T& operator()() const { return m_value; }

    /// `handler` gets the current value at once and every new one after it.
    Subscription changes(Handler handler) const
    {
        // One copy for all calls, since it may keep state.
        const auto observer = std::make_shared<Handler>(std::move(handler));
        auto subscription = laterChanges([observer](const T& value) { (*observer)(value); });
        (*observer)(m_value);
        return subscription;
    }

    /// `handler` gets every new value, but not the current one.
    Subscription laterChanges(Handler handler) const { return m_changes.subscribe(std::move(handler)); }

protected:
    ~PublishedValue() = default;

    /// Notifies, then stores: during the notification, reading still gives the old value.
    void assign(T value)
    {
        m_owner.m_willChange.send();
        m_changes.send(value);
        m_value = std::move(value);
    }

private:
    ObservableObject& m_owner;
    mutable Broadcast<T> m_changes;
    T m_value;
};

/// A published value that anyone may assign.
template <class T>
class Published : public PublishedValue<T> {
public:
    using PublishedValue<T>::PublishedValue;

    void set(T value) { this->assign(std::move(value)); }
};

/// A published value that only its owner may assign.
template <class T, class Owner>
class ReadOnlyPublished : public PublishedValue<T> {
public:
    using PublishedValue<T>::PublishedValue;

private:
    friend Owner;

    void set(T value) { this->assign(std::move(value)); }
};

} // namespace velto
