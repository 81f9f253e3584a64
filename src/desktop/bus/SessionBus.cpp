// SPDX-License-Identifier: MIT
#include "desktop/bus/SessionBus.h"

#include <chrono>
#include <utility>

namespace velto {

using namespace std::chrono_literals;

namespace {

QByteArray address()
{
    if (auto stated = qgetenv("DBUS_SESSION_BUS_ADDRESS"); !stated.isEmpty())
        return stated;
    return "unix:path=" + qgetenv("XDG_RUNTIME_DIR") + "/bus";
}

} // namespace

SessionBus::SessionBus(QString name) : m_name(std::move(name))
{
    m_retry.setSingleShot(true);
    m_retry.setInterval(1s);
    m_retry.callOnTimeout([this] { probe(); });
    static_cast<void>(connectToBus());
}

SessionBus::~SessionBus()
{
    QDBusConnection::disconnectFromBus(m_name);
}

bool SessionBus::hangs()
{
    return BusProbe::hangs(address(), 25s);
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

/// Connecting would hold up this thread while the bus hangs, so only one that lets clients in is connected to.
void SessionBus::probe()
{
    m_probe = std::make_unique<BusProbe>(address());
    connect(m_probe.get(), &BusProbe::answered, this, [this](bool isThere) {
        m_probe.release()->deleteLater();
        if (isThere && connectToBus())
            Q_EMIT found();
        else
            m_retry.start();
    });
}

} // namespace velto
