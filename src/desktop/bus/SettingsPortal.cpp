// SPDX-License-Identifier: MIT
#include "desktop/bus/SettingsPortal.h"

#include <QDBusMessage>
#include <QDBusMetaType>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>

#include <chrono>
#include <utility>

using namespace std::chrono_literals;

namespace velto {

namespace {

using SettingGroups = QMap<QString, QVariantMap>;

constexpr auto service = "org.freedesktop.portal.Desktop";
constexpr auto path = "/org/freedesktop/portal/desktop";
constexpr auto interface = "org.freedesktop.portal.Settings";
constexpr auto pauseAfterSilence = 30s;

} // namespace

SettingsPortal::SettingsPortal(QStringList groups) : m_groups(std::move(groups))
{
    m_nextTry.setSingleShot(true);
    m_nextTry.setInterval(pauseAfterSilence);
    connect(&m_nextTry, &QTimer::timeout, this, &SettingsPortal::askForAll);
    qDBusRegisterMetaType<SettingGroups>();
    // A slot that takes one is found only once the type is known.
    qRegisterMetaType<QDBusVariant>();
}

void SettingsPortal::ask(QDBusConnection bus)
{
    if (!bus.isConnected())
        return;
    // From any sender: naming one would ask the bus for its owner and wait.
    bus.connect({}, path, interface, QStringLiteral("SettingChanged"), this,
        SLOT(settingChanged(QString, QString, QDBusVariant)));
    m_portal = std::make_unique<QDBusServiceWatcher>(service, bus, QDBusServiceWatcher::WatchForRegistration);
    connect(m_portal.get(), &QDBusServiceWatcher::serviceRegistered, this, &SettingsPortal::askForAll);
    askForAll();
}

void SettingsPortal::askForAll()
{
    auto question = QDBusMessage::createMethodCall(service, path, interface, QStringLiteral("ReadAll"));
    question << m_groups;
    auto* answer = new QDBusPendingCallWatcher(m_portal->connection().asyncCall(question), this);
    connect(answer, &QDBusPendingCallWatcher::finished, this, [this, answer] {
        answer->deleteLater();
        const QDBusPendingReply<SettingGroups> reply = *answer;
        if (reply.error().type() == QDBusError::NoReply)
            m_nextTry.start();
        if (reply.isError())
            return;
        const auto groups = reply.value();
        m_settings.clear();
        for (auto group = groups.begin(); group != groups.end(); ++group)
            for (auto setting = group->begin(); setting != group->end(); ++setting)
                keep(group.key(), setting.key(), setting.value());
        emit changed();
    });
}

void SettingsPortal::settingChanged(const QString& group, const QString& key, const QDBusVariant& value)
{
    if (keep(group, key, value.variant()))
        emit changed();
}

bool SettingsPortal::keep(const QString& group, const QString& key, const QVariant& value)
{
    constexpr qsizetype mostSettings = 500;
    constexpr qsizetype longestText = 256;
    if (!m_groups.contains(group) || key.size() > longestText)
        return false;
    const bool isNumber = value.canConvert<double>() && value.typeId() != QMetaType::QString;
    const bool isText = value.typeId() == QMetaType::QString && value.toString().size() <= longestText;
    auto& settings = m_settings[group];
    if (!(isNumber || isText) || (settings.size() >= mostSettings && !settings.contains(key)))
        return false;
    settings[key] = value;
    return true;
}

QVariant SettingsPortal::setting(const char* group, const char* key) const
{
    return m_settings.value(QLatin1String(group)).value(QLatin1String(key));
}

} // namespace velto
