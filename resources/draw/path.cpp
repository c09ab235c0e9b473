#include "resources/draw/path.h"

#include <numbers>

namespace {

constexpr int curvePieces = 24;
constexpr int roundCorners = 32;
constexpr int linesPerPixel = 8;

// Where a horizontal line meets an edge, and whether the edge runs down (1) or up (-1) there.
struct Crossing {
    double x;
    int direction;
};

std::vector<Crossing> crossings(std::span<const Polygon> polygons, double y) {
    std::vector<Crossing> found;
    for (const Polygon& polygon : polygons) {
        for (std::size_t i = 0; i < polygon.size(); ++i) {
            const Point a = polygon[i];
            const Point b = polygon[(i + 1) % polygon.size()];
            if ((a.y <= y) == (b.y <= y)) continue;
            found.push_back({a.x + (b.x - a.x) * (y - a.y) / (b.y - a.y), a.y < b.y ? 1 : -1});
        }
    }
    std::sort(found.begin(), found.end(), [](const Crossing& a, const Crossing& b) { return a.x < b.x; });
    return found;
}

void addSpan(Mask& mask, int row, double from, double to) {
    from = std::max(from, 0.0);
    to = std::min(to, static_cast<double>(mask.width()));
    for (int x = static_cast<int>(from); x < to; ++x) {
        const double share = std::min(to, x + 1.0) - std::max(from, static_cast<double>(x));
        mask.add(x, row, share / linesPerPixel);
    }
}

void addLine(Mask& mask, int row, std::span<const Crossing> line) {
    int winding = 0;
    for (std::size_t i = 0; i + 1 < line.size(); ++i) {
        winding += line[i].direction;
        if (winding != 0) addSpan(mask, row, line[i].x, line[i + 1].x);
    }
}

// The hull of the pen's tip at both ends of a straight piece. In the plane where the tip is a circle of radius 1 the
// hull is two half circles.
Polygon sweep(Point from, Point to, Pen pen) {
    const double cosine = std::cos(pen.angle);
    const double sine = -std::sin(pen.angle);
    const Point along = to - from;
    const Point circular = {(along.x * cosine + along.y * sine) * 2 / pen.thick,
                            (along.y * cosine - along.x * sine) * 2 / pen.thin};
    const double heading = std::atan2(circular.y, circular.x);
    Polygon hull;
    for (const Point end : {to, from}) {
        const double start = heading + std::numbers::pi * (hull.empty() ? -0.5 : 0.5);
        for (int i = 0; i <= roundCorners / 2; ++i) {
            const double turn = start + 2 * std::numbers::pi * i / roundCorners;
            const Point onTip = {std::cos(turn) * pen.thick / 2, std::sin(turn) * pen.thin / 2};
            hull.push_back(end + Point{onTip.x * cosine - onTip.y * sine, onTip.x * sine + onTip.y * cosine});
        }
    }
    return hull;
}

}  // namespace

Line& Line::to(Point end) {
    points_.push_back(end);
    return *this;
}

Line& Line::curveTo(Point control, Point otherControl, Point end) {
    const Point start = points_.back();
    for (int i = 1; i <= curvePieces; ++i) {
        const double t = static_cast<double>(i) / curvePieces;
        const Point a = mix(mix(start, control, t), mix(control, otherControl, t), t);
        const Point b = mix(mix(control, otherControl, t), mix(otherControl, end, t), t);
        points_.push_back(mix(a, b, t));
    }
    return *this;
}

Path& Path::add(Polygon polygon) {
    polygons_.push_back(std::move(polygon));
    return *this;
}

Path& Path::add(const Path& other) {
    polygons_.insert(polygons_.end(), other.polygons_.begin(), other.polygons_.end());
    return *this;
}

Path& Path::rectangle(double left, double top, double right, double bottom) {
    return add({{left, top}, {right, top}, {right, bottom}, {left, bottom}});
}

Path& Path::ellipse(Point middle, double radiusX, double radiusY) {
    Polygon outline;
    for (int i = 0; i < roundCorners; ++i) {
        const double turn = 2 * std::numbers::pi * i / roundCorners;
        outline.push_back({middle.x + std::cos(turn) * radiusX, middle.y + std::sin(turn) * radiusY});
    }
    return add(std::move(outline));
}

Path& Path::stroke(const Polygon& line, Pen pen) {
    for (std::size_t i = 0; i + 1 < line.size(); ++i) {
        add(sweep(line[i], line[i + 1], pen));
    }
    return *this;
}

Path& Path::taper(Point from, double fromWidth, Point to, double toWidth) {
    const double length = std::max(distance(from, to), 1e-6);
    const Point across = {(from.y - to.y) / length / 2, (to.x - from.x) / length / 2};
    return add({from - across * fromWidth, to - across * toWidth, to + across * toWidth, from + across * fromWidth});
}

Mask Path::mask(int width, int height) const {
    Mask result(width, height);
    double top = height;
    double bottom = 0;
    for (const Polygon& polygon : polygons_) {
        for (const Point point : polygon) {
            top = std::min(top, point.y);
            bottom = std::max(bottom, point.y);
        }
    }
    const int firstRow = static_cast<int>(std::max(top, 0.0));
    const int endRow = static_cast<int>(std::ceil(std::min(bottom, static_cast<double>(height))));
    for (int i = firstRow * linesPerPixel; i < endRow * linesPerPixel; ++i) {
        addLine(result, i / linesPerPixel, crossings(polygons_, (i + 0.5) / linesPerPixel));
    }
    return result;
}

void fill(Canvas& canvas, const Path& path, const Paint& paint, double strength) {
    canvas.cover(path.mask(canvas.width(), canvas.height()), paint, strength);
}

void fill(Canvas& canvas, const Path& path, Color color, double strength) {
    fill(canvas, path, plain(color), strength);
}
