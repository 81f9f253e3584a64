// SPDX-License-Identifier: MIT
#include "desktop/bus/SessionBus.h"

#include <chrono>
#include <utility>

namespace velto {

using namespace std::chrono_literals;

SessionBus::SessionBus(QString name) : m_name(std::move(name))
{
    m_retry.setInterval(1s);
    m_retry.callOnTimeout([this] {
        if (!connectToBus())
            return;
        m_retry.stop();
        Q_EMIT found();
    });
    static_cast<void>(connectToBus());
}

SessionBus::~SessionBus()
{
    QDBusConnection::disconnectFromBus(m_name);
}

bool SessionBus::connectToBus()
{
    auto bus = QDBusConnection::connectToBus(QDBusConnection::SessionBus, m_name);
    if (!bus.isConnected()) {
        QDBusConnection::disconnectFromBus(m_name);
        return false;
    }
    bus.connect({}, QStringLiteral("/org/freedesktop/DBus/Local"), QStringLiteral("org.freedesktop.DBus.Local"),
        QStringLiteral("Disconnected"), this, SLOT(disconnected()));
    return true;
}

void SessionBus::disconnected()
{
    QDBusConnection::disconnectFromBus(m_name);
    m_retry.start();
    Q_EMIT lost();
}

} // namespace velto
