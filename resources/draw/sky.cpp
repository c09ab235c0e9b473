#include "resources/draw/sky.h"

#include <array>

#include "resources/draw/noise.h"
#include "resources/draw/path.h"
#include "resources/draw/scene.h"

namespace {

// By height: 0 at the top of the picture, 1 at the horizon.
constexpr std::array<ColorStop, 9> skyColors = {{
    {0.00, rgb(0x0D1838)},
    {0.20, rgb(0x1B2352)},
    {0.38, rgb(0x363069)},
    {0.53, rgb(0x603F7C)},
    {0.66, rgb(0x96527F)},
    {0.78, rgb(0xCB6C78)},
    {0.88, rgb(0xEB936B)},
    {0.96, rgb(0xF9BE74)},
    {1.00, rgb(0xFCD088)},
}};

void drawGradient(Canvas& canvas) {
    for (int y = 0; y < canvas.height(); ++y) {
        for (int x = 0; x < canvas.width(); ++x) {
            // The warm band hangs lower away from the sun.
            const double aside = (x - sunMiddle.x) / sceneWidth;
            const double height = (y + 0.5) / horizonY - 0.09 * aside * aside;
            const Color sky = gradient(skyColors, height);
            canvas.cover(x, y, mix(sky, rgb(0x4A3A78), 0.28 * smoothStep(0.2, 1, aside)), 1);
        }
    }
}

void drawSunGlow(Canvas& canvas) {
    for (int y = 0; y < canvas.height(); ++y) {
        for (int x = 0; x < canvas.width(); ++x) {
            const double away = std::hypot((x + 0.5 - sunMiddle.x) * 0.72, y + 0.5 - sunMiddle.y);
            canvas.shine(x, y, rgb(0xFFB060), 0.26 * bell(away, 36) + 0.17 * bell(away, 84));
            canvas.shine(x, y, rgb(0xD8507A), 0.10 * bell(away, 150));
        }
    }
}

void drawSun(Canvas& canvas) {
    const Path disc = Path().circle(sunMiddle, sunRadius);
    // Brighter than white, so that its mirror image shines too.
    fill(canvas, disc,
         vertical(sunMiddle.y - sunRadius, rgb(0xFFF0C4) * 1.35, sunMiddle.y + sunRadius, rgb(0xFFD98C) * 1.25));
}

void drawStar(Canvas& canvas, Point star, double strength, double width) {
    const int reach = 4;
    const int middleX = static_cast<int>(star.x);
    const int middleY = static_cast<int>(star.y);
    for (int y = std::max(middleY - reach, 0); y <= std::min(middleY + reach, canvas.height() - 1); ++y) {
        for (int x = std::max(middleX - reach, 0); x <= std::min(middleX + reach, canvas.width() - 1); ++x) {
            const double away = distance(star, {x + 0.5, y + 0.5});
            canvas.shine(x, y, rgb(0xE8ECFF), strength * bell(away, width));
        }
    }
}

// Stars fade towards the bright part of the sky, and most are faint.
void drawStars(Canvas& canvas) {
    constexpr int starCount = 150;
    for (int i = 0; i < starCount; ++i) {
        const Point star = {chance(i, 1) * sceneWidth, chance(i, 2) * horizonY * 0.62};
        const double dusk = 1 - smoothStep(0.1, 0.6, star.y / horizonY);
        const double glow = chance(i, 3);
        drawStar(canvas, star, dusk * (0.16 + 0.75 * glow * glow * glow * glow), 0.5 + 0.28 * glow);
    }
}

// A young moon: a disc, less a second one that is shifted away from the sun's side.
void drawMoon(Canvas& canvas) {
    constexpr Point middle = {533, 57};
    constexpr double radius = 13;
    const Mask disc = Path().circle(middle, radius).mask(canvas.width(), canvas.height());
    const Mask dark = Path().circle(middle + Point{5.4, -4.2}, radius * 0.97).mask(canvas.width(), canvas.height());
    Mask crescent(canvas.width(), canvas.height());
    for (int y = 0; y < canvas.height(); ++y) {
        for (int x = 0; x < canvas.width(); ++x) {
            crescent.add(x, y, std::max(disc.at(x, y) - dark.at(x, y), 0.0));
        }
    }
    canvas.shine(disc, rgb(0x8088C0), 0.07);
    canvas.shine(crescent.blurred(7), rgb(0xFFE8C0), 0.9);
    canvas.cover(crescent, plain(rgb(0xFFF3D8)), 0.95);
}

// How thick the clouds are at a place: long streaks that get thinner towards the horizon, as far clouds look.
double cloudiness(Point p) {
    const double flatness = mix(0.026, 0.085, smoothStep(40, horizonY, p.y));
    const double bent = p.y + 7 * noise(p.x * 0.013, 3.7);
    const double streaks = layeredNoise(p.x * 0.0075 + 4.1, bent * flatness + 2.2, 5);
    const double band = smoothStep(70, 150, p.y) * (1 - smoothStep(236, 262, p.y));
    const double clearOfSun =
        smoothStep(sunRadius, 2.2 * sunRadius, std::hypot(p.x - sunMiddle.x, 1.6 * (p.y - sunMiddle.y)));
    return smoothStep(0.50, 0.74, streaks) * band * clearOfSun;
}

// Lit from below: the light comes through where there is less cloud between the place and the sun.
void drawClouds(Canvas& canvas) {
    constexpr Color shade = rgb(0x57386F);
    constexpr Color lit = rgb(0xFFA878);
    for (int y = 0; y < horizonY; ++y) {
        for (int x = 0; x < canvas.width(); ++x) {
            const Point p = {x + 0.5, y + 0.5};
            const double thickness = cloudiness(p);
            if (thickness <= 0) continue;
            const double below = cloudiness(p + (sunMiddle - p) * (7 / std::max(distance(p, sunMiddle), 7.0)));
            const double nearSun = bell(distance(p, sunMiddle), 210);
            const double light = std::clamp(0.25 + 1.9 * (thickness - below) + 0.5 * nearSun, 0.0, 1.0);
            canvas.cover(x, y, mix(shade, lit, light * (0.35 + 0.65 * nearSun)), 0.72 * thickness);
        }
    }
}

// A ridge from noise: its height above the horizon at `x`.
using Ridge = double (*)(double x);

double farRidge(double x) {
    const double right = smoothStep(215, 430, x) * (24 + 26 * layeredNoise(x * 0.011, 1.5, 4));
    const double left = (1 - smoothStep(20, 128, x)) * (13 + 14 * layeredNoise(x * 0.02, 8.5, 4));
    return right + left;
}

double middleRidge(double x) {
    return smoothStep(285, 520, x) * (14 + 30 * layeredNoise(x * 0.016 + 5, 4.5, 4));
}

double nearRidge(double x) {
    // Woods, so the edge is rough.
    const double woods = 3.2 * noise(x * 0.35, 6.5) + 2 * noise(x * 0.9, 2.5);
    const double right = smoothStep(338, 420, x) * (6 + 13 * layeredNoise(x * 0.02 + 2, 7.5, 3) + woods);
    const double left = (1 - smoothStep(0, 66, x)) * (10 + woods);
    return right + left;
}

void drawRidge(Canvas& canvas, Ridge ridge, Color top, Color foot) {
    Polygon outline = {{-1, horizonY}};
    for (int x = -1; x <= sceneWidth + 1; ++x) {
        outline.push_back({static_cast<double>(x), horizonY - ridge(x)});
    }
    outline.push_back({sceneWidth + 1, horizonY});
    fill(canvas, Path().add(outline), vertical(horizonY - 48, top, horizonY, foot));
}

}  // namespace

void drawSky(Canvas& canvas) {
    drawGradient(canvas);
    drawStars(canvas);
    drawMoon(canvas);
    drawSunGlow(canvas);
    drawSun(canvas);
    drawClouds(canvas);
}

void drawHills(Canvas& canvas) {
    drawRidge(canvas, farRidge, rgb(0x86507E), rgb(0xD2807C));
    drawRidge(canvas, middleRidge, rgb(0x5B3D70), rgb(0xA5637C));
    drawRidge(canvas, nearRidge, rgb(0x2F2A55), rgb(0x5C4069));
}
