// SPDX-License-Identifier: MIT
#pragma once

#include "platform/RunLoop.h"

#include <QObject>

namespace velto {

/// The event loop of the application. Work runs in nested loops (menus, drags), too.
class QtRunLoop final : public RunLoop {
public:
    Subscription every(std::chrono::milliseconds interval, std::function<void()> work) override;
    Subscription after(std::chrono::milliseconds delay, std::function<void()> work) override;
    Subscription nextTurn(std::function<void()> work) override;

private:
    QObject m_scheduled; ///< Parent of everything still scheduled.
};

} // namespace velto
