// SPDX-License-Identifier: MIT
#pragma once

#include "observation/Published.h"

#include <functional>
#include <utility>

namespace velto {

/// A published value that is written through: observers first, then memory, then the store.
template <class T>
class Setting : public Published<T> {
public:
    /// `write` puts the value just stored in memory into the store.
    Setting(ObservableObject& owner, T initial, std::function<void(const T&)> write) :
        Published<T>(owner, std::move(initial)),
        m_write(std::move(write))
    {
    }

    void set(T value)
    {
        Published<T>::set(std::move(value));
        m_write((*this)());
    }

private:
    std::function<void(const T&)> m_write;
};

} // namespace velto
