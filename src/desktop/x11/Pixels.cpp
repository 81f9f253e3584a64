// SPDX-License-Identifier: MIT
#include "desktop/x11/Pixels.h"

#include <QGuiApplication>
#include <QScreen>

#include <algorithm>

namespace velto {

namespace {

template <class Holds>
QScreen* screenThat(Holds holds)
{
    const auto screens = QGuiApplication::screens();
    const auto found = std::ranges::find_if(screens, holds);
    return found != screens.end() ? *found : QGuiApplication::primaryScreen();
}

} // namespace

QScreen* screenAt(QPoint point)
{
    return screenThat([point](const QScreen* screen) { return screen->geometry().contains(point); });
}

QScreen* screenAtPixel(QPoint pixel)
{
    return screenThat([pixel](const QScreen* screen) { return toPixels(screen->geometry(), *screen).contains(pixel); });
}

QRect toPixels(const QRect& area, const QScreen& screen)
{
    const QPointF origin = screen.geometry().topLeft();
    const double factor = screen.devicePixelRatio();
    return QRectF(origin + (area.topLeft() - origin) * factor, QSizeF(area.size()) * factor).toRect();
}

std::array<QRect, 4> edgesAround(const QRect& inner, const QRect& outer)
{
    return {
        QRect(outer.topLeft(), QPoint(outer.right(), inner.top() - 1)),
        QRect(QPoint(outer.left(), inner.bottom() + 1), outer.bottomRight()),
        QRect(outer.topLeft(), QPoint(inner.left() - 1, outer.bottom())),
        QRect(QPoint(inner.right() + 1, outer.top()), outer.bottomRight()),
    };
}

QRectF toPoints(const QRect& pixels)
{
    const auto* screen = screenAtPixel(pixels.center());
    if (!screen)
        return pixels;
    const double factor = screen->devicePixelRatio();
    const QPointF origin = screen->geometry().topLeft();
    return {origin + (pixels.topLeft() - origin) / factor, QSizeF(pixels.size()) / factor};
}

} // namespace velto
