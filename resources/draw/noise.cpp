#include "resources/draw/noise.h"

#include <cstdint>

#include "resources/draw/geometry.h"

double chance(int x, int y) {
    std::uint32_t bits = static_cast<std::uint32_t>(x) * 0x8DA6B343U ^ static_cast<std::uint32_t>(y) * 0xD8163841U;
    bits ^= bits >> 15;
    bits *= 0x2C1B3C6DU;
    bits ^= bits >> 12;
    bits *= 0x297A2D39U;
    bits ^= bits >> 15;
    return bits / 4294967295.0;
}

double noise(double x, double y) {
    const int column = static_cast<int>(std::floor(x));
    const int row = static_cast<int>(std::floor(y));
    const double across = smoothStep(0, 1, x - column);
    const double down = smoothStep(0, 1, y - row);
    const double upper = mix(chance(column, row), chance(column + 1, row), across);
    const double lower = mix(chance(column, row + 1), chance(column + 1, row + 1), across);
    return mix(upper, lower, down);
}

double layeredNoise(double x, double y, int layers) {
    double sum = 0;
    double height = 1;
    double whole = 0;
    for (int i = 0; i < layers; ++i) {
        sum += noise(x, y) * height;
        whole += height;
        // Shifted, so that the layers' grids don't meet in a common corner.
        x = x * 2 + 17.3;
        y = y * 2 + 9.1;
        height /= 2;
    }
    return sum / whole;
}
