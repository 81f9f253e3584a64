// SPDX-License-Identifier: MIT
#include "desktop/windows/QtScreens.h"

#include "desktop/windows/FlippedGeometry.h"
#include "desktop/x11/Pixels.h"
#include "desktop/x11/X11Desktop.h"

#include <QGuiApplication>
#include <QScreen>

#include <utility>
#include <vector>

namespace velto {

namespace {

/// A dock by its middle, and what it leaves of the whole desktop, in pixels.
struct Dock {
    QPoint middle;
    QRect rest;
};

std::vector<Dock> docks()
{
    const auto root = x11::rootWindow();
    const auto whole = x11::geometry(root);
    if (!whole)
        return {};
    std::vector<Dock> found;
    const auto partial = x11::atom("_NET_WM_STRUT_PARTIAL");
    const auto simple = x11::atom("_NET_WM_STRUT");
    for (const auto window : x11::property(root, x11::atom("_NET_CLIENT_LIST"))) {
        auto strut = x11::property(window, partial);
        if (strut.size() < 4)
            strut = x11::property(window, simple);
        if (strut.size() < 4)
            continue;
        const auto width = [&strut](std::size_t side) { return static_cast<int>(strut[side]); };
        const QMargins reserved(width(0), width(2), width(1), width(3)); // told as left, right, top, bottom
        if (const auto dock = x11::geometry(window))
            found.push_back({dock->center(), whole->marginsRemoved(reserved)});
    }
    return found;
}

/// The desktop has only one work area, which Qt believes while there is one screen; it may do so for a while after
/// another has come. So with several, what a bar reserves is taken from the screen that the bar stands on, and no more.
QRectF usableArea(const QScreen& screen)
{
    if (!x11::connection())
        return screen.availableGeometry();

    const QRect pixels = toPixels(screen.geometry(), screen);
    QRect free = pixels;
    for (const auto& dock : docks())
        if (const auto narrowed = free & dock.rest; pixels.contains(dock.middle) && !narrowed.isEmpty())
            free = narrowed;
    return QGuiApplication::screens().size() > 1 ? toPoints(free) : toPoints(free) & QRectF{screen.availableGeometry()};
}

Screen describe(const QScreen& screen)
{
    return {rectFromQt(screen.geometry()), rectFromQt(usableArea(screen))};
}

} // namespace

QtScreens::QtScreens(RunLoop& runLoop) : m_changed(runLoop, [this] { m_changes.send(); })
{
    for (QScreen* screen : QGuiApplication::screens())
        watch(screen);
    const auto changed = [this] { m_changed.request(); };
    QObject::connect(qGuiApp, &QGuiApplication::screenAdded, &m_connections, [this](QScreen* screen) {
        watch(screen);
        m_changed.request();
    });
    QObject::connect(qGuiApp, &QGuiApplication::screenRemoved, &m_connections, changed);
    QObject::connect(qGuiApp, &QGuiApplication::primaryScreenChanged, &m_connections, changed);
}

void QtScreens::watch(QScreen* screen)
{
    const auto changed = [this] { m_changed.request(); };
    QObject::connect(screen, &QScreen::geometryChanged, &m_connections, changed);
    QObject::connect(screen, &QScreen::availableGeometryChanged, &m_connections, changed);
}

Subscription QtScreens::changes(std::function<void()> changed)
{
    return m_changes.subscribe(std::move(changed));
}

std::optional<Screen> QtScreens::mainScreen() const
{
    const QScreen* primary = QGuiApplication::primaryScreen();
    return primary ? std::optional{describe(*primary)} : std::nullopt;
}

std::optional<Screen> QtScreens::screenOf(const Rect& rect) const
{
    const Point middle{rect.midX(), rect.midY()};
    for (const QScreen* screen : QGuiApplication::screens())
        if (rectFromQt(screen->geometry()).contains(middle))
            return describe(*screen);
    return std::nullopt;
}

} // namespace velto
