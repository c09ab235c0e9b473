// Colours as shares of red, green and blue from 0 to 1, in the screen's own (gamma) scale: the pictures are mixed by
// eye.
#ifndef RESOURCES_DRAW_COLOR_H
#define RESOURCES_DRAW_COLOR_H

#include <cstdint>
#include <span>

#include "resources/draw/geometry.h"

struct Color {
    double red = 0;
    double green = 0;
    double blue = 0;
};

// The colour written as 0xRRGGBB.
constexpr Color rgb(std::uint32_t code) {
    return {(code >> 16 & 0xFF) / 255.0, (code >> 8 & 0xFF) / 255.0, (code & 0xFF) / 255.0};
}

// A share as a byte.
inline std::uint8_t byteOf(double share) {
    return static_cast<std::uint8_t>(std::lround(share * 255));
}

constexpr Color mix(Color a, Color b, double share) {
    return {mix(a.red, b.red, share), mix(a.green, b.green, share), mix(a.blue, b.blue, share)};
}

constexpr Color operator+(Color a, Color b) {
    return {a.red + b.red, a.green + b.green, a.blue + b.blue};
}

constexpr Color operator*(Color a, double factor) {
    return {a.red * factor, a.green * factor, a.blue * factor};
}

struct ColorStop {
    double at = 0;
    Color color;
};

// The colour at `at` of a gradient whose stops are in rising order; beyond its ends, that of the end.
constexpr Color gradient(std::span<const ColorStop> stops, double at) {
    for (std::size_t i = 1; i < stops.size(); ++i) {
        if (at < stops[i].at) {
            const double share = (at - stops[i - 1].at) / (stops[i].at - stops[i - 1].at);
            return mix(stops[i - 1].color, stops[i].color, std::max(share, 0.0));
        }
    }
    return stops.back().color;
}

#endif
