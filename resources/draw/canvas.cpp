#include "resources/draw/canvas.h"

namespace {

std::size_t pixelCount(int width, int height) {
    return static_cast<std::size_t>(width) * static_cast<std::size_t>(height);
}

Pixel mixed(const Pixel& a, const Pixel& b, double share) {
    return {mix(a.light, b.light, share), mix(a.opacity, b.opacity, share)};
}

}  // namespace

Mask::Mask(int width, int height) : width_(width), height_(height), shares_(pixelCount(width, height)) {}

Mask Mask::averaged(int radius, int stepX, int stepY) const {
    Mask result(width_, height_);
    const double part = 1.0 / (2 * radius + 1);
    for (int y = 0; y < height_; ++y) {
        for (int x = 0; x < width_; ++x) {
            double sum = 0;
            for (int i = -radius; i <= radius; ++i) {
                const int fromX = x + i * stepX;
                const int fromY = y + i * stepY;
                if (fromX >= 0 && fromX < width_ && fromY >= 0 && fromY < height_) sum += at(fromX, fromY);
            }
            result.add(x, y, sum * part);
        }
    }
    return result;
}

// Averaging twice in each direction comes close enough to a bell curve.
Mask Mask::blurred(int radius) const {
    return averaged(radius, 1, 0).averaged(radius, 0, 1).averaged(radius, 1, 0).averaged(radius, 0, 1);
}

Canvas::Canvas(int width, int height) : width_(width), height_(height), pixels_(pixelCount(width, height)) {}

void Canvas::lay(int x, int y, const Pixel& above) {
    Pixel& pixel = pixels_[index(x, y)];
    pixel = over(above, pixel);
}

void Canvas::cover(int x, int y, Color color, double opacity) {
    lay(x, y, {color * opacity, opacity});
}

void Canvas::shine(int x, int y, Color color, double strength) {
    Color& light = pixels_[index(x, y)].light;
    light = light + color * strength;
}

void Canvas::cover(const Mask& mask, const Paint& paint, double strength) {
    for (int y = 0; y < height_; ++y) {
        for (int x = 0; x < width_; ++x) {
            const double share = std::min(mask.at(x, y), 1.0) * strength;
            if (share > 0) cover(x, y, paint({x + 0.5, y + 0.5}), share);
        }
    }
}

void Canvas::shine(const Mask& mask, Color color, double strength) {
    for (int y = 0; y < height_; ++y) {
        for (int x = 0; x < width_; ++x) {
            if (mask.at(x, y) > 0) shine(x, y, color, mask.at(x, y) * strength);
        }
    }
}

Pixel Canvas::sample(Point point) const {
    const double x = std::clamp(point.x - 0.5, 0.0, width_ - 1.0);
    const double y = std::clamp(point.y - 0.5, 0.0, height_ - 1.0);
    const int left = static_cast<int>(x);
    const int top = static_cast<int>(y);
    const int right = std::min(left + 1, width_ - 1);
    const int bottom = std::min(top + 1, height_ - 1);
    return mixed(mixed(at(left, top), at(right, top), x - left), mixed(at(left, bottom), at(right, bottom), x - left),
                 y - top);
}

Paint plain(Color color) {
    return [color](Point) { return color; };
}

Paint vertical(double topY, Color top, double bottomY, Color bottom) {
    return [=](Point p) { return mix(top, bottom, std::clamp((p.y - topY) / (bottomY - topY), 0.0, 1.0)); };
}
