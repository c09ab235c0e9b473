#include "resources/draw/house.h"

#include <array>

#include "resources/draw/path.h"

namespace {

// Heights and edges in pixels of the picture.
constexpr double footY = 290;
constexpr double gableLeft = 428;
constexpr double gableRight = 490;
constexpr double gableMiddle = (gableLeft + gableRight) / 2;
constexpr double ridgeY = 178;
constexpr double eavesY = 232;
constexpr double wingRight = 549;
constexpr double wingRidgeY = 201;
constexpr double wingEavesY = 239;

constexpr Color wallLit = rgb(0x6B4F70);
constexpr Color wallDark = rgb(0x33294F);
constexpr Color roofLight = rgb(0x3A2D5A);
constexpr Color roofDark = rgb(0x1B1A40);
constexpr Color trim = rgb(0xB98A8C);
constexpr Color sunset = rgb(0xFFB27C);
constexpr Color frame = rgb(0x2A1B2E);

// Light of the evening comes from the left, so walls darken to the right and towards the ground.
Color wallColor(Point p) {
    const double aside = std::clamp((p.x - gableLeft) / (wingRight - gableLeft), 0.0, 1.0);
    const double down = std::clamp((p.y - ridgeY) / (footY - ridgeY), 0.0, 1.0);
    const Color flat = mix(wallLit, wallDark, 0.62 * aside + 0.38 * down);
    // Boards: each throws a thin shadow on the one below.
    const double board = p.y / 3.5 - std::floor(p.y / 3.5);
    return flat * (board < 0.3 ? 0.88 : 1.0);
}

// Rows of shingles on the wing's roof.
Color shingleColor(Point p) {
    const double row = p.y / 4 - std::floor(p.y / 4);
    const Color flat = mix(roofLight, roofDark, std::clamp((p.x - 478) / 74, 0.0, 1.0));
    return flat * (row < 0.25 ? 0.82 : 1.0);
}

void drawSmoke(Canvas& canvas) {
    const Polygon course = Line({523, 184})
                               .curveTo({520, 170}, {534, 166}, {532, 151})
                               .curveTo({530, 137}, {547, 136}, {543, 117})
                               .points();
    Path plume;
    for (std::size_t i = 0; i < course.size(); ++i) {
        plume.circle(course[i], 1.6 + 0.11 * static_cast<double>(i));
    }
    const Mask soft = plume.mask(canvas.width(), canvas.height()).blurred(3);
    // It thins out as it rises.
    for (int y = 0; y < canvas.height(); ++y) {
        for (int x = 0; x < canvas.width(); ++x) {
            canvas.cover(x, y, rgb(0xC094A8), 0.5 * smoothStep(108, 184, y) * soft.at(x, y));
        }
    }
}

void drawChimney(Canvas& canvas) {
    fill(canvas, Path().rectangle(516, 188, 530, 222), rgb(0x3E2C4B));
    fill(canvas, Path().rectangle(516, 188, 519, 222), rgb(0x8A5C66));
    fill(canvas, Path().rectangle(514, 185, 532, 189.5), rgb(0x55394F));
    fill(canvas, Path().rectangle(514, 185, 518, 189.5), rgb(0xB77A70));
}

void drawWing(Canvas& canvas) {
    fill(canvas, Path().rectangle(gableRight - 4, wingEavesY - 3, wingRight, footY), Paint(wallColor));
    const Path roof = Path().add({{470, wingRidgeY}, {541, wingRidgeY}, {556, wingEavesY + 2}, {478, wingEavesY + 2}});
    fill(canvas, roof, Paint(shingleColor));
    fill(canvas, Path().rectangle(470, wingRidgeY - 0.8, 541, wingRidgeY + 1), trim, 0.55);
    // Shadow under the eaves.
    fill(canvas, Path().rectangle(gableRight, wingEavesY + 2, wingRight, wingEavesY + 7), roofDark, 0.6);
}

void drawGable(Canvas& canvas) {
    const Path wall = Path().add({{gableMiddle, ridgeY + 3},
                                  {gableRight, eavesY},
                                  {gableRight, footY},
                                  {gableLeft, footY},
                                  {gableLeft, eavesY}});
    fill(canvas, wall, Paint(wallColor));
    // The roof is seen from its edge: two boards that meet at the ridge and stand out beyond the walls.
    const Point ridge = {gableMiddle, ridgeY};
    const Point leftEnd = {gableLeft - 8, eavesY + 9};
    const Point rightEnd = {gableRight + 8, eavesY + 9};
    fill(canvas, Path().taper(ridge + Point{1, 8}, 5, rightEnd + Point{-4, 4}, 5), rgb(0x1D1838), 0.5);
    fill(canvas, Path().taper(ridge + Point{-1, 8}, 5, leftEnd + Point{4, 4}, 5), rgb(0x1D1838), 0.4);
    fill(canvas, Path().stroke({leftEnd, ridge, rightEnd}, 6), rgb(0x2B2146));
    fill(canvas, Path().stroke({leftEnd + Point{-1.2, -1.6}, ridge + Point{-0.4, -2.4}}, 2), sunset, 0.95);
    fill(canvas, Path().stroke({ridge + Point{0.6, -2.2}, rightEnd + Point{1.2, -1.8}}, 1.3), rgb(0x9A7196), 0.8);
    fill(canvas, Path().rectangle(gableLeft, eavesY + 3, gableLeft + 2, footY), sunset, 0.6);
}

Paint lamplight(double topY, double bottomY) {
    return vertical(topY, rgb(0xFFC56A), bottomY, rgb(0xFFEFB4));
}

// A window of panes in two rows, with a frame and a sill.
void drawWindow(Canvas& canvas, double left, double top, double width, double height, int columns) {
    const double right = left + width;
    const double bottom = top + height;
    fill(canvas, Path().rectangle(left - 2, top - 2, right + 2, bottom + 2), trim, 0.5);
    fill(canvas, Path().rectangle(left - 0.8, top - 0.8, right + 0.8, bottom + 0.8), frame);
    fill(canvas, Path().rectangle(left, top, right, bottom), lamplight(top, bottom));
    Path bars;
    bars.rectangle(left, top + height * 0.45 - 0.5, right, top + height * 0.45 + 0.5);
    for (int i = 1; i < columns; ++i) {
        const double x = left + width * i / columns;
        bars.rectangle(x - 0.5, top, x + 0.5, bottom);
    }
    fill(canvas, bars, frame, 0.85);
    fill(canvas, Path().rectangle(left - 3, bottom + 2, right + 3, bottom + 4), trim, 0.7);
}

void drawRoundWindow(Canvas& canvas, Point middle, double radius) {
    fill(canvas, Path().circle(middle, radius + 2), trim, 0.55);
    fill(canvas, Path().circle(middle, radius + 0.9), frame);
    fill(canvas, Path().circle(middle, radius), lamplight(middle.y - radius, middle.y + radius));
    const Path cross = Path()
                           .rectangle(middle.x - 0.5, middle.y - radius, middle.x + 0.5, middle.y + radius)
                           .rectangle(middle.x - radius, middle.y - 0.5, middle.x + radius, middle.y + 0.5);
    fill(canvas, cross, frame, 0.85);
}

void drawDoor(Canvas& canvas) {
    constexpr double left = 453;
    constexpr double right = 466;
    constexpr double top = 250;
    fill(canvas, Path().rectangle(left - 2.5, top - 2.5, right + 2.5, footY), trim, 0.5);
    fill(canvas, Path().rectangle(left, top, right, footY), vertical(top, rgb(0x4A2A3A), footY, rgb(0x2A1A30)));
    fill(canvas, Path().rectangle(left + 2.5, top + 3, right - 2.5, top + 13), lamplight(top, top + 14));
    fill(canvas, Path().rectangle(left + 6, top + 3, left + 7, top + 13), frame, 0.8);
    // A little roof over it.
    fill(canvas, Path().add({{459.5, 240}, {472, 248}, {447, 248}}), rgb(0x2B2146));
    fill(canvas, Path().stroke({{447, 248}, {459.5, 240}}, 1.3), sunset, 0.8);
}

// The lit windows' halo, on the house and on the air before it.
void shineFromWindows(Canvas& canvas) {
    struct Lamp {
        Point place;
        double strength = 0;
        double width = 0;
    };
    constexpr std::array<Lamp, 6> lamps = {{
        {{441, 257}, 0.24, 15},
        {{479, 257}, 0.24, 15},
        {{459, 214}, 0.22, 12},
        {{507, 257}, 0.22, 14},
        {{533, 257}, 0.22, 14},
        {{480, 256}, 0.16, 52},
    }};
    for (int y = 0; y < canvas.height(); ++y) {
        for (int x = 0; x < canvas.width(); ++x) {
            double light = 0;
            for (const Lamp& lamp : lamps) {
                light += lamp.strength * bell(distance(lamp.place, {x + 0.5, y + 0.5}), lamp.width);
            }
            if (light > 0.002) canvas.shine(x, y, rgb(0xFF9A3C), light);
        }
    }
}

}  // namespace

void drawHouse(Canvas& canvas) {
    drawSmoke(canvas);
    drawChimney(canvas);
    drawWing(canvas);
    drawGable(canvas);
    drawRoundWindow(canvas, {gableMiddle, 214}, 6);
    drawWindow(canvas, 435, 250, 11, 17, 2);
    drawWindow(canvas, 473, 250, 11, 17, 2);
    drawWindow(canvas, 500, 251, 13, 14, 3);
    drawWindow(canvas, 526, 251, 13, 14, 3);
    drawDoor(canvas);
    shineFromWindows(canvas);
}
