// Shapes as signed distances, and the ways to fill them: flat, in three tones with one light from the top left,
// dithered, or soft for large painted pictures. All coordinates are pixels; the middle of the top left pixel is (0.5,
// 0.5).
//
//     fill(canvas, ellipse(16, 12, 9, 8), palette::skinLight);
//     fillLit(canvas, unite(circle(10, 10, 6), capsule(10, 10, 20, 14, 3)), palette::steel, 5);
//     fillSoft(canvas, rotated(roundedBox(600, 450, 80, 40, 12), 600, 450, 0.3f), palette::bone, 6, 0.8f);
#pragma once

#include <functional>
#include <vector>

#include "painter/canvas.h"

namespace vandrel::art {

struct Point {
    float x = 0;
    float y = 0;
};

// A region of the plane. `distance` is below 0 inside, above 0 outside, roughly in pixels. The box bounds everything
// inside, so that a small shape on a large canvas costs little.
struct Shape {
    std::function<float(float x, float y)> distance;
    float left = 0;
    float top = 0;
    float right = 0;
    float bottom = 0;
};

Shape circle(float x, float y, float radius);
Shape ellipse(float x, float y, float radiusX, float radiusY);
// Centre, half width, half height; `corner` is the radius of the corners (0: sharp).
Shape roundedBox(float x, float y, float halfWidth, float halfHeight, float corner = 0);
// A box by its edges, as pixels are counted: columns left .. left + width - 1.
Shape rectangle(float left, float top, float width, float height, float corner = 0);
// A thick line with round ends; the radius may change from end to end (a tail, a fur stroke, a limb).
Shape capsule(float x0, float y0, float x1, float y1, float radius);
Shape taper(float x0, float y0, float x1, float y1, float radius0, float radius1);
// Any simple polygon, convex or not, of at least three points. Throws std::invalid_argument below that.
Shape polygon(std::vector<Point> points);
// A thick line through all the points, or a smooth curve through them (Catmull-Rom).
Shape polyline(const std::vector<Point>& points, float radius);
Shape curve(const std::vector<Point>& points, float radius);
// A star or a burst: `spikes` points at `outer`, valleys at `inner`, first point at `angle` radians (0: right,
// clockwise).
Shape star(float x, float y, int spikes, float outer, float inner, float angle = 0);

Shape unite(Shape a, Shape b);
Shape uniteAll(std::vector<Shape> shapes);
Shape blendUnite(Shape a, Shape b, float softness);  // the joint is filled like clay
Shape subtract(Shape from, Shape what);
Shape intersect(Shape a, Shape b);
Shape grown(Shape shape, float by);  // negative shrinks
Shape moved(Shape shape, float dx, float dy);
Shape rotated(Shape shape, float aboutX, float aboutY, float radians);  // clockwise on the screen
Shape ring(Shape shape, float thickness);                               // the band along the edge, centred on it

// Sets every pixel whose middle is inside. No soft edge: alpha stays 0 or 255.
void fill(Canvas& canvas, const Shape& shape, Colour colour);
// Three tones: the shape is taken for a dome that rises over `roundness` pixels from its edge, lit from the top left.
void fillLit(Canvas& canvas, const Shape& shape, const Ramp& ramp, float roundness);
// The same with the steps between the tones dithered by an ordered 4x4 pattern.
void fillLitDithered(Canvas& canvas, const Shape& shape, const Ramp& ramp, float roundness);
// A checkerboard-like mix of two colours: `share` 0..1 of the pixels get `second`, in an ordered 4x4 pattern.
void fillDithered(Canvas& canvas, const Shape& shape, Colour first, Colour second, float share);
// Pixels inside that are already visible only: a pattern on a coat, a shade on a wall.
void fillWithin(Canvas& canvas, const Shape& shape, Colour colour);

// For large painted pictures: the edge is faded over `softness` pixels (at least 1 gives a clean antialiased edge).
void fillSoft(Canvas& canvas, const Shape& shape, Colour colour, float softness = 1, float opacity = 1);
// Soft-edged and smoothly lit: the ramp is walked without steps.
void fillSoftLit(Canvas& canvas, const Shape& shape, const Ramp& ramp, float roundness, float softness = 1,
                 float opacity = 1);
// Calls `paint(x, y, coverage)` for each pixel that the shape touches with its soft edge, coverage 0..1: for textures.
void forEachCovered(const Canvas& canvas, const Shape& shape, float softness,
                    const std::function<void(int x, int y, float coverage)>& paint);
// A vertical gradient over the whole width between two rows.
void fillGradient(Canvas& canvas, int top, int height, Colour upper, Colour lower);

// How much light falls on (x, y) of a dome with this outline: about 0 (turned away) to 1 (full); 0.55 is flat.
float lightAt(const Shape& shape, float x, float y, float roundness);
// The ordered 4x4 dither threshold of a pixel, above 0 and below 1.
float ditherThreshold(int x, int y);

}  // namespace vandrel::art
