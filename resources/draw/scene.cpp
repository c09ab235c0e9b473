#include "resources/draw/scene.h"

#include <array>

#include "resources/draw/boats.h"
#include "resources/draw/house.h"
#include "resources/draw/letters.h"
#include "resources/draw/shore.h"
#include "resources/draw/sky.h"
#include "resources/draw/water.h"

namespace {

constexpr double shoreLineY = 301;
constexpr double rowingBoatLineY = 316;

Foreground houseOnTheShore() {
    Foreground result{Canvas(sceneWidth, sceneHeight), shoreLineY};
    drawTrees(result.picture);
    drawHouse(result.picture);
    drawBank(result.picture);
    drawJetty(result.picture);
    return result;
}

Foreground rowingBoat() {
    Foreground result{Canvas(sceneWidth, sceneHeight), rowingBoatLineY};
    drawRowingBoat(result.picture);
    return result;
}

// Glows add up to more light than a screen has: what is too bright approaches white instead of being cut off.
double softened(double share) {
    constexpr double knee = 0.80;
    return share < knee ? share : knee + (1 - knee) * (1 - std::exp((knee - share) / (1 - knee)));
}

void softenHighlights(Canvas& canvas) {
    for (int y = 0; y < canvas.height(); ++y) {
        for (int x = 0; x < canvas.width(); ++x) {
            const Color light = canvas.at(x, y).light;
            canvas.cover(x, y, {softened(light.red), softened(light.green), softened(light.blue)}, 1);
        }
    }
}

// The corners a little darker, which leads the eye to the lit house and the sun.
void darkenCorners(Canvas& canvas) {
    for (int y = 0; y < canvas.height(); ++y) {
        for (int x = 0; x < canvas.width(); ++x) {
            const double outward =
                std::hypot((x - 0.5 * sceneWidth) / sceneWidth, (y - 0.5 * sceneHeight) / sceneHeight);
            canvas.cover(x, y, rgb(0x060A1C), 0.38 * smoothStep(0.42, 0.78, outward));
        }
    }
}

}  // namespace

Canvas drawScene() {
    Canvas distance(sceneWidth, sceneHeight);
    drawSky(distance);
    drawHills(distance);
    drawSailingBoat(distance);
    const std::array<Foreground, 2> foregrounds = {houseOnTheShore(), rowingBoat()};

    Canvas scene = distance;
    drawWater(scene, distance, foregrounds);
    for (const Foreground& foreground : foregrounds) {
        drawAbove(scene, foreground);
    }
    drawReeds(scene);
    softenHighlights(scene);
    darkenCorners(scene);
    drawName(scene);
    return scene;
}
