// A picture in memory, and the covering of its pixels by a shape. Pixels are transparent at first; colours are kept
// multiplied by their opacity, so that light can be added where nothing opaque lies yet.
#ifndef RESOURCES_DRAW_CANVAS_H
#define RESOURCES_DRAW_CANVAS_H

#include <functional>
#include <vector>

#include "resources/draw/color.h"

struct Pixel {
    Color light;
    double opacity = 0;
};

// Lays `above` over `below`.
constexpr Pixel over(const Pixel& above, const Pixel& below) {
    const double rest = 1 - above.opacity;
    return {above.light + below.light * rest, above.opacity + below.opacity * rest};
}

// Share of each pixel that a shape covers, 0 to 1.
class Mask {
 public:
    Mask(int width, int height);

    int width() const { return width_; }
    int height() const { return height_; }
    double at(int x, int y) const { return shares_[index(x, y)]; }
    void add(int x, int y, double share) { shares_[index(x, y)] += share; }

    // The mask spread out softly, by about `radius` pixels to each side; the sum stays but for what leaves the picture.
    Mask blurred(int radius) const;

 private:
    std::size_t index(int x, int y) const {
        return static_cast<std::size_t>(y) * static_cast<std::size_t>(width_) + static_cast<std::size_t>(x);
    }
    Mask averaged(int radius, int stepX, int stepY) const;

    int width_;
    int height_;
    std::vector<double> shares_;
};

// The colour of a shape at each point.
using Paint = std::function<Color(Point)>;

class Canvas {
 public:
    Canvas(int width, int height);

    int width() const { return width_; }
    int height() const { return height_; }
    const Pixel& at(int x, int y) const { return pixels_[index(x, y)]; }

    // Lays `above` over the pixel.
    void lay(int x, int y, const Pixel& above);
    // Lays `color` over the pixel, hiding the share `opacity` of what was there.
    void cover(int x, int y, Color color, double opacity);
    // Adds light and hides nothing.
    void shine(int x, int y, Color color, double strength);

    // The same for all pixels under a mask of the canvas's size, each share times `strength`.
    void cover(const Mask& mask, const Paint& paint, double strength = 1);
    void shine(const Mask& mask, Color color, double strength);

    // The picture at any point, mixed from the four pixels around it; outside, that of the nearest edge.
    Pixel sample(Point point) const;

 private:
    std::size_t index(int x, int y) const {
        return static_cast<std::size_t>(y) * static_cast<std::size_t>(width_) + static_cast<std::size_t>(x);
    }

    int width_;
    int height_;
    std::vector<Pixel> pixels_;
};

// A paint of one colour.
Paint plain(Color color);

// A paint that changes from the height `topY` down to `bottomY`.
Paint vertical(double topY, Color top, double bottomY, Color bottom);

#endif
