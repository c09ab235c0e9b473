// Outlines, and what a pen leaves: closed polygons that are filled together. Curves are cut into short straight pieces.
#ifndef RESOURCES_DRAW_PATH_H
#define RESOURCES_DRAW_PATH_H

#include <span>
#include <vector>

#include "resources/draw/canvas.h"

using Polygon = std::vector<Point>;

// A line under construction: starts somewhere and goes on by straight pieces and curves.
class Line {
 public:
    explicit Line(Point start) : points_{start} {}

    Line& to(Point end);
    // A cubic curve with two control points.
    Line& curveTo(Point control, Point otherControl, Point end);

    const Polygon& points() const { return points_; }

 private:
    Polygon points_;
};

// A pen's tip: an ellipse, `thick` and `thin` being its whole axes in pixels, the long one turned by `angle` radians
// against the x axis (anticlockwise as seen). A round tip has equal axes.
struct Pen {
    double thick = 1;
    double thin = 1;
    double angle = 0;
};

// Polygons filled as one shape: a point is inside if they wind around it in the sum. All that a path adds by itself
// winds the same way, so overlaps unite.
class Path {
 public:
    // `polygon` as it stands: one that winds the other way cuts a hole.
    Path& add(Polygon polygon);
    Path& add(const Path& other);
    Path& rectangle(double left, double top, double right, double bottom);
    Path& ellipse(Point middle, double radiusX, double radiusY);
    Path& circle(Point middle, double radius) { return ellipse(middle, radius, radius); }
    // What the pen covers when it is drawn along `line`.
    Path& stroke(const Polygon& line, Pen pen);
    Path& stroke(const Polygon& line, double width) { return stroke(line, Pen{width, width, 0}); }
    // A line that narrows from one width to another.
    Path& taper(Point from, double fromWidth, Point to, double toWidth);

    // Smooth at the edges: each pixel's share is measured along eight lines.
    Mask mask(int width, int height) const;

 private:
    std::vector<Polygon> polygons_;
};

// Fills `path` on `canvas`.
void fill(Canvas& canvas, const Path& path, const Paint& paint, double strength = 1);
void fill(Canvas& canvas, const Path& path, Color color, double strength = 1);

#endif
