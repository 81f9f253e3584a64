// SPDX-License-Identifier: MIT
#include "desktop/status_item/PlasmaPanelColor.h"

#include <QSettings>
#include <QStandardPaths>
#include <QStringList>

namespace velto {

namespace {

constexpr auto colorKey = "Colors:Window/BackgroundNormal";

QVariant valueIn(const QString& path, const char* key)
{
    return QSettings(path, QSettings::IniFormat).value(QLatin1String(key));
}

/// The person's own value, else the one that a global theme or the system brings.
QVariant setting(const QString& file, const char* key)
{
    for (const auto& path : QStandardPaths::locateAll(QStandardPaths::GenericConfigLocation, file))
        if (auto value = valueIn(path, key); value.isValid())
            return value;
    return {};
}

/// A theme without colours of its own has those of the applications.
QString colorsOf(const QString& theme)
{
    return QStandardPaths::locate(
        QStandardPaths::GenericDataLocation, QStringLiteral("plasma/desktoptheme/%1/colors").arg(theme));
}

} // namespace

PlasmaPanelColor::PlasmaPanelColor()
{
    // Its files are replaced; nothing else announces a change of the panels' theme.
    m_settings.addPaths(QStandardPaths::standardLocations(QStandardPaths::GenericConfigLocation));
    connect(&m_settings, &QFileSystemWatcher::directoryChanged, this, &PlasmaPanelColor::changed);
}

std::optional<QColor> PlasmaPanelColor::read()
{
    const auto colors = colorsOf(setting(QStringLiteral("plasmarc"), "Theme/name").toString());
    const auto value = colors.isEmpty() ? setting(QStringLiteral("kdeglobals"), colorKey) : valueIn(colors, colorKey);
    const auto channels = value.toStringList();
    if (channels.size() < 3)
        return std::nullopt;
    return QColor(channels[0].toInt(), channels[1].toInt(), channels[2].toInt());
}

} // namespace velto
