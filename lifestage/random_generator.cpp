#include "lifestage/random_generator.h"

#include <algorithm>

namespace {

constexpr std::size_t highestDraw = 32767;

}  // namespace

RandomGenerator& randomGenerator() {
    static RandomGenerator generator;
    return generator;
}

std::size_t pickIndex(int draw, std::size_t count) {
    // The highest draw would give `count`; it picks the last entry instead.
    return std::min(count * static_cast<std::size_t>(draw) / highestDraw, count - 1);
}
