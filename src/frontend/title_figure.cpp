#include "frontend/title_figure.h"

#include <array>
#include <cmath>

#include "base/checked.h"
#include "presentation/colours.h"
#include "presentation/drawing.h"

namespace vandrel {

namespace {

constexpr float lineThickness = 2.0f;

struct NumberedPoint {
    int id;
    FigurePoint point;
};

// x, y; wobbleX, wobbleY; phaseX, phaseY; parentX, parentY
constexpr std::array<NumberedPoint, 19> figurePoints{{
    {1, {100, 0, 40, 30, 0.0f, 3.0f, 0, 3}},  {2, {200, 0, 40, 30, 3.0f, 0.0f, 0, 4}},
    {3, {100, 300, 60, 5, 0.0f, 1.0f, 0, 0}}, {4, {200, 300, 30, 5, 1.0f, 2.0f, 0, 0}},
    {5, {150, 300, 20, 5, 0.0f, 1.0f, 0, 0}}, {6, {150, 260, 10, 5, 2.0f, 1.0f, 0, 0}},
    {7, {-20, -30, 0, 0, 0.0f, 0.0f, 6, 6}},  {8, {20, 0, 0, 0, 0.0f, 0.0f, 6, 6}},
    {9, {150, 50, 10, 0, 0.0f, 0.0f, 0, 5}},  {10, {-20, 35, 0, 5, 0.0f, 0.0f, 9, 9}},
    {11, {20, 35, 0, 8, 0.0f, 2.0f, 9, 9}},   {12, {-10, 1, 2, 3, 0.0f, 0.1f, 10, 10}},
    {13, {10, 1, 3, 2, 20.0f, 0.0f, 11, 11}}, {14, {10, 10, 0, 0, 0.0f, 0.0f, 7, 7}},
    {15, {-10, 10, 0, 0, 0.0f, 0.0f, 8, 7}},  {16, {5, 20, 0, 0, 0.0f, 0.0f, 7, 7}},
    {17, {5, -5, 0, 0, 0.0f, 0.0f, 7, 8}},    {18, {-5, -5, 0, 0, 0.0f, 0.0f, 8, 8}},
    {19, {-5, 20, 0, 0, 0.0f, 0.0f, 8, 7}},
}};

}  // namespace

TitleFigure::TitleFigure()
    : lines{{3, 4}, {4, 2}, {3, 1}, {5, 6}, {5, 9}, {9, 10}, {9, 11}, {12, 10}, {13, 11}, {16, 17}, {18, 17}, {18, 19}},
      boxes{{7, 8}},
      dots{14, 15} {
    pointIds.reserve(figurePoints.size());
    for (const auto& [id, point] : figurePoints) {
        pointIds.push_back(id);
        points.emplace(id, point);
    }
}

Pixel TitleFigure::position(int id) const {
    const FigurePoint& point = checkedKey(points, id);
    // Each joint is cut to whole pixels before the next hangs from it.
    const int baseX = point.parentX == 0 ? 0 : position(point.parentX).x;
    const int baseY = point.parentY == 0 ? 0 : position(point.parentY).y;
    const auto along = [this](float phase, int wobble, int rest, int base) {
        return static_cast<int>(std::sin(clock + phase) * static_cast<float>(wobble) * scale +
                                static_cast<float>(rest) * scale + static_cast<float>(base));
    };
    return {along(point.phaseX, point.wobbleX, point.x, baseX), along(point.phaseY, point.wobbleY, point.y, baseY)};
}

Pixel TitleFigure::liftedPosition(int id) const {
    return position(id) + Pixel{0, offsetY};
}

void TitleFigure::drawDot(const BitmapWrapper& target, Pixel at) const {
    if (dotSize == 1) {
        putPixel(target, at.x, at.y, toColour(white));
        return;
    }
    const Pixel corner = at - Pixel{dotSize / 2, dotSize / 2};
    drawFilledRectangle(target, corner.x, corner.y, corner.x + dotSize, corner.y + dotSize, toColour(white));
}

void TitleFigure::draw(const BitmapWrapper& target) const {
    for (const auto& [first, second] : lines) {
        const Pixel from = liftedPosition(first);
        const Pixel to = liftedPosition(second);
        drawLine(target, from.x, from.y, to.x, to.y, toColour(white), lineThickness);
    }
    for (const auto& [first, second] : boxes) {
        const Pixel from = liftedPosition(first);
        const Pixel to = liftedPosition(second);
        drawRectangle(target, from.x, from.y, to.x, to.y, toColour(white), lineThickness);
    }
    for (const int id : dots) {
        drawDot(target, liftedPosition(id));
    }
}

}  // namespace vandrel
