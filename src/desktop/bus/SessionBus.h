// SPDX-License-Identifier: MIT
#pragma once

#include <QDBusConnection>
#include <QObject>
#include <QTimer>

namespace velto {

/// A connection to the session bus that is made anew when the bus has gone and is there again.
///
/// In a session that never had a bus nothing is tried again. Main thread only.
class SessionBus final : public QObject {
    Q_OBJECT

public:
    /// `name` is the connection's within the program; no other may have it.
    explicit SessionBus(QString name);
    ~SessionBus() override;

    /// Not connected while there is no bus. Another one after each `found()`, on which nothing is registered yet.
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
