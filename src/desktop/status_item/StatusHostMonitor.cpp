// SPDX-License-Identifier: MIT
#include "desktop/status_item/StatusHostMonitor.h"

#include "desktop/status_item/StatusNotifierNames.h"

#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QFile>
#include <QFileInfo>

#include <algorithm>
#include <chrono>
#include <memory>
#include <utility>

using namespace std::chrono_literals;
using std::chrono::milliseconds;

namespace velto {

namespace {

constexpr milliseconds firstPause = 5s; ///< After silence; each further one in a row is twice as long.
constexpr milliseconds longestPause = 1min;

/// Base name of the program that process `pid` runs; empty if it cannot be read.
std::string programName(uint pid)
{
    QFile file(QStringLiteral("/proc/%1/cmdline").arg(pid));
    if (!file.open(QIODevice::ReadOnly))
        return {};
    const auto arguments = file.readAll();
    return QFileInfo(QFile::decodeName(arguments.left(arguments.indexOf('\0')))).fileName().toStdString();
}

} // namespace

/// One round of questions. A newer round makes the answers to an older one irrelevant.
struct StatusHostMonitor::Inquiry {
    StatusHostFacts facts;
    qsizetype open = 0;
};

StatusHostMonitor::StatusHostMonitor(QDBusConnection bus) :
    m_bus(std::move(bus)),
    m_watcher(statusNotifierWatcherService, m_bus, QDBusServiceWatcher::WatchForOwnerChange),
    m_pause(firstPause)
{
    m_nextTry.setSingleShot(true);
    m_nextTry.callOnTimeout([this] {
        m_pause = std::min(2 * m_pause, longestPause);
        askForHosts();
    });
    connect(&m_watcher, &QDBusServiceWatcher::serviceOwnerChanged, this,
        [this](const QString&, const QString&, const QString& owner) { watcherOwnerChanged(owner); });
    for (const auto* signal : {"StatusNotifierHostRegistered", "StatusNotifierHostUnregistered"})
        m_bus.connect(statusNotifierWatcherService, statusNotifierWatcherPath, statusNotifierWatcherInterface,
            QLatin1String(signal), this, SLOT(askForHosts()));

    whenAnswered(askBus(QStringLiteral("GetNameOwner"), {statusNotifierWatcherService}),
        [this](const QDBusPendingReply<QString>& owner) {
            if (owner.isValid())
                watcherOwnerChanged(owner.value());
            else if (m_owner.isEmpty())
                Q_EMIT watcherMissing();
        });
}

void StatusHostMonitor::watcherOwnerChanged(const QString& owner)
{
    if (owner == m_owner)
        return;
    m_owner = owner;
    m_isSilent = false;
    m_pause = firstPause;
    askForHosts();
    if (!m_owner.isEmpty())
        Q_EMIT watcherAppeared();
}

void StatusHostMonitor::askForHosts()
{
    m_nextTry.stop();
    const auto inquiry = std::make_shared<Inquiry>();
    m_latest = inquiry;
    if (m_owner.isEmpty()) {
        setHost(std::nullopt);
        return;
    }
    auto question = QDBusMessage::createMethodCall(
        m_owner, statusNotifierWatcherPath, QStringLiteral("org.freedesktop.DBus.Properties"), QStringLiteral("Get"));
    question.setArguments({statusNotifierWatcherInterface, QStringLiteral("IsStatusNotifierHostRegistered")});
    whenAnswered(m_bus.asyncCall(question), [this, inquiry](const QDBusPendingReply<QDBusVariant>& registered) {
        if (inquiry != m_latest.lock())
            return;
        if (!registered.isValid()) {
            m_isSilent = true;
            m_nextTry.start(m_pause);
            setHost(std::nullopt);
            return;
        }
        m_pause = firstPause;
        if (std::exchange(m_isSilent, false))
            Q_EMIT watcherAppeared();
        if (!registered.value().variant().toBool()) {
            setHost(std::nullopt);
            return;
        }
        whenAnswered(
            askBus(QStringLiteral("ListNames"), {}), [this, inquiry](const QDBusPendingReply<QStringList>& names) {
                if (inquiry == m_latest.lock())
                    askForProcesses(inquiry, names.isValid() ? names.value() : QStringList());
            });
    });
}

void StatusHostMonitor::askForProcesses(const std::shared_ptr<Inquiry>& inquiry, const QStringList& names)
{
    inquiry->facts.desktop = qgetenv("XDG_CURRENT_DESKTOP").toStdString();
    auto hosts = names.filter(QStringLiteral("StatusNotifierHost-"));
    hosts.prepend(m_owner);
    inquiry->open = hosts.size();
    for (const auto& name : std::as_const(hosts)) {
        whenAnswered(askBus(QStringLiteral("GetConnectionUnixProcessID"), {name}),
            [this, inquiry](const QDBusPendingReply<uint>& pid) {
                if (inquiry != m_latest.lock())
                    return;
                auto program = pid.isValid() ? programName(pid.value()) : std::string();
                if (!program.empty())
                    inquiry->facts.processes.push_back(std::move(program));
                if (--inquiry->open == 0)
                    setHost(inquiry->facts);
            });
    }
}

void StatusHostMonitor::setHost(std::optional<StatusHostFacts> host)
{
    if (m_host == host)
        return;
    m_host = std::move(host);
    Q_EMIT hostChanged();
}

QDBusPendingCall StatusHostMonitor::askBus(const QString& method, const QVariantList& arguments)
{
    const auto service = QStringLiteral("org.freedesktop.DBus");
    auto question = QDBusMessage::createMethodCall(service, QStringLiteral("/org/freedesktop/DBus"), service, method);
    question.setArguments(arguments);
    return m_bus.asyncCall(question);
}

template <class Handler>
void StatusHostMonitor::whenAnswered(const QDBusPendingCall& call, Handler handler)
{
    auto* watcher = new QDBusPendingCallWatcher(call, this);
    connect(watcher, &QDBusPendingCallWatcher::finished, this, [handler](QDBusPendingCallWatcher* finished) {
        finished->deleteLater();
        handler(*finished);
    });
}

} // namespace velto
