#include "presentation/limiter.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>

namespace vandrel {
namespace {

constexpr std::size_t pairsAtOnce = 1024;  // memory of its own, since the audio thread shall not ask for any
constexpr float fallPerPair = 1.0f / 44.0f;
constexpr float risePerPair = 1.0f / 8'820.0f;

float holdBackAtOnce(std::span<float> stereo, float gain) {
    std::array<float, pairsAtOnce> allowed;
    const std::size_t pairs = stereo.size() / 2;
    for (std::size_t i = 0; i < pairs; ++i) {
        const float peak = std::max(std::fabs(stereo[2 * i]), std::fabs(stereo[2 * i + 1]));
        allowed[i] = peak > loudestMix ? loudestMix / peak : 1.0f;
    }
    for (std::size_t i = pairs; i-- > 1;) {
        allowed[i - 1] = std::min(allowed[i - 1], allowed[i] + fallPerPair);
    }
    for (std::size_t i = 0; i < pairs; ++i) {
        gain = std::min(allowed[i], gain + risePerPair);
        stereo[2 * i] *= gain;
        stereo[2 * i + 1] *= gain;
    }
    return gain;
}

}  // namespace

float holdBack(std::span<float> stereo, float gain) {
    while (!stereo.empty()) {
        const std::span<float> part = stereo.first(std::min(stereo.size(), 2 * pairsAtOnce));
        gain = holdBackAtOnce(part, gain);
        stereo = stereo.subspan(part.size());
    }
    return gain;
}

}  // namespace vandrel
