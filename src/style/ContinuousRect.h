// SPDX-License-Identifier: MIT
#pragma once

#include <QPainterPath>
#include <QRectF>
#include <QRegion>

namespace velto {

/// A rectangle whose edges bend into its corners without a jump in curvature: the corners are
/// superellipses that meet the diagonal where a circular arc of `radius` would. Large radii are
/// limited by the shorter side.
[[nodiscard]] QPainterPath continuousRoundedRect(const QRectF& rect, double radius);

/// Whether all of `region` lies between the left and the right corners of that shape, a point from its edges: there are
/// no curves to compute there, which most frames of a motion spares.
[[nodiscard]] bool isBetweenCorners(const QRegion& region, const QRectF& rect, double radius);

} // namespace velto
