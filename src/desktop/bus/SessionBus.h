// SPDX-License-Identifier: MIT
#pragma once

#include "desktop/bus/BusProbe.h"

#include <QDBusConnection>
#include <QObject>
#include <QTimer>

#include <memory>

namespace velto {

/// A connection to the session bus that is made again when the bus comes back after it was lost.
///
/// Does not try again in a session that never had a bus, nor for one whose address only libdbus finds out. Main thread
/// only.
///
///     ask(bus.connection());
///     connect(&bus, &SessionBus::found, this, [this] { ask(m_bus.connection()); }); // everything anew
class SessionBus final : public QObject {
    Q_OBJECT

public:
    /// `name` identifies the connection within the program and must be unique there. Waits for the bus as long as it
    /// hangs; one that comes back is not waited for.
    explicit SessionBus(QString name);
    ~SessionBus() override;

    /// Whether there is a session bus that has not answered within 25 s, which this waits for. Qt's application object
    /// would wait for ever. Needs no application.
    [[nodiscard]] static bool hangs();

    /// Not connected while there is no bus. A new one after each `found()`, with nothing registered on it.
    [[nodiscard]] QDBusConnection connection() const { return QDBusConnection(m_name); }

Q_SIGNALS:
    void lost();
    void found();

private Q_SLOTS:
    void disconnected();

private:
    [[nodiscard]] bool connectToBus();
    void probe();

    QString m_name;
    QTimer m_retry;
    std::unique_ptr<BusProbe> m_probe;
};

} // namespace velto
