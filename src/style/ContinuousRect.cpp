// SPDX-License-Identifier: MIT
#include "style/ContinuousRect.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace velto {

namespace {

/// How far a corner reaches along the edges, in radii.
constexpr double cornerReach = 1.528665;

} // namespace

QPainterPath continuousRoundedRect(const QRectF& rect, double radius)
{
    // The exponent follows from the shared diagonal point.
    const double diagonal = (1 - std::numbers::sqrt2 / 2) / cornerReach;
    const double exponent = -1 / std::log2(1 - diagonal);
    const double reach = std::min({radius * cornerReach, rect.width() / 2, rect.height() / 2});

    QPainterPath path;
    if (reach <= 0) {
        path.addRect(rect);
        return path;
    }

    constexpr int steps = 24;
    const auto corner = [&](QPointF center, double signX, double signY, bool startsOnVerticalEdge) {
        for (int i = 0; i <= steps; ++i) {
            const double angle = std::numbers::pi / 2 * (startsOnVerticalEdge ? i : steps - i) / steps;
            const QPointF point = center
                + QPointF(signX * reach * std::pow(std::cos(angle), 2 / exponent),
                    signY * reach * std::pow(std::sin(angle), 2 / exponent));
            if (path.elementCount() == 0)
                path.moveTo(point);
            else
                path.lineTo(point);
        }
    };
    corner({rect.left() + reach, rect.top() + reach}, -1, -1, true);
    corner({rect.right() - reach, rect.top() + reach}, 1, -1, false);
    corner({rect.right() - reach, rect.bottom() - reach}, 1, 1, true);
    corner({rect.left() + reach, rect.bottom() - reach}, -1, 1, false);
    path.closeSubpath();
    return path;
}

bool isBetweenCorners(const QRegion& region, const QRectF& rect, double radius)
{
    const auto between = rect.adjusted(radius * cornerReach, 1, -radius * cornerReach, -1);
    return std::ranges::all_of(region, [&](const QRectF& part) { return between.contains(part); });
}

} // namespace velto
