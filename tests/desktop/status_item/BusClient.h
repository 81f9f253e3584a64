// SPDX-License-Identifier: MIT
#pragma once

#include <QCoreApplication>
#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusVariant>
#include <QObject>
#include <QString>
#include <QTest>
#include <QTimer>
#include <QVariantList>

#include <utility>
#include <vector>

namespace velto {

constexpr int patience = 30'000; ///< Milliseconds; far more than anything here takes.

/// Another program on the bus of the tests: calls things, and hears the signals of one service.
class BusClient : public QObject {
    Q_OBJECT

public:
    /// `service` is the unique name of who is listened to.
    explicit BusClient(const QString& service) :
        m_service(service),
        m_bus(QDBusConnection::connectToBus(QDBusConnection::SessionBus, QStringLiteral("client %1").arg(++m_count)))
    {
        for (const auto* interface : {"org.kde.StatusNotifierItem", "com.canonical.dbusmenu"})
            m_bus.connect(
                service, QString(), QString::fromLatin1(interface), QString(), this, SLOT(hear(QDBusMessage)));
    }
    ~BusClient() override { QDBusConnection::disconnectFromBus(m_bus.name()); }

    /// The reply, an error included.
    QDBusMessage call(const char* path, const char* interface, const char* method, const QVariantList& arguments = {})
    {
        auto message = QDBusMessage::createMethodCall(
            m_service, QString::fromLatin1(path), QString::fromLatin1(interface), QString::fromLatin1(method));
        message.setArguments(arguments);
        const QDBusPendingCallWatcher answer(m_bus.asyncCall(message));
        if (!QTest::qWaitFor([&] { return answer.isFinished(); }, patience))
            return {};
        return answer.reply();
    }

    QVariant property(const char* path, const char* interface, const char* name)
    {
        const auto reply = call(path, "org.freedesktop.DBus.Properties", "Get",
            {QString::fromLatin1(interface), QString::fromLatin1(name)});
        return reply.arguments().value(0).value<QDBusVariant>().variant();
    }

    /// Until everything sent by now has been handled and heard of.
    void settle()
    {
        QTimer turn; // the timers that run out now run out before this one
        turn.setSingleShot(true);
        turn.start(0);
        while (turn.isActive())
            QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
        call("/", "org.freedesktop.DBus.Peer", "Ping");
        QCoreApplication::processEvents(); // signals that came before the reply
    }

    /// The signals heard since the last time.
    std::vector<QDBusMessage> takeSignals()
    {
        settle();
        return std::exchange(m_heard, {});
    }

    QDBusConnection& bus() { return m_bus; }

private Q_SLOTS:
    void hear(const QDBusMessage& message) { m_heard.push_back(message); }

private:
    inline static int m_count = 0;
    QString m_service;
    QDBusConnection m_bus;
    std::vector<QDBusMessage> m_heard;
};

} // namespace velto
