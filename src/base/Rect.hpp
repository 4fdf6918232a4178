#pragma once

#include "base/Point.hpp"
#include "base/Size.hpp"

namespace quorvane {

// A rectangle with the platform's conventions: a negative size is allowed and means the
// rectangle extends the other way; the min/max accessors and `standardized` account for it.
struct Rect {
    Point origin;
    Size size;

    constexpr Rect() = default;
    constexpr Rect(Point o, Size s) : origin(o), size(s) {}
    constexpr Rect(double x, double y, double width, double height)
        : origin{x, y}, size{width, height} {}

    double minX() const;
    double minY() const;
    double maxX() const;
    double maxY() const;
    double midX() const { return (minX() + maxX()) / 2; }
    double midY() const { return (minY() + maxY()) / 2; }
    double width() const;
    double height() const;
    bool isEmpty() const { return size.width == 0 || size.height == 0; }

    Rect standardized() const;
    // The smallest rectangle with integral origin and size that contains this one: the origin
    // is rounded down and the far edges up, as the platform's integral rounding does. An empty
    // rectangle stays empty (a zero rectangle at its rounded-down origin).
    Rect integral() const;
    bool contains(Point p) const;
    bool intersects(const Rect& other) const;
    Rect intersection(const Rect& other) const;
    Rect offsetBy(double dx, double dy) const;

    friend bool operator==(const Rect&, const Rect&) = default;
};

}  // namespace quorvane
