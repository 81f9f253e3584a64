// SPDX-License-Identifier: MIT
#include "desktop/bus/BusProbe.h"

#include <QDeadlineTimer>
#include <QSocketNotifier>

#include <dbus/dbus.h>

namespace velto {

namespace {

QSocketNotifier* notifierOf(DBusWatch* watch)
{
    return static_cast<QSocketNotifier*>(dbus_watch_get_data(watch));
}

/// Let in, or hung up on.
bool isDecided(DBusConnection* connection)
{
    return dbus_connection_get_is_authenticated(connection) || !dbus_connection_get_is_connected(connection);
}

} // namespace

void BusProbe::Close::operator()(DBusConnection* connection) const
{
    dbus_connection_close(connection);
    dbus_connection_unref(connection);
}

BusProbe::BusProbe(const QByteArray& address) : m_connection(dbus_connection_open_private(address, nullptr))
{
    if (m_connection)
        listen();
    QMetaObject::invokeMethod(this, &BusProbe::look, Qt::QueuedConnection);
}

BusProbe::~BusProbe() = default;

bool BusProbe::hangs(const QByteArray& address, std::chrono::milliseconds patience)
{
    const Connection connection(dbus_connection_open_private(address, nullptr));
    if (!connection)
        return false;
    const QDeadlineTimer deadline(patience);
    while (!isDecided(connection.get()) && !deadline.hasExpired())
        dbus_connection_read_write(connection.get(), static_cast<int>(deadline.remainingTime()));
    return !isDecided(connection.get());
}

void BusProbe::listen()
{
    dbus_connection_set_watch_functions(
        m_connection.get(),
        [](DBusWatch* watch, void* data) -> dbus_bool_t {
            auto* self = static_cast<BusProbe*>(data);
            const auto flags = dbus_watch_get_flags(watch);
            auto* notifier = new QSocketNotifier(dbus_watch_get_unix_fd(watch),
                (flags & DBUS_WATCH_READABLE) ? QSocketNotifier::Read : QSocketNotifier::Write, self);
            notifier->setEnabled(dbus_watch_get_enabled(watch));
            connect(notifier, &QSocketNotifier::activated, self, [self, watch, flags] {
                dbus_watch_handle(watch, flags);
                self->look();
            });
            dbus_watch_set_data(watch, notifier, nullptr);
            return TRUE;
        },
        [](DBusWatch* watch, void*) { notifierOf(watch)->setEnabled(false); },
        [](DBusWatch* watch, void*) { notifierOf(watch)->setEnabled(dbus_watch_get_enabled(watch)); }, this, nullptr);
}

void BusProbe::look()
{
    if (m_hasAnswered || (m_connection && !isDecided(m_connection.get())))
        return;
    m_hasAnswered = true;
    Q_EMIT answered(m_connection && dbus_connection_get_is_authenticated(m_connection.get()));
}

} // namespace velto
