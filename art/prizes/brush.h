// What all prize scenes are painted with: a local frame in which a creature is described in units of its own size, fur
// and feathers on shapes, layers with a dark rim, shadows and light.
//
//     const Pose head{75, 50, 18};
//     paintLayer(scene, rim, [&](Canvas& layer) { fillFur(layer, head.oval(0, 0, 1, 0.8f), ginger, 9); });
#pragma once

#include <cstdint>
#include <functional>
#include <vector>

#include "painter/canvas.h"
#include "painter/shapes.h"

namespace vandrel::art {

// Where a creature is, how large one unit of its drawing is in pixels, how far it is turned (radians, clockwise) and
// whether it looks the other way (`side` -1 mirrors it). All shapes are given in units, from (x, y).
struct Pose {
    float x = 0;
    float y = 0;
    float size = 1;
    float tilt = 0;
    float side = 1;

    Point at(float dx, float dy) const;
    Shape oval(float dx, float dy, float radiusX, float radiusY, float turn = 0) const;
    Shape limb(Point from, Point to, float radiusFrom, float radiusTo) const;
    Shape corners(const std::vector<Point>& points) const;
    Shape tube(const std::vector<Point>& points, float radius) const;
    // A frame within this one, `scale` times as large, turned further.
    Pose part(float dx, float dy, float scale = 1, float turn = 0) const;
};

// The same thing on both sides of the middle line.
Shape bothSides(const std::function<Shape(float side)>& make);

// The material at a pixel: plain, striped, spotted.
using Material = std::function<Ramp(float x, float y)>;
Material plain(const Ramp& ramp);

// Fills the shape in six tones, lit from the top left, with a grain of hairs. `fluff` is how far the hairs stand off
// the edge, in pixels; `roundness` as in fillLit.
void fillFur(Canvas& canvas, const Shape& shape, const Material& material, float roundness, float fluff = 0.6f,
             std::uint32_t seed = 1);
void fillFur(Canvas& canvas, const Shape& shape, const Ramp& ramp, float roundness, float fluff = 0.6f,
             std::uint32_t seed = 1);
// The same in smooth tones, without hairs: skin, wood, cloth, china.
void fillSmooth(Canvas& canvas, const Shape& shape, const Ramp& ramp, float roundness);
// Rows of small scallops, for feathers and tiles: `width` and `height` of one in pixels.
void fillScallops(Canvas& canvas, const Shape& shape, const Ramp& ramp, float width, float height);

// Calls `paint` with an empty layer of the canvas's size, gives what was painted a rim of one pixel, and lays it over
// the canvas.
void paintLayer(Canvas& canvas, Colour rim, const std::function<void(Canvas& layer)>& paint);
Colour rimOf(const Ramp& ramp);

// Darkens what lies under the shape, with a soft edge.
void shade(Canvas& canvas, const Shape& shape, float strength, float softness = 4);
// Lights what lies under the shape.
void glow(Canvas& canvas, const Shape& shape, Colour colour, float strength, float softness = 12);
// A straight hair of light from one point to the other.
void stroke(Canvas& canvas, Point from, Point to, Colour colour);

// Three tones made of one: a little warmer in the light, a little bluer in the shade.
Ramp rampOf(Colour middle);

}  // namespace vandrel::art
