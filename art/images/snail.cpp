// What a slowed player turns into: Snail walks tall, SnailDown lies flat and sorry. Facing right, the ground in row 43.
#include <cmath>
#include <vector>

#include "images/recipe.h"
#include "painter/shapes.h"

namespace vandrel::art {
namespace {

constexpr Ramp slime{{168, 216, 112}, palette::leafLight, palette::leafDark};
constexpr Ramp shell{palette::fireYellow, palette::fireOrange, palette::brickMiddle};

void paintShell(Canvas& canvas, float x, float y, float radiusX, float radiusY) {
    const Shape outside = ellipse(x, y, radiusX, radiusY);
    fill(canvas, grown(outside, 1), palette::ink);
    fillLit(canvas, outside, shell, radiusX);
    // The whorl: a spiral from the lip to the heart of the shell.
    std::vector<Point> whorl;
    for (int step = 0; step <= 40; ++step) {
        const float part = static_cast<float>(step) / 40.0f;
        const float turn = 1.3f + part * 11.5f;
        whorl.push_back(
            {x + radiusX * 0.86f * (1 - part) * std::cos(turn), y + radiusY * 0.86f * (1 - part) * std::sin(turn)});
    }
    fill(canvas, polyline(whorl, 0.75f), palette::brickDark);
    canvas.set(static_cast<int>(x - radiusX * 0.55f), static_cast<int>(y - radiusY * 0.6f), palette::fireWhite);
    canvas.set(static_cast<int>(x - radiusX * 0.55f) + 1, static_cast<int>(y - radiusY * 0.6f) - 1, palette::fireWhite);
}

void paintEye(Canvas& canvas, float footX, float footY, float x, float y, bool sorry) {
    const Shape stalk = capsule(footX, footY, x, y, 1.0f);
    fill(canvas, grown(stalk, 1), palette::ink);
    fill(canvas, grown(circle(x, y, 2.6f), 1), palette::ink);
    fill(canvas, stalk, slime.middle);
    fill(canvas, circle(x, y, 2.6f), palette::white);
    fill(canvas, rectangle(std::floor(x), std::floor(y) - (sorry ? 0.0f : 1.0f), 2, 2), palette::ink);
    if (sorry) {
        fill(canvas, intersect(circle(x, y, 2.6f), rectangle(x - 4, y - 4, 8, 3.4f)), slime.dark);
    }
}

Canvas snailTall() {
    Canvas canvas(32, 44);
    const Shape body = unite(unite(taper(3, 41.5f, 22, 40, 1.2f, 3.0f), taper(22, 40, 25, 27, 3.4f, 4.2f)),
                             rectangle(3, 39, 24, 4, 1.8f));
    fillLit(canvas, body, slime, 4);
    canvas.outline();
    paintEye(canvas, 23, 25, 20.0f, 8.0f, false);
    paintEye(canvas, 26, 25, 27.0f, 6.0f, false);
    paintShell(canvas, 12, 25, 10.5f, 13.5f);
    // A small smile and a blush.
    canvas.line(26, 31, 27, 31, palette::ink);
    canvas.set(28, 30, palette::ink);
    canvas.set(25, 29, palette::fireOrange);
    return canvas;
}

Canvas snailFlat() {
    Canvas canvas(32, 44);
    const Shape body = unite(taper(2.5f, 42, 20, 41, 1.0f, 2.0f), capsule(18, 40, 26, 39.5f, 3.0f));
    fillLit(canvas, body, slime, 4);
    canvas.outline();
    paintEye(canvas, 22, 38, 20.5f, 33.5f, true);
    paintEye(canvas, 26, 38, 27.0f, 34.5f, true);
    paintShell(canvas, 11.5f, 34.0f, 9.5f, 7.5f);
    canvas.line(25, 41, 27, 41, palette::ink);
    canvas.set(24, 42, palette::ink);
    return canvas;
}

}  // namespace

Pictures paintFamily() {
    return {{"Snail", snailTall()}, {"SnailDown", snailFlat()}};
}

}  // namespace vandrel::art
