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

/// What a dock reserves along the edges of the whole desktop, in pixels.
struct Strut {
    QPoint dockCentre;
    int left = 0;
    int right = 0;
    int top = 0;
    int bottom = 0;
};

struct Struts {
    QSize desktop;
    std::vector<Strut> all;
};

Struts currentStruts()
{
    const xcb_window_t root = x11::rootWindow();
    const auto whole = x11::geometry(root);
    if (!whole)
        return {};

    Struts struts{whole->size(), {}};
    const xcb_atom_t partial = x11::atom("_NET_WM_STRUT_PARTIAL");
    const xcb_atom_t simple = x11::atom("_NET_WM_STRUT");
    for (const xcb_window_t window : x11::property(root, x11::atom("_NET_CLIENT_LIST"))) {
        auto widths = x11::property(window, partial);
        if (widths.size() < 4)
            widths = x11::property(window, simple);
        if (widths.size() < 4)
            continue;
        if (const auto dock = x11::geometry(window))
            struts.all.push_back({dock->center(), static_cast<int>(widths[0]), static_cast<int>(widths[1]),
                static_cast<int>(widths[2]), static_cast<int>(widths[3])});
    }
    return struts;
}

/// With several screens, Qt takes all of each as usable, since the desktop has only one work area. So what a bar
/// reserves is taken from the screen that the bar stands on.
QRectF usableArea(const QScreen& screen)
{
    const QRect available = screen.availableGeometry();
    if (!x11::connection())
        return available;

    const QRect pixels = toPixels(screen.geometry(), screen);
    const Struts struts = currentStruts();
    QRect free = pixels;
    for (const Strut& strut : struts.all) {
        if (!pixels.contains(strut.dockCentre))
            continue;
        const QRect rest{QPoint{strut.left, strut.top},
            QPoint{struts.desktop.width() - strut.right - 1, struts.desktop.height() - strut.bottom - 1}};
        if (const QRect narrowed = free & rest; !narrowed.isEmpty())
            free = narrowed;
    }
    return toPoints(free) & QRectF{available};
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
