// The places in which the prizes were photographed: rooms, windows, gardens, skies. Coordinates are pixels of the
// scene.
#pragma once

#include <cstdint>
#include <vector>

#include "painter/canvas.h"
#include "painter/shapes.h"

namespace vandrel::art {

enum class Wallpaper { Plain, Stripes, Dots, Diamonds };

// A wall over the whole scene, lit from the left.
void paintWall(Canvas& scene, Colour base, Colour pattern, Wallpaper paper);
// Everything from `row` down, with a skirting board above it: boards that run towards the viewer, or a plain carpet.
void paintBoards(Canvas& scene, int row, const Ramp& wood, Colour skirting);
void paintCarpet(Canvas& scene, int row, const Ramp& pile, Colour skirting);
// A table top or shelf: a lit edge and a front, over the whole width.
void paintLedge(Canvas& scene, int row, int thickness, const Ramp& wood);
// A framed window with a cross; the view is painted by the caller on the whole of `view` (its size is the window's).
void paintWindow(Canvas& scene, int x, int y, const Canvas& view, const Ramp& wood);
// A picture on the wall: an abstract landscape.
void paintWallPicture(Canvas& scene, int x, int y, int width, int height, const Ramp& wood, Colour sky, Colour land);
void paintPlant(Canvas& scene, float x, float ground, float size, const Ramp& leaves, const Ramp& pot);
void paintLamp(Canvas& scene, float x, float ground, float height, const Ramp& shade);
// An armchair that faces the viewer; the seat's front edge is at `ground` - 0.45 `size`.
void paintArmchair(Canvas& scene, float x, float ground, float size, const Ramp& cloth);

// Out-of-focus discs of light between two rows.
void paintBokeh(Canvas& scene, const std::vector<Colour>& colours, int count, int top, int bottom, std::uint32_t seed);
void paintCloud(Canvas& scene, float x, float y, float size, Colour colour);
void paintStars(Canvas& scene, int bottom, int count, std::uint32_t seed);
// Blades of grass from `row` down.
void paintGrass(Canvas& scene, int row, const Ramp& grass, std::uint32_t seed);
void paintFlower(Canvas& scene, float x, float y, float size, Colour petals, Colour heart);
// A branch from one point to the other, with bark.
void paintBranch(Canvas& scene, Point from, Point to, float radiusFrom, float radiusTo, const Ramp& bark);
void paintLeaf(Canvas& scene, float x, float y, float length, float turn, const Ramp& leaf);

}  // namespace vandrel::art
