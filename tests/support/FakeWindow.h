// SPDX-License-Identifier: MIT
#pragma once

#include "platform/Window.h"

#include <functional>
#include <utility>

namespace velto {

/// A window that only says when it is brought to the front.
class FakeWindow final : public Window {
public:
    explicit FakeWindow(std::function<void()> onFront = {}) : m_onFront(std::move(onFront)) { }

    void makeKeyAndOrderFront() override
    {
        ++fronts;
        if (m_onFront)
            m_onFront();
    }

    int fronts = 0;

private:
    std::function<void()> m_onFront;
};

} // namespace velto
