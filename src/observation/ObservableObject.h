// SPDX-License-Identifier: MIT
#pragma once

#include "observation/Broadcast.h"

#include <functional>

namespace velto {

/// An object that says when any of its published properties is about to change.
///
/// Main thread only. Declared as a base, so that it outlives the properties that announce through it.
class ObservableObject {
public:
    ObservableObject() = default;
    ObservableObject(const ObservableObject&) = delete;
    ObservableObject& operator=(const ObservableObject&) = delete;

    /// `handler` runs before each assignment is stored; read the new value in a later turn.
    Subscription willChange(std::function<void()> handler) { return m_willChange.subscribe(std::move(handler)); }

protected:
    ~ObservableObject() = default;

private:
    template <class T>
    friend class PublishedValue;

    Broadcast<> m_willChange;
};

} // namespace velto
