// SPDX-License-Identifier: MIT
#pragma once

#include <QDBusConnection>
#include <QDBusVariant>
#include <QMap>
#include <QObject>
#include <QStringList>
#include <QVariant>
#include <QVariantMap>

namespace velto {

/// Some groups of the desktop's settings, as its portal tells them. Nobody waits for it. Main thread only.
class SettingsPortal final : public QObject {
    Q_OBJECT

public:
    explicit SettingsPortal(QStringList groups);

    /// What is known stays until the answer comes. No effect without a bus.
    void ask(QDBusConnection bus);

    /// Invalid while it is not known.
    [[nodiscard]] QVariant setting(const char* group, const char* key) const;

signals:
    void changed();

private slots:
    void settingChanged(const QString& group, const QString& key, const QDBusVariant& value);

private:
    QStringList m_groups;
    QMap<QString, QVariantMap> m_settings;
};

} // namespace velto
