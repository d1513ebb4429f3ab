// The three layers of a flame, ordinary and annihilating: Explo3 is drawn first, Explo2 over it, Explo1 last. One
// picture serves all directions, so each is the same after a quarter turn, and each reaches the middle of every edge,
// where the next square's flame goes on.
#include <algorithm>
#include <cmath>

#include "images/recipe.h"
#include "painter/noise.h"

namespace vandrel::art {
namespace {

constexpr int size = 32;
constexpr float middle = 15.5f;

// Noise that looks the same from all four sides.
float turnedNoise(float x, float y, float grain, std::uint32_t seed) {
    float sum = 0.0f;
    for (int turn = 0; turn < 4; ++turn) {
        sum += smoothNoise(x / grain + 40.0f, y / grain + 40.0f, seed);
        const float oldX = x;
        x = -y;
        y = oldX;
    }
    return sum / 4.0f;
}

// How deep inside the layer a point lies, in pixels: a round heart of radius `heart` with four arms of half width
// `arm`, frayed by `fray` pixels of noise.
struct Layer {
    float heart;
    float arm;
    float fray;
    float grain;
    std::uint32_t seed;
};

float depthIn(const Layer& layer, float x, float y) {
    const float far = std::max(std::fabs(x), std::fabs(y)), near = std::min(std::fabs(x), std::fabs(y));
    const float round = layer.heart - std::hypot(x, y);
    const float arm = layer.arm - near + 0.8f * std::sin(far * 0.8f);
    const float frayed = std::max(round, arm) + (turnedNoise(x, y, layer.grain, layer.seed) - 0.5f) * layer.fray * 2.0f;
    // The joint to the next square is never frayed away.
    return far > 12.0f && near < 2.5f ? std::max(frayed, arm) : frayed;
}

template <typename Tone>
Canvas layerOf(const Layer& layer, Tone tone) {
    Canvas canvas(size, size);
    for (int y = 0; y < size; ++y) {
        for (int x = 0; x < size; ++x) {
            const float fromX = static_cast<float>(x) - middle, fromY = static_cast<float>(y) - middle;
            const float depth = depthIn(layer, fromX, fromY);
            if (depth > 0.0f) {
                canvas.set(x, y, tone(depth, fromX, fromY));
            }
        }
    }
    return canvas;
}

Canvas core(Colour hot, Colour warm, Colour rim) {
    return layerOf({8.0f, 3.6f, 3.0f, 3.5f, 11},
                   [=](float depth, float, float) { return depth > 3.0f ? hot : (depth > 1.2f ? warm : rim); });
}

Canvas flesh(Colour hot, Colour warm, Colour rim) {
    return layerOf({12.0f, 7.6f, 3.2f, 4.0f, 23}, [=](float depth, float x, float y) {
        const float lick = turnedNoise(x, y, 3.0f, 5);
        return depth < 1.3f ? rim : (lick > 0.58f ? hot : warm);
    });
}

Canvas tail(Colour warm, Colour dull, Colour smoke) {
    Canvas canvas = layerOf({15.6f, 11.4f, 3.4f, 4.5f, 37}, [=](float depth, float x, float y) {
        const float lick = turnedNoise(x, y, 3.5f, 8);
        return depth < 1.8f ? smoke : (lick > 0.55f ? warm : dull);
    });
    for (int y = 0; y < size; ++y) {
        for (int x = 0; x < size; ++x) {
            const float fromX = static_cast<float>(x) - middle, fromY = static_cast<float>(y) - middle;
            const bool joint = std::min(std::fabs(fromX), std::fabs(fromY)) < 3.0f;
            if (!joint && turnedNoise(fromX, fromY, 2.6f, 51) > 0.68f) {
                canvas.set(x, y, clear);
            }
        }
    }
    return canvas;
}

}  // namespace

Pictures paintFamily() {
    using namespace palette;
    return {
        {"Explo1", core(white, fireWhite, fireYellow)},      {"Explo2", flesh(fireYellow, fireOrange, fireRed)},
        {"Explo3", tail(fireRed, {150, 44, 40}, fireSmoke)}, {"Explo1A", core(white, iceWhite, iceLight)},
        {"Explo2A", flesh(iceLight, iceBlue, violet)},       {"Explo3A", tail(violet, {76, 40, 140}, {52, 36, 84})}};
}

}  // namespace vandrel::art
