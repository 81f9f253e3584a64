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
    const auto click = place.claimIsTrue ? place.claimed : place.pointer;
    if (!click)
        return std::nullopt;
    const QRect around(click->x() - itemSide / 2, click->y() - itemSide / 2, itemSide, itemSide);
    if (place.bar && place.bar->contains(*click)) {
        const auto& bar = *place.bar;
        const bool horizontal = bar.width() >= bar.height();
        const QRect piece = horizontal ? QRect(around.x(), bar.y(), around.width(), bar.height())
                                       : QRect(bar.x(), around.y(), bar.width(), around.height());
        return piece & bar;
    }
    const QRect near(click->x() - agreement, click->y() - agreement, 2 * agreement, 2 * agreement);
    if (near.contains(place.claimed))
        return around;
    return std::nullopt;
}

} // namespace velto
