// SPDX-License-Identifier: MIT
#include "desktop/session/Appearance.h"

#include "desktop/bus/SessionBus.h"

#include <QApplication>
#include <QScopedValueRollback>
#include <QWidget>

namespace velto {

namespace {

constexpr auto appearanceGroup = "org.freedesktop.appearance";
constexpr auto interfaceGroup = "org.gnome.desktop.interface";
constexpr auto accessibilityGroup = "org.gnome.desktop.a11y.interface";

} // namespace

Appearance::Appearance() :
    m_desktopPalette(QApplication::palette()),
    m_portal({appearanceGroup, interfaceGroup, accessibilityGroup})
{
    // Views draw themselves; the rest, such as lists and scroll bars, shall look the same everywhere.
    QApplication::setStyle(QStringLiteral("Fusion"));
    apply();
    qApp->installEventFilter(this);
}

Appearance::Appearance(SessionBus& bus) : Appearance()
{
    connect(&m_portal, &SettingsPortal::changed, this, &Appearance::apply);
    m_portal.ask(bus.connection());
    connect(&bus, &SessionBus::found, this, [this, &bus] { m_portal.ask(bus.connection()); });
}

Theme Appearance::theme() const
{
    enum : unsigned { noPreference, prefersDark };
    const auto scheme = m_portal.setting(appearanceGroup, "color-scheme").toUInt();
    const auto desktopTheme = themeOf(m_desktopPalette);
    const bool isDark = scheme == noPreference ? desktopTheme == Theme::dark || desktopTheme == Theme::darkHighContrast
                                               : scheme == prefersDark;
    const bool isHighContrast = m_portal.setting(appearanceGroup, "contrast").toUInt() == 1
        || m_portal.setting(accessibilityGroup, "high-contrast").toBool();
    if (isHighContrast)
        return isDark ? Theme::darkHighContrast : Theme::lightHighContrast;
    return isDark ? Theme::dark : Theme::light;
}

bool Appearance::reducesMotion() const
{
    const auto animations = m_portal.setting(interfaceGroup, "enable-animations");
    return m_portal.setting(appearanceGroup, "reduced-motion").toUInt() == 1
        || (animations.isValid() && !animations.toBool());
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

void Appearance::apply()
{
    const QScopedValueRollback guard(m_isApplying, true);
    const auto palette = paletteFor(theme());
    if (QApplication::palette() != palette)
        QApplication::setPalette(palette);
    QApplication::setEffectEnabled(Qt::UI_General, !reducesMotion());
}

} // namespace velto
