#include "prizes/brush.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <utility>

#include "painter/noise.h"

namespace vandrel::art {
namespace {

constexpr Colour shadowColour{20, 12, 36};

Colour toneOf(const Ramp& ramp, float light) {
    const std::array<std::pair<float, Colour>, 5> tones{{{0.16f, mix(ramp.dark, palette::ink, 0.35f)},
                                                         {0.36f, ramp.dark},
                                                         {0.49f, mix(ramp.dark, ramp.middle, 0.55f)},
                                                         {0.63f, ramp.middle},
                                                         {0.73f, mix(ramp.middle, ramp.light, 0.55f)}}};
    for (const auto& [limit, tone] : tones) {
        if (light < limit) {
            return tone;
        }
    }
    return ramp.light;
}

Shape wider(Shape shape, float by) {
    shape.left -= by;
    shape.top -= by;
    shape.right += by;
    shape.bottom += by;
    return shape;
}

// Visits the pixels inside the shape after `offset` has moved its edge, with the light that falls on them.
template <typename Offset, typename Paint>
void forEachLit(Canvas& canvas, const Shape& shape, float roundness, Offset offset, Paint paint) {
    const Shape box = wider(shape, 2);
    const int left = std::max(0, static_cast<int>(box.left)), top = std::max(0, static_cast<int>(box.top));
    const int right = std::min(canvas.width() - 1, static_cast<int>(box.right) + 1);
    const int bottom = std::min(canvas.height() - 1, static_cast<int>(box.bottom) + 1);
    for (int y = top; y <= bottom; ++y) {
        for (int x = left; x <= right; ++x) {
            const float px = static_cast<float>(x) + 0.5f, py = static_cast<float>(y) + 0.5f;
            if (shape.distance(px, py) + offset(x, y) < 0.0f) {
                paint(x, y, lightAt(shape, px, py, roundness));
            }
        }
    }
}

}  // namespace

Point Pose::at(float dx, float dy) const {
    const float localX = dx * size * side, localY = dy * size;
    return {x + localX * std::cos(tilt) - localY * std::sin(tilt),
            y + localX * std::sin(tilt) + localY * std::cos(tilt)};
}

Shape Pose::oval(float dx, float dy, float radiusX, float radiusY, float turn) const {
    const Point middle = at(dx, dy);
    return rotated(ellipse(middle.x, middle.y, radiusX * size, radiusY * size), middle.x, middle.y, tilt + turn * side);
}

Shape Pose::limb(Point from, Point to, float radiusFrom, float radiusTo) const {
    const Point start = at(from.x, from.y), end = at(to.x, to.y);
    return taper(start.x, start.y, end.x, end.y, radiusFrom * size, radiusTo * size);
}

namespace {

std::vector<Point> placed(const Pose& pose, const std::vector<Point>& points) {
    std::vector<Point> result;
    result.reserve(points.size());
    for (const Point& point : points) {
        result.push_back(pose.at(point.x, point.y));
    }
    return result;
}

}  // namespace

Shape Pose::corners(const std::vector<Point>& points) const {
    return polygon(placed(*this, points));
}

Shape Pose::tube(const std::vector<Point>& points, float radius) const {
    return curve(placed(*this, points), radius * size);
}

Pose Pose::part(float dx, float dy, float scale, float turn) const {
    const Point middle = at(dx, dy);
    return {middle.x, middle.y, size * scale, tilt + turn * side, side};
}

Shape bothSides(const std::function<Shape(float side)>& make) {
    return unite(make(-1), make(1));
}

Material plain(const Ramp& ramp) {
    return [ramp](float, float) { return ramp; };
}

void fillFur(Canvas& canvas, const Shape& shape, const Material& material, float roundness, float fluff,
             std::uint32_t seed) {
    const auto hair = [seed](int x, int y) {
        return smoothNoise(static_cast<float>(x) * 0.85f, static_cast<float>(y) * 0.4f, seed) - 0.5f;
    };
    forEachLit(
        canvas, shape, roundness, [&](int x, int y) { return (pointNoise(x, y / 2, seed + 7) - 0.6f) * 2.0f * fluff; },
        [&](int x, int y, float light) {
            canvas.set(x, y,
                       toneOf(material(static_cast<float>(x) + 0.5f, static_cast<float>(y) + 0.5f),
                              light + hair(x, y) * 0.3f));
        });
}

void fillFur(Canvas& canvas, const Shape& shape, const Ramp& ramp, float roundness, float fluff, std::uint32_t seed) {
    fillFur(canvas, shape, plain(ramp), roundness, fluff, seed);
}

void fillSmooth(Canvas& canvas, const Shape& shape, const Ramp& ramp, float roundness) {
    forEachLit(
        canvas, shape, roundness, [](int, int) { return 0.0f; },
        [&](int x, int y, float light) { canvas.set(x, y, toneOf(ramp, light)); });
}

void fillScallops(Canvas& canvas, const Shape& shape, const Ramp& ramp, float width, float height) {
    forEachLit(
        canvas, shape, 8, [](int, int) { return 0.0f; },
        [&](int x, int y, float light) {
            const float row = std::floor(static_cast<float>(y) / height);
            const float shift = static_cast<int>(row) % 2 == 0 ? 0.0f : 0.5f;
            const float along = static_cast<float>(x) / width + shift;
            const float dx = (along - std::floor(along) - 0.5f) * 2.0f;
            const float dy = static_cast<float>(y) / height - row;
            const bool edge = dy > 1.0f - dx * dx * 0.7f - 0.3f;
            canvas.set(x, y, toneOf(ramp, light + (edge ? -0.2f : 0.07f)));
        });
}

void paintLayer(Canvas& canvas, Colour rim, const std::function<void(Canvas& layer)>& paint) {
    Canvas layer(canvas.width(), canvas.height());
    paint(layer);
    layer.outline(rim);
    canvas.draw(layer);
}

Colour rimOf(const Ramp& ramp) {
    return mix(ramp.dark, palette::ink, 0.7f);
}

void shade(Canvas& canvas, const Shape& shape, float strength, float softness) {
    fillSoft(canvas, shape, shadowColour, softness, strength);
}

void glow(Canvas& canvas, const Shape& shape, Colour colour, float strength, float softness) {
    fillSoft(canvas, shape, colour, softness, strength);
}

void stroke(Canvas& canvas, Point from, Point to, Colour colour) {
    canvas.line(static_cast<int>(std::floor(from.x)), static_cast<int>(std::floor(from.y)),
                static_cast<int>(std::floor(to.x)), static_cast<int>(std::floor(to.y)), colour);
}

Ramp rampOf(Colour middle) {
    return {mix(middle, {255, 248, 220}, 0.4f), middle, mix(middle, {30, 18, 56}, 0.45f)};
}

}  // namespace vandrel::art
