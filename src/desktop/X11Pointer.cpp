// SPDX-License-Identifier: MIT
#include "desktop/X11Pointer.h"

#include "desktop/X11Desktop.h"

#include <QGuiApplication>
#include <QScreen>
#include <QtGui/private/qhighdpiscaling_p.h>
#include <qpa/qplatformscreen.h>

#include <algorithm>
#include <cstdlib>
#include <memory>

namespace velto {

namespace {

struct Free {
    void operator()(void* reply) const { std::free(reply); }
};
template <class Reply>
using Answer = std::unique_ptr<Reply, Free>;

bool isDock(xcb_window_t window)
{
    static const auto type = x11::atom("_NET_WM_WINDOW_TYPE");
    static const auto dock = x11::atom("_NET_WM_WINDOW_TYPE_DOCK");
    return std::ranges::count(x11::property(window, type), dock) > 0;
}

std::optional<QRect> geometry(xcb_window_t window)
{
    auto* x = x11::connection();
    const Answer<xcb_get_geometry_reply_t> size(xcb_get_geometry_reply(x, xcb_get_geometry(x, window), nullptr));
    const Answer<xcb_translate_coordinates_reply_t> origin(
        xcb_translate_coordinates_reply(x, xcb_translate_coordinates(x, window, x11::rootWindow(), 0, 0), nullptr));
    if (!size || !origin)
        return std::nullopt;
    return QRect(origin->dst_x, origin->dst_y, size->width, size->height);
}

/// The dock window at `position`, looking down from the root through the frames around it.
std::optional<QRect> dockAt(QPoint position)
{
    auto* x = x11::connection();
    const auto root = x11::rootWindow();
    auto window = root;
    while (window != XCB_WINDOW_NONE) {
        if (window != root && isDock(window))
            return geometry(window);
        const Answer<xcb_translate_coordinates_reply_t> below(xcb_translate_coordinates_reply(x,
            xcb_translate_coordinates(
                x, root, window, static_cast<std::int16_t>(position.x()), static_cast<std::int16_t>(position.y())),
            nullptr));
        window = below ? below->child : static_cast<xcb_window_t>(XCB_WINDOW_NONE);
    }
    return std::nullopt;
}

const QScreen* screenAt(QPoint pixel)
{
    for (const auto* screen : QGuiApplication::screens())
        if (screen->handle()->geometry().contains(pixel))
            return screen;
    return QGuiApplication::primaryScreen();
}

/// The strip along an edge of the screen that belongs to no window.
std::optional<QRect> edgeStripAt(QPoint position)
{
    const auto* screen = screenAt(position);
    if (!screen)
        return std::nullopt;
    const auto all = screen->handle()->geometry();
    const auto usable = screen->handle()->availableGeometry();
    for (const auto& strip : {
             QRect(all.topLeft(), QPoint(all.right(), usable.top() - 1)),
             QRect(QPoint(all.left(), usable.bottom() + 1), all.bottomRight()),
             QRect(all.topLeft(), QPoint(usable.left() - 1, all.bottom())),
             QRect(QPoint(usable.right() + 1, all.top()), all.bottomRight()),
         })
        if (strip.contains(position))
            return strip;
    return std::nullopt;
}

} // namespace

std::optional<PointerState> queryPointer()
{
    auto* x = x11::connection();
    if (!x)
        return std::nullopt;
    const Answer<xcb_query_pointer_reply_t> reply(
        xcb_query_pointer_reply(x, xcb_query_pointer(x, x11::rootWindow()), nullptr));
    if (!reply)
        return std::nullopt;
    constexpr auto buttons = XCB_KEY_BUT_MASK_BUTTON_1 | XCB_KEY_BUT_MASK_BUTTON_2 | XCB_KEY_BUT_MASK_BUTTON_3;
    return PointerState{
        {reply->root_x, reply->root_y}, (reply->mask & XCB_KEY_BUT_MASK_CONTROL) != 0, (reply->mask & buttons) != 0};
}

std::optional<QRect> panelBarAt(QPoint position)
{
    if (!x11::connection())
        return std::nullopt;
    if (const auto dock = dockAt(position))
        return dock;
    return edgeStripAt(position);
}

QRectF toLogical(const QRect& pixels)
{
    const auto* screen = screenAt(pixels.center());
    if (!screen)
        return pixels;
    const double factor = QHighDpiScaling::factor(screen);
    const QPointF origin = screen->handle()->geometry().topLeft();
    return {
        screen->geometry().topLeft() + (QPointF(pixels.topLeft()) - origin) / factor, QSizeF(pixels.size()) / factor};
}

} // namespace velto
