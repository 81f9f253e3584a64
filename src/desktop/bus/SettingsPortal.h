// SPDX-License-Identifier: MIT
#pragma once

#include <QDBusConnection>
#include <QDBusServiceWatcher>
#include <QDBusVariant>
#include <QMap>
#include <QObject>
#include <QStringList>
#include <QTimer>
#include <QVariant>
#include <QVariantMap>

#include <memory>

namespace velto {

/// Some groups of the desktop's settings, as its portal tells them: numbers and short texts. Nobody waits for it; a
/// portal that comes later is asked then. Main thread only.
class SettingsPortal final : public QObject {
    Q_OBJECT

public:
    explicit SettingsPortal(QStringList groups);

    /// What is known stays until the answer comes; an error is none. No effect without a bus.
    void ask(QDBusConnection bus);

    /// Invalid while it is not known.
    [[nodiscard]] QVariant setting(const char* group, const char* key) const;

signals:
    void changed();

private slots:
    void settingChanged(const QString& group, const QString& key, const QDBusVariant& value);

private:
    void askForAll();
    /// Whether it is of a kind that is kept.
    bool keep(const QString& group, const QString& key, const QVariant& value);

    std::unique_ptr<QDBusServiceWatcher> m_portal; ///< On the bus that was asked last.
    QTimer m_nextTry;
    QStringList m_groups;
    QMap<QString, QVariantMap> m_settings;
};

} // namespace velto
