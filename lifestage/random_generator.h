// Random numbers.
#ifndef LIFESTAGE_RANDOM_GENERATOR_H
#define LIFESTAGE_RANDOM_GENERATOR_H

#include <algorithm>
#include <cstddef>
#include <cstdint>

class RandomGenerator {
 public:
    void seed(std::uint32_t state) { state_ = state; }

    // A whole number from 0 to 32767: bits 16 to 30 of the state after one step.
    int draw() {
        state_ = state_ * 214013 + 2531011;
        return static_cast<int>(state_ >> 16 & 0x7FFF);
    }

 private:
    std::uint32_t state_ = 1;
};

// The one generator of the program. The entry seeds it from the clock.
inline RandomGenerator& randomGenerator() {
    static RandomGenerator generator;
    return generator;
}

// The index, below `count`, that a draw from 0 to 32767 picks. Each index has about an equal share of the draws. The
// highest draw would give `count`; it picks the last entry instead.
constexpr std::size_t pickIndex(int draw, std::size_t count) {
    constexpr std::size_t highestDraw = 32767;
    return std::min(count * static_cast<std::size_t>(draw) / highestDraw, count - 1);
}

#endif
