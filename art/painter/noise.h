// Randomness that is the same in every build: a seeded stream for scattering things, and smooth noise of the plane for
// textures. Integer arithmetic underneath, so no library's random source can change a picture.
#pragma once

#include <cstdint>

namespace vandrel::art {

class Dice {
  public:
    explicit Dice(std::uint32_t seed) : state_(seed) {}

    std::uint32_t next();  // any 32-bit value
    int below(int bound);  // 0 to bound - 1
    float between(float low, float high);
    bool chance(float probability) { return between(0.0f, 1.0f) < probability; }

  private:
    std::uint32_t state_;
};

// 0..1, a value of its own for each grid point and seed.
float pointNoise(int x, int y, std::uint32_t seed);
// 0..1, smooth: the points' values of the unit grid, eased between them. Divide the coordinates to stretch it.
float smoothNoise(float x, float y, std::uint32_t seed);
// 0..1, `octaves` layers of smooth noise, each half as large and half as strong: clouds, wood, fur.
float cloudNoise(float x, float y, std::uint32_t seed, int octaves = 4);

}  // namespace vandrel::art
