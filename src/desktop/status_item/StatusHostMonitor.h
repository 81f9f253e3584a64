// SPDX-License-Identifier: MIT
#pragma once

#include "desktop/status_item/StatusHost.h"

#include <QDBusConnection>
#include <QDBusServiceWatcher>
#include <QObject>
#include <QTimer>

#include <chrono>
#include <optional>

class QDBusPendingCall;

namespace velto {

/// Follows who takes in and shows status items in this session.
///
/// Never blocks: everything asked of the bus is answered in a later turn. Main thread only.
class StatusHostMonitor : public QObject {
    Q_OBJECT

public:
    explicit StatusHostMonitor(QDBusConnection bus);

    /// The host that shows items now; absent when there is none.
    [[nodiscard]] const std::optional<StatusHostFacts>& host() const { return m_host; }

Q_SIGNALS:
    /// At the start there is no watcher, nor is a host about to come.
    void watcherMissing();
    /// A new watcher owns the well-known name, and knows of no item yet; or one answers that did not before.
    void watcherAppeared();
    void hostChanged();

private Q_SLOTS:
    void askForHosts();

private:
    struct Inquiry;

    void watcherOwnerChanged(const QString& owner);
    void askForProcesses(const std::shared_ptr<Inquiry>& inquiry, const QStringList& names);
    void setHost(std::optional<StatusHostFacts> host);
    QDBusPendingCall askBus(const QString& method, const QVariantList& arguments);
    template <class Handler>
    void whenAnswered(const QDBusPendingCall& call, Handler handler);

    QDBusConnection m_bus;
    QDBusServiceWatcher m_watcher;
    QString m_owner;         ///< Unique name of the watcher; empty without one.
    bool m_isSilent = false; ///< The watcher did not answer when it was asked last, or with an error.
    QTimer m_nextTry;
    std::chrono::milliseconds m_pause; ///< Before the next try.
    std::weak_ptr<Inquiry> m_latest;
    std::optional<StatusHostFacts> m_host;
};

} // namespace velto
