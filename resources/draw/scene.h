// The splash picture: a house at the water's edge on a summer evening, and the program's name in the sky.
#ifndef RESOURCES_DRAW_SCENE_H
#define RESOURCES_DRAW_SCENE_H

#include "resources/draw/canvas.h"

// The picture's size in pixels; the splash window is as wide.
constexpr int sceneWidth = 598;
constexpr int sceneHeight = 400;

// The sea meets the sky here, in pixels from the top.
constexpr double horizonY = 262;

// Where the sun goes down, and how large it is.
constexpr Point sunMiddle = {172, 249};
constexpr double sunRadius = 21;

// Something that stands in front of the sea: what is drawn of it, transparent elsewhere, and the height of the line
// where it meets the water and its mirror image begins.
struct Foreground {
    Canvas picture;
    double waterlineY = 0;
};

// The whole picture; every pixel is opaque.
Canvas drawScene();

#endif
