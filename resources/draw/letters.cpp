#include "resources/draw/letters.h"

#include <array>

#include "resources/draw/path.h"

namespace {

// Letters stand on a line at y = 0, small ones reach up to -100. Each is drawn from x = 0 and moves the pen on by
// `width`.
struct Letter {
    std::vector<Polygon> lines;
    double width;
};

constexpr double smallTop = -100;
constexpr double tall = -156;
constexpr double capital = -144;

Letter letterT() {
    return {{Line({-10, capital + 12}).curveTo({18, capital - 12}, {66, capital + 10}, {104, capital - 9}).points(),
             Line({52, capital}).to({52, 0}).points()},
            100};
}

Letter letterI() {
    return {{Line({0, smallTop}).to({0, 0}).points(), Line({-1.5, -135}).to({1.5, -138}).points()}, 0};
}

// The round part that d and g share.
Polygon bowl() {
    return Line({72, -74})
        .curveTo({65, -92}, {52, -101}, {38, -101})
        .curveTo({15, -101}, {0, -80}, {0, -50})
        .curveTo({0, -20}, {15, 1}, {37, 1})
        .curveTo({53, 1}, {66, -10}, {72, -28})
        .points();
}

Letter letterD() {
    return {{bowl(), Line({72, tall}).to({72, 0}).points()}, 72};
}

Letter letterE() {
    return {{Line({2, -50})
                 .to({72, -56})
                 .curveTo({71, -84}, {57, -101}, {38, -101})
                 .curveTo({15, -101}, {0, -80}, {0, -50})
                 .curveTo({0, -18}, {17, 1}, {41, 1})
                 .curveTo({54, 1}, {64, -4}, {72, -13})
                 .points()},
            70};
}

Letter letterW() {
    return {{Line({0, smallTop}).to({30, 0}).to({60, smallTop + 6}).to({90, 0}).to({120, smallTop}).points()}, 120};
}

Letter letterR() {
    return {{Line({0, smallTop}).to({0, 0}).points(), Line({0, -64}).curveTo({8, -88}, {24, -103}, {46, -98}).points()},
            42};
}

Letter letterG() {
    return {{bowl(), Line({72, smallTop})
                         .to({72, 14})
                         .curveTo({72, 42}, {56, 54}, {34, 54})
                         .curveTo({20, 54}, {10, 51}, {2, 45})
                         .points()},
            72};
}

Letter letterH() {
    return {{Line({0, tall}).to({0, 0}).points(), Line({0, -66})
                                                      .curveTo({8, -88}, {22, -101}, {39, -101})
                                                      .curveTo({59, -101}, {68, -88}, {68, -64})
                                                      .to({68, 0})
                                                      .points()},
            68};
}

Letter smallT() {
    return {{Line({20, -132})
                 .to({20, -24})
                 .curveTo({20, -6}, {28, 1}, {40, 1})
                 .curveTo({46, 1}, {51, -1}, {56, -4})
                 .points(),
             Line({-4, -97}).to({52, -97}).points()},
            52};
}

// White between two letters: less at round and open sides. One number per letter, for the space behind it.
struct Placed {
    Letter letter;
    double space;
};

std::vector<Placed> name() {
    return {{letterT(), 12}, {letterI(), 40}, {letterD(), 42}, {letterE(), 22}, {letterW(), 24},
            {letterR(), 25}, {letterI(), 38}, {letterG(), 44}, {letterH(), 30}, {smallT(), 0}};
}

// The strokes of the whole name: `scale` pixels per unit, starting at `origin` on the line.
Path written(Point origin, double scale) {
    constexpr Pen pen = {17, 8.5, 0.55};
    Path path;
    double x = 0;
    for (const Placed& placed : name()) {
        for (const Polygon& line : placed.letter.lines) {
            Polygon moved;
            for (const Point p : line) {
                moved.push_back(origin + Point{x + p.x, p.y} * scale);
            }
            path.stroke(moved, {pen.thick * scale, pen.thin * scale, pen.angle});
        }
        x += placed.letter.width + placed.space;
    }
    return path;
}

}  // namespace

void drawName(Canvas& canvas) {
    const Path name = written({114, 112}, 0.42);
    const Mask letters = name.mask(canvas.width(), canvas.height());
    canvas.cover(letters.blurred(4), plain(rgb(0x0B1030)), 0.55);
    canvas.shine(letters.blurred(9), rgb(0xFFB070), 0.28);
    canvas.cover(letters, vertical(44, rgb(0xFFFDF4), 132, rgb(0xFFDDB0)));
}
