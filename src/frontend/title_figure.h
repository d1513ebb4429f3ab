// The wobbling line drawing of the main menu: two legs, a body with arms and a head with a face. Every joint moves by
// itself and carries along what hangs from it.
#pragma once

#include <map>
#include <utility>
#include <vector>

#include "base/vector2.h"
#include "presentation/bitmap_wrapper.h"

namespace vandrel {

// A joint, in units of the figure. x and y may hang from different joints.
struct FigurePoint {
    int x = 0;  // relative to the parents
    int y = 0;
    int wobbleX = 0;  // how far it swings to either side
    int wobbleY = 0;
    float phaseX = 0.0f;
    float phaseY = 0.0f;
    int parentX = 0;  // the id of a point, 0 for none
    int parentY = 0;
};

class TitleFigure {
  public:
    TitleFigure();

    // Draws the figure in white at this moment of its clock.
    void draw(const BitmapWrapper& target) const;

    // Where a joint is now, in pixels, before the figure is lifted by `offsetY`. Throws std::out_of_range for an id
    // that the figure does not use.
    Pixel position(int id) const;

    std::vector<int> pointIds;
    std::map<int, FigurePoint> points;
    // In drawing order, by the ids of points.
    std::vector<std::pair<int, int>> lines;
    std::vector<std::pair<int, int>> boxes;  // outlines of rectangles
    std::vector<int> dots;
    float clock = 0.0f;  // the phase of all motion, in radians; whoever shows the figure drives it
    float scale = 2.5f;  // pixels to a unit
    int offsetY = -300;
    int dotSize = 2;

  private:
    Pixel liftedPosition(int id) const;
    void drawDot(const BitmapWrapper& target, Pixel at) const;
};

}  // namespace vandrel
