// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QObject>

#include <chrono>
#include <memory>

struct DBusConnection;

namespace velto {

/// Asks a bus to let a client in without waiting for the answer, as connecting with Qt does.
class BusProbe final : public QObject {
    Q_OBJECT

public:
    /// `address` has the form of DBUS_SESSION_BUS_ADDRESS.
    explicit BusProbe(const QByteArray& address);
    ~BusProbe() override;

    /// Whether there is a bus at `address` that has not answered within `patience`. Waits for it.
    [[nodiscard]] static bool hangs(const QByteArray& address, std::chrono::milliseconds patience);

Q_SIGNALS:
    /// Once, from the event loop: whether the bus lets clients in. A bus that hangs answers when it goes on.
    void answered(bool isThere);

private:
    void listen();
    void look();

    struct Close {
        void operator()(DBusConnection* connection) const;
    };
    using Connection = std::unique_ptr<DBusConnection, Close>;

    Connection m_connection;
    bool m_hasAnswered = false;
};

} // namespace velto
