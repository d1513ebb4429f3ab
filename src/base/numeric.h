// Small numeric helpers that several rooms share.
#pragma once

#include <algorithm>
#include <cstdlib>

namespace vandrel {

// `value` moved toward `target` by at most `step` (0 or more), never past it.
constexpr int approach(int value, int target, int step) {
    return value < target ? std::min(value + step, target) : std::max(value - step, target);
}

// `value` mapped linearly from `inMin`..`inMax` onto `outMin`..`outMax` and held inside the latter.
constexpr float mapRange(float value, float inMin, float inMax, float outMin, float outMax) {
    const float mapped = (value - inMin) / (inMax - inMin) * (outMax - outMin) + outMin;
    return std::clamp(mapped, std::min(outMin, outMax), std::max(outMin, outMax));
}

constexpr int signOf(int value) {
    return (value > 0) - (value < 0);
}

}  // namespace vandrel
