// The three layers of a flame, ordinary and annihilating: Explo3 is drawn first, Explo2 over it, Explo1 last. One
// picture serves all directions, so each is the same after a quarter turn, and each reaches the middle of every edge,
// where the next square's flame goes on.
#include <algorithm>
#include <cmath>
#include <numbers>

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

// A round heart of radius `heart` with licks of up to `lick` pixels around it and four arms of half width `arm`, frayed
// by `fray` pixels of noise.
struct Layer {
    float heart;
    float lick;
    float arm;
    float fray;
    float grain;
    std::uint32_t seed;
};

// 0 in the valley between two licks to 1 at a tip: three to a quarter turn, all bent the same way. Every quarter is
// reckoned as the first, so that rounding cannot tell them apart.
float lickAt(float x, float y) {
    const bool isSideways = (x > 0.0f) != (y > 0.0f);
    const float right = std::fabs(isSideways ? y : x), down = std::fabs(isSideways ? x : y);
    const float around = std::atan2(down, right) / std::numbers::pi_v<float> * 6.0f + std::hypot(x, y) * 0.07f;
    const float along = around - std::floor(around);
    return along < 0.65f ? along / 0.65f : (1.0f - along) / 0.35f;
}

// How deep inside the layer a point lies, in pixels; below 0 outside.
float depthIn(const Layer& layer, float x, float y) {
    const float far = std::max(std::fabs(x), std::fabs(y)), near = std::min(std::fabs(x), std::fabs(y));
    const float out = std::hypot(x, y);
    const float round = layer.heart + layer.lick * lickAt(x, y) * std::min(1.0f, out * out / 100.0f) - out;
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

struct Heat {
    Colour rim, outer, inner, heart;
};

// Whether a point lies in the bright heart, whose licks reach so many pixels out.
bool isHeart(float x, float y, float reach) {
    return std::hypot(x, y) < reach * (0.55f + 0.45f * lickAt(x, y));
}

Canvas core(const Heat& heat) {
    return layerOf({7.6f, 4.2f, 3.8f, 1.0f, 3.5f, 11}, [=](float depth, float, float) {
        return depth < 1.0f ? heat.rim : (depth < 2.1f ? heat.outer : (depth < 3.4f ? heat.inner : heat.heart));
    });
}

Canvas flesh(const Heat& heat) {
    return layerOf({9.6f, 5.6f, 7.4f, 2.0f, 4.0f, 23}, [=](float depth, float x, float y) {
        const float heated = depth + (turnedNoise(x, y, 3.0f, 5) - 0.5f) * 7.0f;
        return isHeart(x, y, 7.0f) ? heat.heart : (depth < 1.1f ? heat.rim : (heated < 4.2f ? heat.outer : heat.inner));
    });
}

Canvas tail(const Heat& heat) {
    Canvas canvas = layerOf({12.6f, 4.4f, 10.6f, 2.6f, 4.5f, 37}, [=](float depth, float x, float y) {
        const float heated = depth + (turnedNoise(x, y, 3.2f, 8) - 0.5f) * 12.0f;
        return isHeart(x, y, 8.5f) ? heat.heart : (depth < 1.6f ? heat.rim : (heated < 5.5f ? heat.outer : heat.inner));
    });
    for (int y = 0; y < size; ++y) {
        for (int x = 0; x < size; ++x) {
            const float fromX = static_cast<float>(x) - middle, fromY = static_cast<float>(y) - middle;
            const bool joint = std::min(std::fabs(fromX), std::fabs(fromY)) < 3.0f;
            if (!joint && turnedNoise(fromX, fromY, 2.6f, 51) > 0.64f) {
                canvas.set(x, y, clear);
            }
        }
    }
    return canvas;
}

}  // namespace

Pictures paintFamily() {
    using namespace palette;
    constexpr Colour ember{150, 44, 40}, coldEmber{76, 40, 140}, coldSmoke{52, 36, 84};
    return {{"Explo1", core({fireOrange, fireYellow, fireWhite, white})},
            {"Explo2", flesh({fireRed, fireOrange, fireYellow, fireWhite})},
            {"Explo3", tail({fireSmoke, ember, fireRed, fireOrange})},
            {"Explo1A", core({iceBlue, iceLight, iceWhite, white})},
            {"Explo2A", flesh({violet, iceBlue, iceLight, iceWhite})},
            {"Explo3A", tail({coldSmoke, coldEmber, violet, iceBlue})}};
}

}  // namespace vandrel::art
