// SPDX-License-Identifier: MIT
#include "desktop/status_item/BarColor.h"

#include "desktop/x11/Pixels.h"
#include "desktop/x11/X11Desktop.h"

#include <QGuiApplication>
#include <QImage>
#include <QPixmap>
#include <QScreen>

#include <algorithm>
#include <array>
#include <chrono>

namespace velto {

using namespace std::chrono_literals;

namespace {

constexpr std::array settlingTimes{150ms, 450ms, 2400ms, 10000ms};
constexpr auto goodFor = 60s;

bool mayChangeABar(xcb_atom_t property)
{
    static const std::array properties{x11::atom("_XROOTPMAP_ID"), x11::atom("_NET_WORKAREA"),
        x11::atom("_NET_CURRENT_DESKTOP"), x11::atom("_XSETTINGS_SETTINGS")};
    return std::ranges::count(properties, property) > 0;
}

bool isHorizontal(const QRect& bar)
{
    return bar.width() >= bar.height();
}

/// The neighbourhood of `item` in `bar`, wide enough that the item's own digits do not count.
QRect around(const QRect& item, const QRect& bar)
{
    const int reach = 3 * std::min(bar.width(), bar.height());
    return bar & (isHorizontal(bar) ? item.adjusted(-reach, 0, reach, 0) : item.adjusted(0, -reach, 0, reach));
}

/// Where bars usually have their items.
QRect endOf(const QRect& bar)
{
    QRect end = bar;
    if (!isHorizontal(bar))
        end.setTop(bar.bottom() - bar.height() / 3);
    else if (QGuiApplication::isLeftToRight())
        end.setLeft(bar.right() - bar.width() / 3);
    else
        end.setRight(bar.left() + bar.width() / 3);
    return end;
}

/// The median of each channel.
QColor medianOf(const QImage& picture)
{
    const auto pixels = picture.convertToFormat(QImage::Format_RGB32);
    const auto median = [&pixels](int (*channel)(QRgb)) {
        std::vector<int> values;
        for (int y = 0; y < pixels.height(); ++y) {
            const auto* line = reinterpret_cast<const QRgb*>(pixels.constScanLine(y));
            std::transform(line, line + pixels.width(), std::back_inserter(values), channel);
        }
        const auto middle = values.begin() + static_cast<std::ptrdiff_t>(values.size() / 2);
        std::ranges::nth_element(values, middle);
        return *middle;
    };
    return {median(qRed), median(qGreen), median(qBlue)};
}

} // namespace

BarColor::BarColor()
{
    if (qgetenv("XDG_CURRENT_DESKTOP").split(':').contains("KDE")) {
        m_plasma.emplace();
        connect(&*m_plasma, &PlasmaPanelColor::changed, this, &BarColor::lookSoon);
    }
    m_settle.setSingleShot(true);
    connect(&m_settle, &QTimer::timeout, this, &BarColor::lookAfterChange);
    connect(qGuiApp, &QGuiApplication::primaryScreenChanged, this, &BarColor::lookSoon);
    if (x11::seesTheScreen())
        qApp->installNativeEventFilter(this);
    lookNow();
}

void BarColor::setItem(const QRect& item)
{
    if (item == m_item || !x11::seesTheScreen())
        return;
    m_item = item;
    findPlace();
    look();
}

void BarColor::refresh()
{
    if (m_lastLook.isValid() && m_lastLook.hasExpired(std::chrono::milliseconds(goodFor).count()))
        look();
}

bool BarColor::nativeEventFilter(const QByteArray& /*eventType*/, void* message, qintptr* /*result*/)
{
    if ((static_cast<const xcb_generic_event_t*>(message)->response_type & 0x7f) != XCB_PROPERTY_NOTIFY)
        return false;
    static const auto windows = x11::atom("_NET_CLIENT_LIST");
    const auto property = static_cast<const xcb_property_notify_event_t*>(message)->atom;
    // Most windows that come and go are no bars.
    if (mayChangeABar(property) || (property == windows && bars() != m_bars))
        lookSoon();
    return false;
}

void BarColor::lookNow()
{
    if (x11::seesTheScreen())
        findPlace();
    look();
    lookSoon();
}

void BarColor::lookSoon()
{
    if (!x11::seesTheScreen()) {
        look();
        return;
    }
    m_looksToCome = settlingTimes.size();
    m_settle.start(settlingTimes.front());
}

/// Some bars are redrawn at once; others fade, or wait for their wallpaper, or have a busy machine.
void BarColor::lookAfterChange()
{
    findPlace();
    look();
    if (--m_looksToCome > 0)
        m_settle.start(settlingTimes[settlingTimes.size() - m_looksToCome]);
}

std::vector<BarColor::Bar> BarColor::bars()
{
    std::vector<Bar> bars;
    for (const auto window : x11::property(x11::rootWindow(), x11::atom("_NET_CLIENT_LIST")))
        if (x11::isDock(window))
            if (const auto area = x11::geometry(window))
                bars.push_back({toPoints(*area).toAlignedRect(), window});
    if (!bars.empty())
        return bars;

    // Some desktops draw their bars without a window, on an edge that is kept free of windows.
    for (const auto* screen : QGuiApplication::screens()) {
        const QRect all = screen->geometry();
        const QRect usable = screen->availableGeometry();
        for (const auto& edge : edgesAround(usable, all))
            if (!edge.isEmpty())
                bars.push_back({edge});
    }
    return bars;
}

void BarColor::findPlace()
{
    m_place.reset();
    m_bars = bars();
    for (const auto& bar : m_bars)
        if (m_item && bar.area.contains(m_item->center()))
            m_place = {around(*m_item, bar.area), bar.window};
    if (m_place || m_bars.empty())
        return;
    m_place = *std::ranges::max_element(
        m_bars, {}, [](const Bar& bar) { return std::max(bar.area.width(), bar.area.height()); });
    m_place->area = endOf(m_place->area);
}

void BarColor::look()
{
    m_lastLook.start();
    std::optional<QColor> seen;
    if (m_plasma && !x11::seesTheScreen())
        seen = PlasmaPanelColor::read();
    if (m_place) {
        auto* screen = screenAt(m_place->area.center());
        const auto visible = m_place->area & screen->geometry();
        // A window that covers the bar says nothing about it.
        const bool isCovered = m_place->window != XCB_WINDOW_NONE
            && x11::topLevelAt(toPixels(visible, *screen).center()) != x11::outermost(m_place->window);
        if (visible.isEmpty() || isCovered)
            return;
        const auto local = visible.translated(-screen->geometry().topLeft());
        const auto picture = screen->grabWindow(0, local.x(), local.y(), local.width(), local.height());
        if (!picture.isNull())
            seen = medianOf(picture.toImage());
    }
    if (seen == m_color)
        return;
    m_color = seen;
    emit changed();
}

} // namespace velto
