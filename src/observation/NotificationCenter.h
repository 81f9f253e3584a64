// SPDX-License-Identifier: MIT
#pragma once

#include "observation/Broadcast.h"

#include <any>
#include <functional>
#include <map>
#include <string>

namespace velto {

struct Notification {
    std::string name;
    std::any object; ///< Empty when the poster gave none.
};

/// Broadcasts named notifications inside the process, synchronously and in the order of registration.
///
///     auto& center = NotificationCenter::defaultCenter();
///     m_shown = center.addObserver(statusBarShowTimer, [this](const Notification&) { showPanel(); });
///     center.post(statusBarShowTimer);
///
/// Main thread only.
class NotificationCenter {
public:
    using Handler = std::function<void(const Notification&)>;

    static NotificationCenter& defaultCenter();

    void post(const std::string& name, std::any object = {});
    Subscription addObserver(const std::string& name, Handler handler);

private:
    std::map<std::string, Broadcast<Notification>> m_broadcasts;
};

} // namespace velto
