// SPDX-License-Identifier: MIT
#include "desktop/status_item/X11Pointer.h"

#include "desktop/x11/Pixels.h"

#include <QScreen>

#include <algorithm>

namespace velto {

namespace {

bool isOnAScreen(QPoint position)
{
    const auto* screen = screenAtPixel(position);
    return screen && toPixels(screen->geometry(), *screen).contains(position);
}

/// The strip along an edge of the screen that is kept free of windows.
std::optional<QRect> edgeStripAt(QPoint position)
{
    const auto* screen = screenAtPixel(position);
    if (!screen)
        return std::nullopt;
    const auto all = toPixels(screen->geometry(), *screen);
    const auto usable = toPixels(screen->availableGeometry(), *screen);
    for (const auto& strip : edgesAround(usable, all))
        if (strip.contains(position))
            return strip;
    return std::nullopt;
}

} // namespace

std::optional<QRect> barAt(const x11::Pointer& pointer)
{
    const auto dock = std::ranges::find_if(pointer.windows, x11::isDock);
    return dock != pointer.windows.end() ? x11::geometry(*dock) : edgeStripAt({pointer.x, pointer.y});
}

ClickSurroundings clickSurroundings(QPoint claimed, bool hostTellsPlace)
{
    ClickSurroundings result;
    result.place.claimed = claimed;
    result.place.claimIsTrue = hostTellsPlace && !x11::seesTheScreen() && isOnAScreen(claimed);
    if (!x11::connection())
        return result;
    const auto pointer = x11::pointer();
    result.controlIsHeld = pointer.controlIsHeld;
    result.place.pointer = QPoint(pointer.x, pointer.y);
    result.place.bar = result.place.claimIsTrue ? edgeStripAt(claimed) : barAt(pointer);
    return result;
}

} // namespace velto
