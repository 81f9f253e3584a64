// SPDX-License-Identifier: MIT
#pragma once

#include <QDBusConnection>
#include <QObject>
#include <QTimer>

namespace velto {

/// A connection to the session bus that is made again when the bus comes back after it was lost.
///
/// Does not try again in a session that never had a bus. Main thread only.
///
///     ask(bus.connection());
///     connect(&bus, &SessionBus::found, this, [this] { ask(m_bus.connection()); }); // everything anew
class SessionBus final : public QObject {
    Q_OBJECT

public:
    /// `name` identifies the connection within the program and must be unique there.
    explicit SessionBus(QString name);
    ~SessionBus() override;

    /// Not connected while there is no bus. A new one after each `found()`, with nothing registered on it.
    [[nodiscard]] QDBusConnection connection() const { return QDBusConnection(m_name); }

Q_SIGNALS:
    void lost();
    void found();

private Q_SLOTS:
    void disconnected();

private:
    [[nodiscard]] bool connectToBus();

    QString m_name;
    QTimer m_retry;
};

} // namespace velto
