// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>
#include <QVariantMap>

#include <functional>

namespace velto {

/// Keeps the program to one instance a session, by owning its name on the session bus.
///
/// Other launches, of the desktop entry too, reach the owner as org.freedesktop.Application calls.
class SingleInstance final : public QObject {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.Application")

public:
    /// `activated` runs for every later launch, from the event loop.
    explicit SingleInstance(std::function<void()> activated);
    ~SingleInstance() override;

    /// True when this process is the one to run, which it also is without a session bus. Otherwise the
    /// running one has been asked to show itself, and this process should leave. Waits for its answer.
    [[nodiscard]] bool claim();

public slots:
    void Activate(const QVariantMap& platformData);
    void Open(const QStringList& uris, const QVariantMap& platformData);
    void ActivateAction(const QString& name, const QVariantList& parameter, const QVariantMap& platformData);

private:
    std::function<void()> m_activated;
};

} // namespace velto
