// SPDX-License-Identifier: MIT
#include "desktop/bus/SettingsPortal.h"

#include <QDBusMessage>
#include <QDBusMetaType>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>

#include <utility>

namespace velto {

namespace {

using SettingGroups = QMap<QString, QVariantMap>;

constexpr auto service = "org.freedesktop.portal.Desktop";
constexpr auto path = "/org/freedesktop/portal/desktop";
constexpr auto interface = "org.freedesktop.portal.Settings";

} // namespace

SettingsPortal::SettingsPortal(QStringList groups) : m_groups(std::move(groups))
{
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

    auto question = QDBusMessage::createMethodCall(service, path, interface, QStringLiteral("ReadAll"));
    question << m_groups;
    auto* answer = new QDBusPendingCallWatcher(bus.asyncCall(question), this);
    connect(answer, &QDBusPendingCallWatcher::finished, this, [this, answer] {
        answer->deleteLater();
        const QDBusPendingReply<SettingGroups> reply = *answer;
        if (reply.isError())
            return;
        const auto groups = reply.value();
        for (auto group = groups.begin(); group != groups.end(); ++group)
            m_settings[group.key()] = group.value();
        emit changed();
    });
}

void SettingsPortal::settingChanged(const QString& group, const QString& key, const QDBusVariant& value)
{
    if (!m_groups.contains(group))
        return;
    m_settings[group][key] = value.variant();
    emit changed();
}

QVariant SettingsPortal::setting(const char* group, const char* key) const
{
    return m_settings.value(QLatin1String(group)).value(QLatin1String(key));
}

} // namespace velto
