// SPDX-License-Identifier: MIT
#pragma once

#include <QPainterPath>
#include <QRectF>

namespace velto {

/// How far a corner reaches along the edges, in radii.
inline constexpr double cornerReach = 1.528665;

/// A rectangle whose edges bend into its corners without a jump in curvature: the corners are
/// superellipses that meet the diagonal where a circular arc of `radius` would. Large radii are
/// limited by the shorter side.
[[nodiscard]] QPainterPath continuousRoundedRect(const QRectF& rect, double radius);

} // namespace velto
