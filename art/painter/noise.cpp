#include "painter/noise.h"

#include <cmath>

namespace vandrel::art {
namespace {

std::uint32_t scramble(std::uint32_t value) {
    value ^= value >> 16;
    value *= 0x7feb352dU;
    value ^= value >> 15;
    value *= 0x846ca68bU;
    value ^= value >> 16;
    return value;
}

float unit(std::uint32_t bits) {
    return static_cast<float>(bits >> 8) / 16777216.0f;
}

float eased(float part) {
    return part * part * (3.0f - 2.0f * part);
}

}  // namespace

std::uint32_t Dice::next() {
    state_ += 0x9e3779b9U;
    return scramble(state_);
}

int Dice::below(int bound) {
    return static_cast<int>(next() % static_cast<std::uint32_t>(bound));
}

float Dice::between(float low, float high) {
    return low + (high - low) * unit(next());
}

float pointNoise(int x, int y, std::uint32_t seed) {
    return unit(scramble(scramble(static_cast<std::uint32_t>(x) + 0x9e3779b9U * seed) ^
                         (static_cast<std::uint32_t>(y) * 0x85ebca6bU + 0xc2b2ae35U)));
}

float smoothNoise(float x, float y, std::uint32_t seed) {
    const float cellX = std::floor(x), cellY = std::floor(y);
    const int column = static_cast<int>(cellX), row = static_cast<int>(cellY);
    const float partX = eased(x - cellX), partY = eased(y - cellY);
    const auto along = [&](int line) {
        const float left = pointNoise(column, line, seed), right = pointNoise(column + 1, line, seed);
        return left + (right - left) * partX;
    };
    const float upper = along(row), lower = along(row + 1);
    return upper + (lower - upper) * partY;
}

float cloudNoise(float x, float y, std::uint32_t seed, int octaves) {
    float sum = 0.0f, strength = 1.0f, total = 0.0f;
    for (int octave = 0; octave < octaves; ++octave) {
        sum += smoothNoise(x, y, seed + static_cast<std::uint32_t>(octave)) * strength;
        total += strength;
        strength *= 0.5f;
        x *= 2.0f;
        y *= 2.0f;
    }
    return total > 0.0f ? sum / total : 0.0f;
}

}  // namespace vandrel::art
