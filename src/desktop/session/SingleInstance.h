// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>
#include <QVariantMap>

#include <functional>
#include <optional>

namespace velto {

class SessionBus;

/// Keeps the program to one instance per session by owning its name on the session bus.
///
/// Other launches, of the desktop entry too, reach the owner as org.freedesktop.Application calls.
class SingleInstance final : public QObject {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.Application")

public:
    /// `activated` runs for every later launch, from the event loop.
    /// `bus` must outlive this; the name is taken again when the bus is back.
    SingleInstance(SessionBus& bus, std::function<void()> activated);
    ~SingleInstance() override;

    /// Absent when this process is the one to run, which it also is without a session bus. Else it should leave with
    /// this status: 0 when the running one has shown itself, 1 when that one does not answer within 5 s or the name
    /// belongs to another program, which a line on standard error then says. Waits for the answer.
    [[nodiscard]] std::optional<int> claim();

public slots:
    void Activate(const QVariantMap& platformData);
    void Open(const QStringList& uris, const QVariantMap& platformData);
    void ActivateAction(const QString& name, const QVariantList& parameter, const QVariantMap& platformData);

private:
    SessionBus& m_bus;
    std::function<void()> m_activated;
};

} // namespace velto
