// SPDX-License-Identifier: MIT
#include "desktop/session/SingleInstance.h"

#include <QDBusConnection>
#include <QDBusConnectionInterface>
#include <QDBusError>
#include <QDBusMessage>
#include <QDBusReply>

#include <utility>

namespace velto {

namespace {

const QString serviceName = QStringLiteral("org.velto.Velto");
const QString objectPath = QStringLiteral("/org/velto/Velto");
const QString interfaceName = QStringLiteral("org.freedesktop.Application");

constexpr int attempts = 5;
constexpr int answerTimeout = 5000; // ms

} // namespace

SingleInstance::SingleInstance(std::function<void()> activated) : m_activated(std::move(activated)) { }

SingleInstance::~SingleInstance()
{
    auto bus = QDBusConnection::sessionBus();
    bus.unregisterService(serviceName);
    bus.unregisterObject(objectPath);
}

bool SingleInstance::claim()
{
    auto bus = QDBusConnection::sessionBus();
    if (!bus.isConnected())
        return true;

    // Before the name: who owns it can be called at once.
    bus.registerObject(objectPath, this, QDBusConnection::ExportAllSlots);
    for (int attempt = 0; attempt < attempts; ++attempt) {
        const QDBusReply<QDBusConnectionInterface::RegisterServiceReply> reply
            = bus.interface()->registerService(serviceName);
        if (!reply.isValid() || reply.value() == QDBusConnectionInterface::ServiceRegistered)
            return true;

        auto call = QDBusMessage::createMethodCall(serviceName, objectPath, interfaceName, QStringLiteral("Activate"));
        call.setAutoStartService(false);
        call << QVariantMap{};
        // An owner that is gone by now has left the name to us.
        if (QDBusError{bus.call(call, QDBus::Block, answerTimeout)}.type() != QDBusError::ServiceUnknown)
            return false;
    }
    return true;
}

void SingleInstance::Activate(const QVariantMap& /*platformData*/)
{
    m_activated();
}

void SingleInstance::Open(const QStringList& /*uris*/, const QVariantMap& /*platformData*/)
{
    m_activated();
}

void SingleInstance::ActivateAction(
    const QString& /*name*/, const QVariantList& /*parameter*/, const QVariantMap& /*platformData*/)
{
    m_activated();
}

} // namespace velto
