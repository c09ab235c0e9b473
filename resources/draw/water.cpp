#include "resources/draw/water.h"

#include "resources/draw/noise.h"

namespace {

// Each pixel is looked at this often in each direction, at places of its own: ripples are finer than pixels.
constexpr int looksAcross = 2;
constexpr int looksDown = 4;

// How near the water at a height is: 0 at the horizon, 1 at the picture's foot.
double nearness(double y) {
    return (y - horizonY) / (sceneHeight - horizonY);
}

// A place on the water as seen from above: far ripples look closer together, above all from front to back.
Point onWater(Point p) {
    const double near = nearness(p.y);
    return {(p.x - sceneWidth * 0.5) / (9 + 62 * near), 26 * std::log(near + 0.045)};
}

// Slope of the water towards the viewer, about -1 to 1.
double slope(Point p) {
    const Point place = onWater(p);
    const double swell = noise(place.x * 0.45 + 3.1, place.y * 0.55) - 0.5;
    const double ripples = layeredNoise(place.x + 11.7, place.y * 1.25 + 5.3, 3) - 0.5;
    return 0.9 * swell + 1.5 * ripples;
}

// What the water shows at a place: the mirror image, looked up a little higher or lower as the slope has it.
Pixel mirrored(Point p, const Canvas& distance, std::span<const Foreground> foregrounds) {
    const double near = nearness(p.y);
    const double tilt = slope(p);
    const double sideways = slope({p.y * 3.1 + 40, p.y}) * (1.2 + 5 * near);
    const double shift = tilt * (7 + 27 * near);
    Pixel seen = distance.sample({p.x + sideways, std::min(2 * horizonY - p.y + shift, horizonY - 1)});
    for (const Foreground& foreground : foregrounds) {
        const double below = p.y - foreground.waterlineY;
        // In front of the waterline the ripples are as high as they are far from the thing mirrored.
        if (below <= 0) continue;
        const Point source = {
            p.x + sideways * std::min(1.0, 0.25 + below / 40),
            std::min(foreground.waterlineY - below + shift * std::min(1.0, below / 45), foreground.waterlineY - 0.5)};
        seen = over(foreground.picture.sample(source), seen);
    }
    return seen;
}

// Sparks where a slope throws the sun itself at the viewer: a path that widens towards him.
double glitter(Point p) {
    const double near = nearness(p.y);
    const double path = bell(p.x - sunMiddle.x, 9 + 26 * near) * (1 - 0.8 * near);
    return path * smoothStep(0.04, 0.34, slope({p.x * 1.6 + 900, p.y}));
}

Color waterColor(Point p, const Canvas& distance, std::span<const Foreground> foregrounds) {
    const double near = nearness(p.y);
    const Color mirror = mirrored(p, distance, foregrounds).light;
    // Steeply looked at, water mirrors less and shows its own colour.
    const double depth = std::clamp(0.10 + 0.38 * near - 0.16 * slope(p), 0.0, 0.7);
    const Color water = mix(mirror * 0.95, rgb(0x10203F), depth);
    return water + rgb(0xFFC070) * (0.8 * glitter(p));
}

Color pixelColor(int x, int y, const Canvas& distance, std::span<const Foreground> foregrounds) {
    Color sum;
    for (int down = 0; down < looksDown; ++down) {
        for (int across = 0; across < looksAcross; ++across) {
            const Point p = {x + (across + 0.5) / looksAcross, y + (down + 0.5) / looksDown};
            sum = sum + waterColor(p, distance, foregrounds);
        }
    }
    return sum * (1.0 / (looksAcross * looksDown));
}

}  // namespace

void drawWater(Canvas& scene, const Canvas& distance, std::span<const Foreground> foregrounds) {
    for (int y = static_cast<int>(horizonY); y < scene.height(); ++y) {
        for (int x = 0; x < scene.width(); ++x) {
            scene.cover(x, y, pixelColor(x, y, distance, foregrounds), 1);
        }
    }
}

void drawAbove(Canvas& scene, const Foreground& foreground) {
    for (int y = 0; y < foreground.waterlineY; ++y) {
        for (int x = 0; x < scene.width(); ++x) {
            scene.lay(x, y, foreground.picture.at(x, y));
        }
    }
}
