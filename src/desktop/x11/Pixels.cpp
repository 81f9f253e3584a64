// SPDX-License-Identifier: MIT
#include "desktop/x11/Pixels.h"

#include <QGuiApplication>
#include <QScreen>

#include <algorithm>

namespace velto {

namespace {

template <class Holds>
const QScreen* screenThat(Holds holds)
{
    const auto screens = QGuiApplication::screens();
    const auto found = std::ranges::find_if(screens, holds);
    return found != screens.end() ? *found : QGuiApplication::primaryScreen();
}

} // namespace

const QScreen* screenAt(QPoint point)
{
    return screenThat([point](const QScreen* screen) { return screen->geometry().contains(point); });
}

const QScreen* screenAtPixel(QPoint pixel)
{
    return screenThat([pixel](const QScreen* screen) { return toPixels(screen->geometry(), *screen).contains(pixel); });
}

QRect toPixels(const QRect& area, const QScreen& screen)
{
    const QPointF origin = screen.geometry().topLeft();
    const double factor = screen.devicePixelRatio();
    return QRectF(origin + (area.topLeft() - origin) * factor, QSizeF(area.size()) * factor).toRect();
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
