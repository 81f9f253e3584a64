// SPDX-License-Identifier: MIT
#pragma once

namespace velto {

// Geometry is in points (one point is one logical pixel), origin at the bottom left, y upwards.

struct Point {
    double x = 0;
    double y = 0;
    bool operator==(const Point&) const = default;
};

struct Size {
    double width = 0;
    double height = 0;
    bool operator==(const Size&) const = default;
};

struct Rect {
    double x = 0;
    double y = 0;
    double width = 0;
    double height = 0;

    [[nodiscard]] double minX() const { return x; }
    [[nodiscard]] double midX() const { return x + width / 2; }
    [[nodiscard]] double maxX() const { return x + width; }
    [[nodiscard]] double minY() const { return y; }
    [[nodiscard]] double midY() const { return y + height / 2; }
    [[nodiscard]] double maxY() const { return y + height; }
    /// Left and bottom edges belong to the rectangle, right and top edges do not.
    [[nodiscard]] bool contains(Point p) const
    {
        return p.x >= minX() && p.x < maxX() && p.y >= minY() && p.y < maxY();
    }
    bool operator==(const Rect&) const = default;
};

} // namespace velto
