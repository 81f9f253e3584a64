// SPDX-License-Identifier: MIT
#pragma once

#include "observation/Published.h"

#include <functional>
#include <utility>

namespace velto {

/// A published value that is written through: observers first, then memory, then the store.
template <class T>
class Setting : public PublishedValue<T> {
public:
    /// `write` puts the value just stored in memory into the store.
    Setting(ObservableObject& owner, T initial, std::function<void(const T&)> write) :
        PublishedValue<T>(owner, std::move(initial)),
        m_write(std::move(write))
    {
    }

    void set(T value)
    {
        this->assign(std::move(value));
        m_write((*this)());
    }

private:
    std::function<void(const T&)> m_write;
};

} // namespace velto
