#include "base/Rect.hpp"

#include <algorithm>
#include <cmath>

namespace quorvane {

double Rect::minX() const {
    return std::min(origin.x, origin.x + size.width);
}
double Rect::minY() const {
    return std::min(origin.y, origin.y + size.height);
}
double Rect::maxX() const {
    return std::max(origin.x, origin.x + size.width);
}
double Rect::maxY() const {
    return std::max(origin.y, origin.y + size.height);
}
double Rect::width() const {
    return std::abs(size.width);
}
double Rect::height() const {
    return std::abs(size.height);
}

Rect Rect::standardized() const {
    return {minX(), minY(), width(), height()};
}

Rect Rect::integral() const {
    if (isEmpty()) {
        return {std::floor(minX()), std::floor(minY()), 0, 0};
    }
    const double x0 = std::floor(minX());
    const double y0 = std::floor(minY());
    return {x0, y0, std::ceil(maxX()) - x0, std::ceil(maxY()) - y0};
}

bool Rect::contains(Point p) const {
    return !isEmpty() && p.x >= minX() && p.x < maxX() && p.y >= minY() && p.y < maxY();
}

bool Rect::intersects(const Rect& other) const {
    return !intersection(other).isEmpty();
}

Rect Rect::intersection(const Rect& other) const {
    const double x0 = std::max(minX(), other.minX());
    const double y0 = std::max(minY(), other.minY());
    const double x1 = std::min(maxX(), other.maxX());
    const double y1 = std::min(maxY(), other.maxY());
    if (isEmpty() || other.isEmpty() || x1 <= x0 || y1 <= y0) {
        return {};
    }
    return {x0, y0, x1 - x0, y1 - y0};
}

Rect Rect::offsetBy(double dx, double dy) const {
    return {origin.x + dx, origin.y + dy, size.width, size.height};
}

}  // namespace quorvane
