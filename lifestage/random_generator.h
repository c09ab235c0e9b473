// The program's one source of chance.
#ifndef LIFESTAGE_RANDOM_GENERATOR_H
#define LIFESTAGE_RANDOM_GENERATOR_H

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

// The generator of the whole program; the entry seeds it from the clock.
RandomGenerator& randomGenerator();

// The index that one draw (0 to 32767) picks among `count` entries, at least one, each with about an equal share of the
// draws.
std::size_t pickIndex(int draw, std::size_t count);

#endif
