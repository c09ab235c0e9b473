#include "resources/draw/shore.h"

#include "resources/draw/noise.h"
#include "resources/draw/path.h"
#include "resources/draw/scene.h"

namespace {

constexpr Color treeDark = rgb(0x15173A);
constexpr Color treeLight = rgb(0x3B2F58);
constexpr double bankFootY = 304;

// The ground's height at `x`, from the tip of the shore on the left to the picture's edge.
double groundY(double x) {
    return 302 - 19 * smoothStep(330, 432, x) - 5 * smoothStep(520, sceneWidth, x) + 1.1 * noise(x * 0.14, 5.5);
}

// A fir: boughs in steps, each wider than the one above, ragged at the edge.
void drawFir(Canvas& canvas, double x, double topY, double halfWidth, int seed) {
    const double foot = 292;
    const int steps = static_cast<int>((foot - topY) / 6);
    Polygon left;
    Polygon right;
    for (int i = 0; i < steps; ++i) {
        const double down = (i + 1.0) / steps;
        const double y = topY + (foot - topY) * down;
        const double reach = halfWidth * std::pow(down, 0.85);
        left.push_back({x - reach * (0.8 + 0.4 * chance(seed, i)), y});
        left.push_back({x - reach * 0.55, y - 1.5});
        right.push_back({x + reach * (0.8 + 0.4 * chance(seed, i + 100)), y});
        right.push_back({x + reach * 0.55, y - 1.5});
    }
    Polygon outline = {{x, topY}};
    outline.insert(outline.end(), right.begin(), right.end());
    outline.insert(outline.end(), left.rbegin(), left.rend());
    fill(canvas, Path().add(outline),
         [=](Point p) { return mix(treeLight, treeDark, std::clamp((p.x - x + halfWidth) / halfWidth, 0.0, 1.0)); });
}

// A bush or a crown of leaves: many small discs within an ellipse, the left ones touched by the sun.
void drawLeaves(Canvas& canvas, Point middle, double radiusX, double radiusY, int seed) {
    Path shade;
    Path lit;
    for (int i = 0; i < 90; ++i) {
        const double turn = 6.2832 * chance(seed, i);
        const double out = std::sqrt(chance(seed, i + 200));
        const Point leaf = middle + Point{std::cos(turn) * out * radiusX, std::sin(turn) * out * radiusY};
        const double size = 1.6 + 1.8 * chance(seed, i + 400);
        shade.circle(leaf, size);
        const bool inTheSun = std::cos(turn) * out < -0.25 && chance(seed, i + 600) < 0.6;
        if (inTheSun) lit.circle(leaf + Point{-0.8, -0.8}, size * 0.45);
    }
    fill(canvas, shade.ellipse(middle, radiusX * 0.85, radiusY * 0.85), treeDark);
    fill(canvas, lit, rgb(0x8A5A62), 0.55);
}

void drawGrass(Canvas& canvas) {
    Path dark;
    Path lit;
    for (int i = 0; i < 420; ++i) {
        const double x = 334 + 264 * chance(i, 11);
        const Point root = {x, groundY(x) + 1.5 + 5 * chance(i, 12)};
        const Point tip = root + Point{5 * (chance(i, 13) - 0.4), -2.5 - 4.5 * chance(i, 14)};
        (chance(i, 15) < 0.22 ? lit : dark).taper(root, 1.3, tip, 0.2);
    }
    fill(canvas, dark, rgb(0x23244A));
    fill(canvas, lit, rgb(0xA06E66), 0.6);
}

void drawStones(Canvas& canvas) {
    for (int i = 0; i < 46; ++i) {
        const double x = 334 + 6 * i + 5 * chance(i, 21);
        const double size = 2.5 + 4 * chance(i, 22);
        const Point middle = {x, 301.5 - 0.3 * size};
        fill(canvas, Path().ellipse(middle, size * 1.25, size * 0.75), rgb(0x1B1A38));
        fill(canvas, Path().ellipse(middle + Point{-0.25 * size, -0.22 * size}, size * 0.8, size * 0.4), rgb(0x6A5068),
             0.55);
    }
}

// The light that falls from the door and the windows on the ground.
void drawLightOnGround(Canvas& canvas) {
    for (int y = 278; y < static_cast<int>(bankFootY); ++y) {
        for (int x = 380; x < sceneWidth; ++x) {
            if (y < groundY(x)) continue;
            const double fall = bell(x - 459, 26) + 0.55 * bell(x - 520, 24);
            canvas.shine(x, y, rgb(0xFFA040), 0.34 * fall * bell(y - 284, 8));
        }
    }
}

// The path from the door to the jetty.
void drawFootpath(Canvas& canvas) {
    const Polygon course = Line({459, 286}).curveTo({452, 294}, {420, 290}, {366, 297}).points();
    Path path;
    for (std::size_t i = 0; i + 1 < course.size(); ++i) {
        path.stroke({course[i], course[i + 1]}, Pen{7 - 0.12 * static_cast<double>(i), 2.2, 0});
    }
    fill(canvas, path, rgb(0x7E5C6C), 0.7);
}

void drawLantern(Canvas& canvas, Point foot) {
    fill(canvas, Path().rectangle(foot.x - 1, foot.y - 34, foot.x + 1, foot.y), rgb(0x1A1530));
    const Point flame = foot + Point{0, -38};
    fill(canvas, Path().add({flame + Point{-3.2, -4}, flame + Point{0, -7.5}, flame + Point{3.2, -4}}), rgb(0x1A1530));
    fill(canvas, Path().rectangle(flame.x - 2.6, flame.y - 4, flame.x + 2.6, flame.y + 4), rgb(0x1A1530));
    fill(canvas, Path().rectangle(flame.x - 1.7, flame.y - 3.2, flame.x + 1.7, flame.y + 3.2), rgb(0xFFF0B8));
    for (int y = 0; y < canvas.height(); ++y) {
        for (int x = 0; x < canvas.width(); ++x) {
            const double away = distance(flame, {x + 0.5, y + 0.5});
            canvas.shine(x, y, rgb(0xFFB050), 0.5 * bell(away, 6) + 0.14 * bell(away, 20));
        }
    }
}

// A clump of reeds that fans out from one foot, with a few cattails among it.
void drawClump(Path& blades, Path& tails, double x, double height, int seed) {
    for (int i = 0; i < 26; ++i) {
        const Point root = {x + 46 * (chance(seed, i) - 0.5), sceneHeight + 4.0};
        const double tall = height * (0.45 + 0.55 * chance(seed, i + 50));
        const double lean = 46 * (chance(seed, i + 100) - 0.42) * tall / height;
        const Point tip = root + Point{lean, -tall};
        const Point bend = root + Point{lean * 0.2, -tall * 0.6};
        const Polygon course = Line(root).curveTo(mix(root, bend, 0.6), bend, tip).points();
        for (std::size_t k = 0; k + 1 < course.size(); ++k) {
            const double thin = 2.4 * (1 - static_cast<double>(k) / static_cast<double>(course.size()));
            blades.taper(course[k], thin + 0.35, course[k + 1], thin + 0.25);
        }
        if (i % 7 == 3) tails.stroke({tip + Point{0, -1}, tip + Point{lean * 0.04, -14}}, 3.4);
    }
}

}  // namespace

void drawTrees(Canvas& canvas) {
    drawFir(canvas, 576, 168, 19, 31);
    drawFir(canvas, 597, 190, 18, 32);
    drawFir(canvas, 557, 208, 13, 33);
    drawLeaves(canvas, {410, 268}, 14, 15, 34);
    drawLeaves(canvas, {396, 277}, 10, 9, 35);
}

void drawBank(Canvas& canvas) {
    Polygon outline = {{330, bankFootY}};
    for (int x = 330; x <= sceneWidth + 1; ++x) {
        outline.push_back({static_cast<double>(x), groundY(x)});
    }
    outline.push_back({sceneWidth + 1, bankFootY});
    fill(canvas, Path().add(outline), vertical(278, rgb(0x3A3158), bankFootY, rgb(0x191938)));
    drawFootpath(canvas);
    drawLeaves(canvas, {497, 281}, 8, 5, 36);
    drawLeaves(canvas, {545, 280}, 11, 7, 37);
    drawLeaves(canvas, {428, 282}, 7, 5, 38);
    drawGrass(canvas);
    drawLightOnGround(canvas);
    drawStones(canvas);
}

void drawJetty(Canvas& canvas) {
    constexpr double deckY = 292;
    constexpr double headX = 262;
    constexpr double rootX = 378;
    Path posts;
    constexpr int postCount = 5;
    for (int i = 0; i < postCount; ++i) {
        const double x = headX + 4 + 21 * i;
        posts.rectangle(x - 1.6, deckY - 5, x + 1.6, bankFootY);
    }
    fill(canvas, posts, rgb(0x1F1934));
    fill(canvas, Path().rectangle(headX, deckY, rootX, deckY + 4), rgb(0x2A2140));
    fill(canvas, Path().rectangle(headX, deckY - 0.4, rootX, deckY + 1.2), rgb(0xC98C78), 0.75);
    drawLantern(canvas, {headX + 4, deckY});
}

void drawReeds(Canvas& canvas) {
    Path blades;
    Path tails;
    drawClump(blades, tails, 26, 96, 41);
    drawClump(blades, tails, 66, 58, 42);
    drawClump(blades, tails, 580, 62, 43);
    fill(canvas, blades, rgb(0x0C1027));
    fill(canvas, tails, rgb(0x1E1426));
}
