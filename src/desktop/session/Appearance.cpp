// SPDX-License-Identifier: MIT
#include "desktop/session/Appearance.h"

#include "desktop/bus/SessionBus.h"

#include <QApplication>
#include <QDBusMessage>
#include <QDBusMetaType>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QScopedValueRollback>
#include <QStringList>
#include <QWidget>

namespace velto {

namespace {

using SettingGroups = QMap<QString, QVariantMap>;

constexpr auto service = "org.freedesktop.portal.Desktop";
constexpr auto path = "/org/freedesktop/portal/desktop";
constexpr auto interface = "org.freedesktop.portal.Settings";

constexpr auto appearanceGroup = "org.freedesktop.appearance";
constexpr auto interfaceGroup = "org.gnome.desktop.interface";
constexpr auto accessibilityGroup = "org.gnome.desktop.a11y.interface";

} // namespace

Appearance::Appearance() : m_desktopPalette(QApplication::palette())
{
    // Views draw themselves; the rest, such as lists and scroll bars, shall look the same everywhere.
    QApplication::setStyle(QStringLiteral("Fusion"));
    apply();
    qApp->installEventFilter(this);
}

Appearance::Appearance(SessionBus& bus) : Appearance()
{
    askPortal(bus.connection());
    connect(&bus, &SessionBus::found, this, [this, &bus] { askPortal(bus.connection()); });
}

Theme Appearance::theme() const
{
    enum : unsigned { noPreference, prefersDark };
    const auto scheme = setting(appearanceGroup, "color-scheme").toUInt();
    const auto desktopTheme = themeOf(m_desktopPalette);
    const bool isDark = scheme == noPreference ? desktopTheme == Theme::dark || desktopTheme == Theme::darkHighContrast
                                               : scheme == prefersDark;
    const bool isHighContrast
        = setting(appearanceGroup, "contrast").toUInt() == 1 || setting(accessibilityGroup, "high-contrast").toBool();
    if (isHighContrast)
        return isDark ? Theme::darkHighContrast : Theme::lightHighContrast;
    return isDark ? Theme::dark : Theme::light;
}

bool Appearance::reducesMotion() const
{
    const auto animations = setting(interfaceGroup, "enable-animations");
    return setting(appearanceGroup, "reduced-motion").toUInt() == 1 || (animations.isValid() && !animations.toBool());
}

bool Appearance::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == qApp && event->type() == QEvent::ApplicationPaletteChange && !m_isApplying) {
        m_desktopPalette = QApplication::palette();
        apply();
    } else if (event->type() == QEvent::ThemeChange && !m_isApplying) {
        const QScopedValueRollback guard(m_isApplying, true);
        QApplication::setPalette({});
        m_desktopPalette = QApplication::palette();
        apply();
    }
    if (watched == qApp && event->type() == QEvent::ApplicationFontChange) {
        // Qt tells windows only, but text with a size of its own has to follow, too.
        for (auto* widget : QApplication::allWidgets())
            if (!widget->isWindow())
                QApplication::sendEvent(widget, event);
    }
    return QObject::eventFilter(watched, event);
}

void Appearance::askPortal(QDBusConnection bus)
{
    if (!bus.isConnected())
        return;
    qDBusRegisterMetaType<SettingGroups>();
    // A slot that takes one is found only once the type is known.
    qRegisterMetaType<QDBusVariant>();
    // From any sender: naming one would ask the bus for its owner and wait.
    bus.connect({}, path, interface, QStringLiteral("SettingChanged"), this,
        SLOT(settingChanged(QString, QString, QDBusVariant)));

    auto question = QDBusMessage::createMethodCall(service, path, interface, QStringLiteral("ReadAll"));
    question << QStringList{appearanceGroup, interfaceGroup, accessibilityGroup};
    auto* answer = new QDBusPendingCallWatcher(bus.asyncCall(question), this);
    connect(answer, &QDBusPendingCallWatcher::finished, this, [this, answer] {
        answer->deleteLater();
        const QDBusPendingReply<SettingGroups> reply = *answer;
        if (reply.isError())
            return;
        const auto groups = reply.value();
        for (auto group = groups.begin(); group != groups.end(); ++group)
            m_settings[group.key()] = group.value();
        apply();
    });
}

void Appearance::settingChanged(const QString& group, const QString& key, const QDBusVariant& value)
{
    m_settings[group][key] = value.variant();
    apply();
}

QVariant Appearance::setting(const char* group, const char* key) const
{
    const auto found = m_settings.find(QLatin1String(group));
    return found == m_settings.end() ? QVariant() : found->second.value(QLatin1String(key));
}

void Appearance::apply()
{
    const QScopedValueRollback guard(m_isApplying, true);
    const auto palette = paletteFor(theme());
    if (QApplication::palette() != palette)
        QApplication::setPalette(palette);
    QApplication::setEffectEnabled(Qt::UI_General, !reducesMotion());
}

} // namespace velto
