// Bomb1 to Bomb21: the life of a bomb. The fuse burns down with a flickering spark, then the ball swells and glows from
// below. The ball is pure black and nothing else is: "Recolour bombs" replaces exactly that colour.
#include <cmath>
#include <string>
#include <vector>

#include "images/recipe.h"
#include "painter/shapes.h"

namespace vandrel::art {
namespace {

constexpr int frames = 21;
constexpr int burning = 15;  // frames in which the fuse burns; in the rest the ball swells
constexpr Colour rimLit{120, 132, 160};
constexpr Colour rimShade{64, 72, 96};

// The way of the fuse out of the ball's neck; the spark walks down it.
Point fuseAt(float part) {
    return {19.5f + 6.0f * part, 7.5f - 4.0f * std::sin(part * 2.6f)};
}

void paintFuse(Canvas& canvas, float length) {
    std::vector<Point> way;
    for (int step = 0; step <= 10; ++step) {
        way.push_back(fuseAt(length * static_cast<float>(step) / 10.0f));
    }
    fill(canvas, polyline(way, 1.6f), palette::ink);
    fill(canvas, polyline(way, 0.8f), palette::boneShade);
}

// The spark turns by an eighth from frame to frame, so that it crackles.
void paintSpark(Canvas& canvas, Point at, int frame) {
    const bool upright = frame % 2 == 0;
    fill(canvas, star(at.x, at.y, 4, upright ? 4.6f : 4.0f, 1.5f, upright ? 0.0f : 0.785f), palette::fireOrange);
    fill(canvas, star(at.x, at.y, 4, upright ? 3.2f : 3.6f, 1.2f, upright ? 0.0f : 0.785f), palette::fireYellow);
    fill(canvas, circle(at.x, at.y, 1.2f), palette::white);
}

void paintBall(Canvas& canvas, float radius, int glow) {
    const float middleX = 16.0f, middleY = 30.0f - radius;
    const Shape ball = circle(middleX, middleY, radius);
    fill(canvas, ball, rimShade);
    fill(canvas, subtract(ball, circle(middleX + 2.2f, middleY + 2.2f, radius)), rimLit);
    fill(canvas, circle(middleX + 0.3f, middleY + 0.3f, radius - 1.5f), palette::black);
    // The glow eats upwards from the ground, hottest at the rim.
    static constexpr Colour heat[] = {palette::fireRed, palette::fireOrange, palette::fireYellow};
    for (int ring = 0; ring < 3 && glow > ring * 2; ++ring) {
        const float lift = static_cast<float>(glow - ring * 2) * 1.1f + 0.4f;
        fill(canvas, subtract(ball, moved(circle(middleX, middleY, radius + 0.6f), 0, -lift)), heat[ring]);
    }
    fill(canvas, rotated(ellipse(middleX - 4.5f, middleY - 4.8f, 3.4f, 2.0f), middleX - 4.5f, middleY - 4.8f, -0.75f),
         palette::steelLight);
}

Canvas bomb(int frame) {
    Canvas canvas(32, 32);
    const bool swelling = frame > burning;
    const float radius = swelling && frame % 2 == 0 ? 12.0f : (frame > 18 ? 12.0f : 11.4f);
    const float left = swelling ? 0.0f : 1.0f - static_cast<float>(frame - 1) / static_cast<float>(burning);
    paintFuse(canvas, left + 0.08f);
    paintBall(canvas, radius, swelling ? frame - burning : 0);
    const Shape neck = rotated(rectangle(16.5f, 5.5f, 6, 4, 1), 19.5f, 7.5f, 0.45f);
    fill(canvas, grown(neck, 1), palette::ink);
    fillLit(canvas, neck, palette::steel, 2);
    Point spark = fuseAt(left + 0.08f);
    paintSpark(canvas, spark, frame);
    return canvas;
}

}  // namespace

Pictures paintFamily() {
    Pictures pictures;
    for (int frame = 1; frame <= frames; ++frame) {
        pictures.push_back({"Bomb" + std::to_string(frame), bomb(frame)});
    }
    return pictures;
}

}  // namespace vandrel::art
