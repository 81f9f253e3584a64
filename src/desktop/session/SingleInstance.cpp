// SPDX-License-Identifier: MIT
#include "desktop/session/SingleInstance.h"

#include "desktop/bus/SessionBus.h"

#include <QDBusConnection>
#include <QDBusConnectionInterface>
#include <QDBusError>
#include <QDBusMessage>
#include <QDBusReply>

#include <iostream>
#include <utility>

namespace velto {

namespace {

const QString serviceName = QStringLiteral("org.velto.Velto");
const QString objectPath = QStringLiteral("/org/velto/Velto");
const QString interfaceName = QStringLiteral("org.freedesktop.Application");

constexpr int answerTimeout = 5000; // ms

void sayWhatIsInTheWay(uint process, bool isStranger)
{
    if (isStranger)
        std::cerr << "velto: another program, process " << process << ", has the name " << serviceName.toStdString()
                  << " on the session bus\n";
    else
        std::cerr << "velto: already running as process " << process << ", which does not answer\n";
}

} // namespace

SingleInstance::SingleInstance(SessionBus& bus, std::function<void()> activated) :
    m_bus(bus),
    m_activated(std::move(activated))
{
    connect(&m_bus, &SessionBus::found, this, [this] {
        m_bus.connection().registerObject(objectPath, this, QDBusConnection::ExportAllSlots);
        // Not waited for: with another velto in the way, this one goes on without the name.
        constexpr uint doNotQueue = 4;
        m_bus.connection().interface()->asyncCall(QStringLiteral("RequestName"), serviceName, doNotQueue);
    });
}

SingleInstance::~SingleInstance()
{
    // The name goes with the connection; giving it back would wait for the bus.
    m_bus.connection().unregisterObject(objectPath);
}

std::optional<int> SingleInstance::claim()
{
    auto bus = m_bus.connection();
    if (!bus.isConnected())
        return std::nullopt;

    // Before the name: its owner can be called at once.
    bus.registerObject(objectPath, this, QDBusConnection::ExportAllSlots);
    while (true) {
        const QDBusReply<QDBusConnectionInterface::RegisterServiceReply> reply
            = bus.interface()->registerService(serviceName);
        if (!reply.isValid() || reply.value() == QDBusConnectionInterface::ServiceRegistered)
            return std::nullopt;

        const QString owner = bus.interface()->serviceOwner(serviceName);
        auto call = QDBusMessage::createMethodCall(owner, objectPath, interfaceName, QStringLiteral("Activate"));
        call << QVariantMap{};
        const QDBusError error{bus.call(call, QDBus::Block, answerTimeout)};
        if (!error.isValid())
            return 0;
        // If it has ended meanwhile, the name is free.
        if (owner.isEmpty() || !bus.interface()->isServiceRegistered(owner))
            continue;
        const bool isStranger = error.type() != QDBusError::NoReply && error.type() != QDBusError::Timeout;
        sayWhatIsInTheWay(bus.interface()->servicePid(owner), isStranger);
        return 1;
    }
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
