// SPDX-License-Identifier: MIT
#pragma once

#include <QPoint>
#include <QRect>

#include <optional>

namespace velto {

// What the X server says at this moment. Coordinates are pixels of the X screen, origin top left.

struct PointerState {
    QPoint position;
    bool control = false; ///< The control key is held.
    bool pressed = false; ///< Any of the three main buttons is held.
};

/// Absent on a display that is no X server.
[[nodiscard]] std::optional<PointerState> queryPointer();

/// The rectangle of the panel bar at `position`: of a dock window there, else of the strip that windows
/// leave free along an edge of the screen. Absent when there is none.
[[nodiscard]] std::optional<QRect> panelBarAt(QPoint position);

/// A rectangle in pixels, in the toolkit's coordinates; the screen is the one that holds its centre,
/// else the main one.
[[nodiscard]] QRectF toLogical(const QRect& pixels);

} // namespace velto
