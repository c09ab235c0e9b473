// Points of the drawing plane, in pixels: x to the right, y downwards, pixel (0, 0) covering the square from 0 to 1.
#ifndef RESOURCES_DRAW_GEOMETRY_H
#define RESOURCES_DRAW_GEOMETRY_H

#include <algorithm>
#include <cmath>

struct Point {
    double x = 0;
    double y = 0;
};

constexpr Point operator+(Point a, Point b) {
    return {a.x + b.x, a.y + b.y};
}

constexpr Point operator-(Point a, Point b) {
    return {a.x - b.x, a.y - b.y};
}

constexpr Point operator*(Point a, double factor) {
    return {a.x * factor, a.y * factor};
}

inline double distance(Point a, Point b) {
    return std::hypot(a.x - b.x, a.y - b.y);
}

constexpr double mix(double a, double b, double share) {
    return a + (b - a) * share;
}

constexpr Point mix(Point a, Point b, double share) {
    return a + (b - a) * share;
}

// 0 up to `from`, 1 beyond `to`, with level ends in between. `from` may lie above `to`.
constexpr double smoothStep(double from, double to, double value) {
    const double t = std::clamp((value - from) / (to - from), 0.0, 1.0);
    return t * t * (3 - 2 * t);
}

// The bell curve that halos and glitter fall off with: 1 at 0, 0.61 at `width`.
inline double bell(double distanceFromMiddle, double width) {
    return std::exp(-0.5 * distanceFromMiddle * distanceFromMiddle / (width * width));
}

#endif
