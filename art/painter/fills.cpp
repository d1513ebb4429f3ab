// The ways to fill a shape; declared in shapes.h.
#include <algorithm>
#include <cmath>

#include "painter/shapes.h"

namespace vandrel::art {
namespace {

// The steps between the tones of a ramp, as amounts of light.
constexpr float lightStep = 0.74f;
constexpr float darkStep = 0.36f;

template <typename Paint>
void forEachNear(const Canvas& canvas, const Shape& shape, float margin, Paint paint) {
    const int left = std::max(0, static_cast<int>(std::floor(shape.left - margin)));
    const int top = std::max(0, static_cast<int>(std::floor(shape.top - margin)));
    const int right = std::min(canvas.width() - 1, static_cast<int>(std::ceil(shape.right + margin)));
    const int bottom = std::min(canvas.height() - 1, static_cast<int>(std::ceil(shape.bottom + margin)));
    for (int y = top; y <= bottom; ++y) {
        for (int x = left; x <= right; ++x) {
            paint(x, y, shape.distance(static_cast<float>(x) + 0.5f, static_cast<float>(y) + 0.5f));
        }
    }
}

template <typename Paint>
void forEachInside(const Canvas& canvas, const Shape& shape, Paint paint) {
    forEachNear(canvas, shape, 1.0f, [&](int x, int y, float distance) {
        if (distance < 0.0f) {
            paint(x, y);
        }
    });
}

float coverageOf(float distance, float softness) {
    return std::clamp(0.5f - distance / std::max(softness, 0.001f), 0.0f, 1.0f);
}

Colour toneFor(const Ramp& ramp, float light) {
    if (light >= lightStep) {
        return ramp.light;
    }
    return light <= darkStep ? ramp.dark : ramp.middle;
}

}  // namespace

float lightAt(const Shape& shape, float x, float y, float roundness) {
    constexpr float lightX = -0.55f, lightY = -0.62f, lightZ = 0.56f;
    constexpr float reach = 0.75f;
    float slopeX = shape.distance(x + reach, y) - shape.distance(x - reach, y);
    float slopeY = shape.distance(x, y + reach) - shape.distance(x, y - reach);
    const float steepness = std::hypot(slopeX, slopeY);
    if (steepness > 0.0f) {
        slopeX /= steepness;
        slopeY /= steepness;
    }
    // On the rim the surface stands upright, `roundness` pixels further in it lies flat.
    const float tilt = std::clamp(1.0f + shape.distance(x, y) / std::max(roundness, 0.001f), 0.0f, 1.0f);
    const float facing = std::sqrt(1.0f - tilt * tilt);
    return std::clamp((slopeX * tilt * lightX + slopeY * tilt * lightY + facing * lightZ) * 0.6f + 0.22f, 0.0f, 1.0f);
}

float ditherThreshold(int x, int y) {
    static constexpr int pattern[4][4] = {{0, 8, 2, 10}, {12, 4, 14, 6}, {3, 11, 1, 9}, {15, 7, 13, 5}};
    return (static_cast<float>(pattern[y & 3][x & 3]) + 0.5f) / 16.0f;
}

void fill(Canvas& canvas, const Shape& shape, Colour colour) {
    forEachInside(canvas, shape, [&](int x, int y) { canvas.set(x, y, colour); });
}

void fillLit(Canvas& canvas, const Shape& shape, const Ramp& ramp, float roundness) {
    forEachInside(canvas, shape, [&](int x, int y) {
        canvas.set(
            x, y, toneFor(ramp, lightAt(shape, static_cast<float>(x) + 0.5f, static_cast<float>(y) + 0.5f, roundness)));
    });
}

void fillLitDithered(Canvas& canvas, const Shape& shape, const Ramp& ramp, float roundness) {
    constexpr float spread = 0.22f;
    forEachInside(canvas, shape, [&](int x, int y) {
        const float light = lightAt(shape, static_cast<float>(x) + 0.5f, static_cast<float>(y) + 0.5f, roundness);
        canvas.set(x, y, toneFor(ramp, light + (ditherThreshold(x, y) - 0.5f) * spread));
    });
}

void fillDithered(Canvas& canvas, const Shape& shape, Colour first, Colour second, float share) {
    forEachInside(canvas, shape,
                  [&](int x, int y) { canvas.set(x, y, ditherThreshold(x, y) < share ? second : first); });
}

void fillWithin(Canvas& canvas, const Shape& shape, Colour colour) {
    forEachInside(canvas, shape, [&](int x, int y) {
        if (canvas.visible(x, y)) {
            canvas.set(x, y, colour);
        }
    });
}

void fillSoft(Canvas& canvas, const Shape& shape, Colour colour, float softness, float opacity) {
    forEachNear(canvas, shape, softness, [&](int x, int y, float distance) {
        canvas.blend(x, y, colour, coverageOf(distance, softness) * opacity);
    });
}

void fillSoftLit(Canvas& canvas, const Shape& shape, const Ramp& ramp, float roundness, float softness, float opacity) {
    forEachNear(canvas, shape, softness, [&](int x, int y, float distance) {
        const float coverage = coverageOf(distance, softness);
        if (coverage > 0.0f) {
            const float light = lightAt(shape, static_cast<float>(x) + 0.5f, static_cast<float>(y) + 0.5f, roundness);
            const Colour tone = light < 0.55f ? mix(ramp.dark, ramp.middle, (light - 0.1f) / 0.45f)
                                              : mix(ramp.middle, ramp.light, (light - 0.55f) / 0.3f);
            canvas.blend(x, y, tone, coverage * opacity);
        }
    });
}

void forEachCovered(const Canvas& canvas, const Shape& shape, float softness,
                    const std::function<void(int x, int y, float coverage)>& paint) {
    forEachNear(canvas, shape, softness, [&](int x, int y, float distance) {
        const float coverage = coverageOf(distance, softness);
        if (coverage > 0.0f) {
            paint(x, y, coverage);
        }
    });
}

void fillGradient(Canvas& canvas, int top, int height, Colour upper, Colour lower) {
    for (int row = 0; row < height; ++row) {
        const float part = height > 1 ? static_cast<float>(row) / static_cast<float>(height - 1) : 0.0f;
        canvas.fillRect(0, top + row, canvas.width(), 1, mix(upper, lower, part));
    }
}

}  // namespace vandrel::art
