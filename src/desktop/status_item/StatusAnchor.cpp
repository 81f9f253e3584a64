// SPDX-License-Identifier: MIT
#include "desktop/status_item/StatusAnchor.h"

namespace velto {

namespace {

constexpr int itemSide = 24;
/// An item's corner or middle is no further away from a pointer on it.
constexpr int agreement = 64;

} // namespace

std::optional<QRect> statusAnchor(const ClickPlace& place)
{
    if (!place.pointer)
        return std::nullopt;
    const QRect around(place.pointer->x() - itemSide / 2, place.pointer->y() - itemSide / 2, itemSide, itemSide);
    if (place.bar && place.bar->contains(*place.pointer)) {
        const auto& bar = *place.bar;
        const bool horizontal = bar.width() >= bar.height();
        const QRect piece = horizontal ? QRect(around.x(), bar.y(), around.width(), bar.height())
                                       : QRect(bar.x(), around.y(), bar.width(), around.height());
        return piece & bar;
    }
    const QRect near(place.pointer->x() - agreement, place.pointer->y() - agreement, 2 * agreement, 2 * agreement);
    if (near.contains(place.claimed))
        return around;
    return std::nullopt;
}

} // namespace velto
