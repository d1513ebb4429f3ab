#include "base/random.h"

#include <algorithm>
#include <cmath>

namespace vandrel {

std::mt19937 globalGenerator;
std::mt19937 particleGenerator(0);

namespace {

std::uint32_t gameRandState = 1;

}  // namespace

int gameRand() {
    gameRandState = gameRandState * 214013U + 2531011U;
    return static_cast<int>((gameRandState >> 16U) & 0x7FFFU);
}

void seedGameRand(std::uint32_t seed) {
    gameRandState = seed;
}

int uniformInt(std::mt19937& generator, int low, int high) {
    constexpr std::uint32_t largest = 0xFFFFFFFFU;
    const std::uint32_t count = static_cast<std::uint32_t>(high) - static_cast<std::uint32_t>(low) + 1U;
    if (count == 1U) {
        return low;
    }
    for (;;) {
        const auto output = static_cast<std::uint32_t>(generator());
        if (output / count < largest / count || largest % count == count - 1U) {
            return static_cast<int>(static_cast<std::uint32_t>(low) + output % count);
        }
    }
}

float canonicalFloat(std::mt19937& generator) {
    constexpr float scale = 1.0f / 4294967296.0f;
    const float value = static_cast<float>(generator()) * scale;
    return std::min(value, std::nextafter(1.0f, 0.0f));
}

float uniformFloat(std::mt19937& generator, float low, float high) {
    return low + canonicalFloat(generator) * (high - low);
}

}  // namespace vandrel
