// SPDX-License-Identifier: MIT
#pragma once

#include <QPoint>
#include <QRect>

#include <optional>

namespace velto {

/// Where a click on the status item was, as far as it can be told. Pixels, origin top left.
struct ClickPlace {
    std::optional<QPoint> pointer; ///< Absent when the pointer can't be asked.
    std::optional<QRect> bar;      ///< The panel bar that the pointer stands in.
    QPoint claimed;                ///< What the host says; may be nonsense.
    bool claimIsTrue = false;      ///< It is the place of the click; `bar` is the one there.
};

/// The status item's rectangle after a click: the piece of the bar around the pointer; outside of any
/// bar a small square around the pointer if the host agrees that it is there. Absent when the click
/// says nothing about the place.
[[nodiscard]] std::optional<QRect> statusAnchor(const ClickPlace& place);

} // namespace velto
