// SPDX-License-Identifier: MIT
#pragma once

#include <QDBusConnection>
#include <QDBusError>
#include <QDBusMessage>
#include <QDBusVirtualObject>
#include <QObject>
#include <QStringList>

namespace velto {

/// A panel bar's side of the bus: takes in items as long as it lives.
class FakeWatcher : public QObject {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.kde.StatusNotifierWatcher")
    Q_PROPERTY(bool IsStatusNotifierHostRegistered MEMBER m_hasHost)

public:
    explicit FakeWatcher(bool hasHost = true) :
        m_bus(QDBusConnection::connectToBus(QDBusConnection::SessionBus, QStringLiteral("watcher %1").arg(++m_count))),
        m_hasHost(hasHost)
    {
        serve();
        m_bus.registerService(QStringLiteral("org.kde.StatusNotifierWatcher"));
    }
    ~FakeWatcher() override { QDBusConnection::disconnectFromBus(m_bus.name()); }

    void serve()
    {
        m_bus.unregisterObject(QStringLiteral("/StatusNotifierWatcher"));
        m_bus.registerObject(QStringLiteral("/StatusNotifierWatcher"), this, QDBusConnection::ExportScriptableContents);
    }

    /// Answers with errors from now on, under its name.
    void leave()
    {
        m_bus.unregisterObject(QStringLiteral("/StatusNotifierWatcher"));
        m_bus.registerVirtualObject(QStringLiteral("/StatusNotifierWatcher"), &m_refusal);
    }

    /// How often it was asked for a host and answered with an error.
    [[nodiscard]] int refusals() const { return m_refusal.count; }

    void setHasHost(bool hasHost)
    {
        m_hasHost = hasHost;
        if (hasHost)
            Q_EMIT StatusNotifierHostRegistered();
        else
            Q_EMIT StatusNotifierHostUnregistered();
    }

    QStringList items; ///< What has been registered, in order.

public Q_SLOTS:
    Q_SCRIPTABLE void RegisterStatusNotifierItem(const QString& service) { items.append(service); }

Q_SIGNALS:
    Q_SCRIPTABLE void StatusNotifierHostRegistered();
    Q_SCRIPTABLE void StatusNotifierHostUnregistered();

private:
    class Refusal final : public QDBusVirtualObject {
    public:
        [[nodiscard]] QString introspect(const QString& /*path*/) const override { return {}; }
        bool handleMessage(const QDBusMessage& message, const QDBusConnection& bus) override
        {
            count += message.member() == u"Get";
            return bus.send(message.createErrorReply(QDBusError::Failed, QStringLiteral("no")));
        }

        int count = 0;
    };

    inline static int m_count = 0;
    Refusal m_refusal;
    QDBusConnection m_bus;
    bool m_hasHost;
};

} // namespace velto
