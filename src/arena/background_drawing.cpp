#include "arena/background_drawing.h"

#include <cmath>

namespace vandrel {

namespace {

constexpr float warningFrames = 500.0f;
constexpr float firstPhase = 48.694687f;  // radians, at a countdown of 0; both ends are at the sine's lowest point
constexpr float lastPhase = -1.5707964f;  // at a countdown of 500

// Not held inside the output range: the countdown lies outside the input range on purpose.
float mapLinearly(float value, float inMin, float inMax, float outMin, float outMax) {
    return (value - inMin) / (inMax - inMin) * (outMax - outMin) + outMin;
}

std::uint8_t pulse(float swing, std::uint8_t from, float to) {
    return static_cast<std::uint8_t>(mapLinearly(swing, -1.0f, 1.0f, static_cast<float>(from), to));
}

}  // namespace

RGB warningColour(RGB base, int countdown) {
    const float phase = mapLinearly(static_cast<float>(countdown), 0.0f, warningFrames, firstPhase, lastPhase);
    const float swing = std::sin(phase);
    return {pulse(swing, base.red, 255.0f), pulse(swing, base.green, 0.0f), pulse(swing, base.blue, 0.0f)};
}

}  // namespace vandrel
