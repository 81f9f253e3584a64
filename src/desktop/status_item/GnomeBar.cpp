// SPDX-License-Identifier: MIT
#include "desktop/status_item/GnomeBar.h"

#include "desktop/x11/Pixels.h"
#include "desktop/x11/X11Desktop.h"

#include <QFontMetricsF>
#include <QGuiApplication>
#include <QLocale>
#include <QScreen>

#include <algorithm>
#include <cmath>
#include <utility>

namespace velto {

namespace {

constexpr auto group = "org.gnome.desktop.interface";

// In points, at the shell's usual text size.
constexpr double clockPadding = 27;   ///< Between the clock's text and the end of its button.
constexpr double indicatorWidth = 22; ///< For unseen notifications, beside the text.
constexpr int roomForMenus = 260;     ///< At the end of the bar: sound, network, power, languages.
constexpr int lowestBar = 20;
constexpr int highestBar = 80;

/// The part of the main screen that is free for windows, in pixels; for each screen there is one.
std::optional<QRect> workArea(const QRect& screen)
{
    const auto areas = x11::property(x11::rootWindow(), x11::atom("_GTK_WORKAREAS_D0"));
    for (std::size_t i = 0; i + 3 < areas.size(); i += 4) {
        const QRect area(static_cast<int>(areas[i]), static_cast<int>(areas[i + 1]), static_cast<int>(areas[i + 2]),
            static_cast<int>(areas[i + 3]));
        if (screen.contains(area))
            return area;
    }
    return std::nullopt;
}

/// The widest of a locale's names for 1 to `count`.
template <class NameOf>
QString widest(const QFontMetricsF& metrics, int count, NameOf nameOf)
{
    QString result;
    for (int i = 1; i <= count; ++i)
        result = std::max(result, nameOf(i), [&metrics](const QString& one, const QString& other) {
            return metrics.horizontalAdvance(one) < metrics.horizontalAdvance(other);
        });
    return result;
}

} // namespace

GnomeBar::GnomeBar(QDBusConnection bus) : m_portal({group})
{
    connect(&m_portal, &SettingsPortal::changed, this, &GnomeBar::changed);
    if (area())
        m_portal.ask(std::move(bus));
}

std::optional<QRect> GnomeBar::placeFor(int width) const
{
    const auto bar = area();
    if (!bar)
        return std::nullopt;
    const double clock = clockWidth() / 2 + clockPadding + indicatorWidth;
    const QRect place(bar->center().x() + static_cast<int>(std::ceil(clock)), bar->top(), width, bar->height());
    return place.right() < bar->right() - roomForMenus ? std::optional(place) : std::nullopt;
}

QFont GnomeBar::font()
{
    constexpr double points = 11;
    auto font = QGuiApplication::font();
    font.setPointSizeF(points);
    font.setBold(true);
    return font;
}

std::optional<QRect> GnomeBar::area()
{
    const auto* screen = QGuiApplication::primaryScreen();
    if (!screen || !x11::connection() || x11::windowManager() != "GNOME Shell")
        return std::nullopt;
    const auto all = toPixels(screen->geometry(), *screen);
    const auto free = workArea(all);
    if (!free)
        return std::nullopt;
    const auto bar = toPoints(edgesAround(*free, all).front()).toAlignedRect();
    return bar.height() >= lowestBar && bar.height() <= highestBar ? std::optional(bar) : std::nullopt;
}

double GnomeBar::clockWidth() const
{
    const QFontMetricsF metrics(font());
    const QLocale locale = QLocale::system();
    QString text;
    if (shows("clock-show-weekday"))
        text += widest(metrics, 7, [&](int day) { return locale.dayName(day, QLocale::ShortFormat); }) + u' ';
    if (shows("clock-show-date"))
        text += widest(metrics, 12, [&](int month) { return locale.monthName(month, QLocale::ShortFormat); })
            + QStringLiteral(" 30  ");
    text += QStringLiteral("00:00");
    if (shows("clock-show-seconds"))
        text += QStringLiteral(":00");
    if (m_portal.setting(group, "clock-format").toString() != QLatin1String("24h"))
        text += u' ' + std::max(locale.amText(), locale.pmText());
    return metrics.horizontalAdvance(text);
}

bool GnomeBar::shows(const char* key) const
{
    const auto setting = m_portal.setting(group, key);
    return !setting.isValid() || setting.toBool();
}

} // namespace velto
