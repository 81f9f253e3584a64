// SPDX-License-Identifier: MIT
#include "observation/NotificationCenter.h"

#include <utility>

namespace velto {

NotificationCenter& NotificationCenter::defaultCenter()
{
    static NotificationCenter center;
    return center;
}

void NotificationCenter::post(const std::string& name, std::any object)
{
    if (const auto found = m_broadcasts.find(name); found != m_broadcasts.end())
        found->second.send(Notification{name, std::move(object)});
}

Subscription NotificationCenter::addObserver(const std::string& name, Handler handler)
{
    return m_broadcasts[name].subscribe(std::move(handler));
}

} // namespace velto
