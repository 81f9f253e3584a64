// SPDX-License-Identifier: MIT
#include "desktop/windows/FlippedGeometry.h"

#include <QGuiApplication>
#include <QScreen>

namespace velto {

namespace {

/// Where y = 0 of the one system lies in the other.
double originY()
{
    const QScreen* primary = QGuiApplication::primaryScreen();
    return primary ? primary->geometry().y() + primary->geometry().height() : 0;
}

} // namespace

Rect rectFromQt(const QRectF& rect)
{
    return {rect.x(), originY() - rect.y() - rect.height(), rect.width(), rect.height()};
}

QRectF rectToQt(const Rect& rect)
{
    return {rect.x, originY() - rect.maxY(), rect.width, rect.height};
}

} // namespace velto
