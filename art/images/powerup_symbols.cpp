#include "images/powerup_symbols.h"

#include <cmath>
#include <numbers>
#include <vector>

#include "painter/pixel_map.h"
#include "painter/shapes.h"

namespace vandrel::art::symbol {
namespace {

using namespace palette;

Canvas blank() {
    return {32, 32};
}

// The small bomb of the bomb powerups; not pure black, which is for real bombs.
void paintBomb(Canvas& canvas, float x, float y, float radius) {
    fill(canvas, circle(x, y, radius), ink);
    fill(canvas, subtract(circle(x, y, radius), circle(x - 1.2f, y - 1.2f, radius)), {64, 72, 96});
    fill(canvas, ellipse(x - radius * 0.35f, y - radius * 0.4f, radius * 0.3f, radius * 0.22f), white);
}

void paintArrow(Canvas& canvas, float x, float y, float radians) {
    const Shape head = polygon({{x + 4, y}, {x, y - 4}, {x, y + 4}});
    fill(canvas, rotated(grown(head, 1), x, y, radians), ink);
    fill(canvas, rotated(head, x, y, radians), white);
}

void paintFlame(Canvas& canvas, float x, float y, float size) {
    const auto tongue = [&](float scale) {
        const float s = size * scale;
        return unite(circle(x, y + size * 0.35f - s * 0.2f + (1 - scale) * size * 0.3f, s * 0.55f),
                     polygon({{x - s * 0.52f, y + size * 0.15f},
                              {x - s * 0.45f, y - s * 0.35f},
                              {x - s * 0.15f, y - s * 0.1f},
                              {x + s * 0.1f, y - s * 0.95f},
                              {x + s * 0.5f, y - s * 0.2f},
                              {x + s * 0.54f, y + size * 0.2f}}));
    };
    fill(canvas, grown(tongue(1.0f), 1), ink);
    fill(canvas, tongue(1.0f), fireRed);
    fill(canvas, tongue(0.8f), fireYellow);
    fill(canvas, tongue(0.45f), white);
}

}  // namespace

Canvas bombPlus() {
    Canvas canvas = blank();
    fill(canvas, polyline({{16, 11}, {18, 7}, {21, 6.5f}}, 1.0f), bone);
    fill(canvas, star(22, 7, 4, 3.6f, 1.3f), white);
    paintBomb(canvas, 14, 17.5f, 7.5f);
    const Shape plus = unite(rectangle(19, 21, 9, 3), rectangle(22, 18, 3, 9));
    fill(canvas, grown(plus, 1), ink);
    fill(canvas, plus, white);
    return canvas;
}

Canvas angryBomb() {
    Canvas canvas = blank();
    for (int ray = 0; ray < 8; ++ray) {
        const float turn = static_cast<float>(ray) * std::numbers::pi_v<float> / 4;
        const float cosine = std::cos(turn), sine = std::sin(turn);
        fill(canvas, taper(16 + cosine * 8.0f, 16 + sine * 8.0f, 16 + cosine * 12, 16 + sine * 12, 2.0f, 0.8f),
             fireRed);
        fill(canvas, taper(16 + cosine * 8.0f, 16 + sine * 8.0f, 16 + cosine * 11, 16 + sine * 11, 1.1f, 0.5f),
             fireWhite);
    }
    paintBomb(canvas, 16, 16, 7.6f);
    fill(canvas, ellipse(13.2f, 12.8f, 2.6f, 2), ink);
    static const Legend face{{'w', white}, {'r', fireRed}, {'k', ink}};
    drawMap(canvas, 11, 12, face,
            {"w........w", "ww......ww", ".www..www.", ".wrw..wrw.", "..ww..ww..", "..........", "...wwww...",
             "..w....w.."});
    return canvas;
}

Canvas rangeArrows() {
    Canvas canvas = blank();
    paintFlame(canvas, 16, 16.5f, 8.0f);
    paintArrow(canvas, 23.5f, 16, 0);
    paintArrow(canvas, 8.5f, 16, std::numbers::pi_v<float>);
    return canvas;
}

Canvas wingedBoot() {
    Canvas canvas = blank();
    const Shape boot = unite(rectangle(14, 8, 8, 13, 1), rectangle(14, 16, 13, 7, 3));
    fill(canvas, boot, fireRed);
    fill(canvas, intersect(boot, rectangle(19, 8, 3, 8)), {168, 40, 24});
    fill(canvas, rectangle(14, 8, 8, 3), bone);
    fill(canvas, rectangle(13, 22, 14, 3, 1), bone);
    canvas.outline();
    static const Legend wing{{'k', ink}, {'w', white}, {'s', steelLight}};
    drawMap(canvas, 3, 8, wing,
            {"...kkkkkk....", ".kkwwwwwwkk..", "kwwwwwwwwwwk.", ".kkkwwwwwwwwk", ".kwwwwwwwwwsk", "..kkkwwwwwssk",
             "..kwwwwwwssk.", "...kkkwwsskk.", "....kwsskk...", ".....kkk....."});
    return canvas;
}

Canvas flexedArm() {
    Canvas canvas = blank();
    const Shape arm = uniteAll({taper(6, 22, 21, 22.5f, 3.6f, 4.0f), ellipse(12.5f, 17.5f, 4.8f, 4.6f),
                                taper(22.5f, 22, 22.5f, 12, 3.4f, 2.4f), rectangle(16.5f, 6, 8.5f, 6.5f, 2.4f)});
    fill(canvas, arm, skinLight);
    fill(canvas, subtract(arm, moved(arm, -1.4f, -1.6f)), skinMiddle);
    canvas.outline();
    canvas.line(16, 21, 18, 19, skinDark);
    canvas.line(10, 16, 12, 14, white);
    for (const int row : {8, 10}) {
        canvas.line(17, row, 20, row, skinDark);
    }
    return canvas;
}

Canvas shield() {
    Canvas canvas = blank();
    const Shape outside =
        polygon({{7, 8}, {12, 8}, {16, 6}, {20, 8}, {25, 8}, {25, 15}, {23, 20}, {16, 26.5f}, {9, 20}, {7, 15}});
    fill(canvas, outside, steelLight);
    fill(canvas, grown(outside, -1.8f), iceLight);
    fill(canvas, intersect(grown(outside, -1.8f), rectangle(16, 0, 16, 32)), iceBlue);
    canvas.outline();
    fill(canvas, unite(rectangle(15, 11, 2, 10), rectangle(12, 13, 8, 2)), white);
    return canvas;
}

Canvas sheetGhost() {
    Canvas canvas = blank();
    const Shape sheet = unite(circle(16, 13.5f, 7.6f), rectangle(8.4f, 13, 15.2f, 10));
    fill(canvas, sheet, iceWhite);
    fill(canvas, intersect(sheet, rectangle(20, 8, 6, 20)), {188, 208, 232});
    for (const int x : {8, 12, 16, 20}) {
        canvas.fillRect(x, 23, 3, 2, x == 20 ? Colour{188, 208, 232} : iceWhite);
        canvas.set(x + 1, 25, iceWhite);
    }
    canvas.outline();
    fill(canvas, ellipse(13.5f, 13.5f, 1.6f, 2.4f), ink);
    fill(canvas, ellipse(19.0f, 13.5f, 1.6f, 2.4f), ink);
    fill(canvas, ellipse(16.2f, 18.5f, 1.6f, 1.3f), ink);
    return canvas;
}

Canvas handset() {
    Canvas canvas = blank();
    canvas.fillRect(20, 5, 2, 7, steelLight);
    fill(canvas, circle(21, 6, 2), fireRed);
    fill(canvas, rectangle(9, 11, 14, 15, 2), steelMiddle);
    fill(canvas, rectangle(9, 11, 12, 13, 2), steelLight);
    canvas.outline();
    fill(canvas, rectangle(11, 13, 8, 4), leafDark);
    fill(canvas, rectangle(12, 14, 3, 1), leafLight);
    fill(canvas, circle(13, 21, 2.3f), fireRed);
    fill(canvas, circle(18.5f, 21, 1.6f), iceBlue);
    canvas.set(12, 20, white);
    return canvas;
}

Canvas plunger() {
    Canvas canvas = blank();
    fill(canvas, rectangle(9, 6, 14, 3, 1), bone);
    fill(canvas, rectangle(14.5f, 8, 3, 8), steelLight);
    fill(canvas, rectangle(7, 15, 18, 11, 1), fireRed);
    fill(canvas, rectangle(7, 15, 18, 3, 1), fireOrange);
    fill(canvas, rectangle(22, 16, 3, 10), {168, 40, 24});
    canvas.outline();
    fill(canvas, rectangle(10, 19.5f, 12, 4, 1), bone);
    canvas.line(12, 21, 19, 21, ink);
    return canvas;
}

Canvas nozzle() {
    Canvas canvas = blank();
    const Shape gun = unite(rectangle(4, 15, 10, 5, 1), polygon({{13, 14}, {17, 12.5f}, {17, 22.5f}, {13, 21}}));
    fill(canvas, unite(gun, polygon({{5, 19}, {10, 19}, {9, 26}, {5, 26}})), steelMiddle);
    fill(canvas, rectangle(4, 15, 12, 2), steelLight);
    canvas.outline();
    const Shape blaze = polygon({{17, 16},
                                 {20, 11},
                                 {21.5f, 13},
                                 {26, 8},
                                 {25, 13},
                                 {29, 14.5f},
                                 {26, 17.5f},
                                 {29, 21},
                                 {24.5f, 21},
                                 {25, 26},
                                 {21, 22},
                                 {19, 23},
                                 {17, 19.5f}});
    fill(canvas, grown(blaze, 0.8f), ink);
    fill(canvas, blaze, fireRed);
    fill(canvas, grown(blaze, -1.3f), fireYellow);
    fill(canvas, ellipse(20, 17.5f, 2.2f, 2.0f), white);
    return canvas;
}

Canvas rocket() {
    Canvas canvas = blank();
    const float turn = -std::numbers::pi_v<float> / 4;
    const auto tilted = [&](Shape shape) { return rotated(std::move(shape), 16, 16, turn); };
    const Shape hull = polygon({{9, 12.5f}, {20, 12.5f}, {25, 14}, {28.5f, 16}, {25, 18}, {20, 19.5f}, {9, 19.5f}});
    fill(canvas,
         tilted(unite(polygon({{8, 8}, {12, 8}, {16, 13}, {8, 13}}), polygon({{8, 24}, {12, 24}, {16, 19}, {8, 19}}))),
         fireRed);
    fill(canvas, tilted(hull), steelLight);
    fill(canvas, tilted(intersect(hull, rectangle(0, 16.5f, 32, 5))), steelMiddle);
    fill(canvas, tilted(intersect(hull, rectangle(23, 8, 9, 16))), fireRed);
    fill(canvas, tilted(polygon({{8, 13.5f}, {3, 16}, {8, 18.5f}})), fireYellow);
    canvas.outline();
    fill(canvas, tilted(circle(18, 16, 2.2f)), ink);
    fill(canvas, tilted(circle(18, 16, 1.3f)), iceLight);
    return canvas;
}

Canvas burstBrick() {
    Canvas canvas = blank();
    static const Legend bricks{{'l', brickLight}, {'b', brickMiddle}, {'d', brickDark}, {'m', mortar}};
    for (const int y : {9, 14, 19}) {
        const int shift = y == 14 ? 5 : 0;
        for (int x = 5; x < 27; ++x) {
            const bool joint = (x - 5 + shift) % 10 == 9;
            drawMap(canvas, x, y, bricks,
                    joint ? PixelRows{"m", "m", "m", "m", "m"} : PixelRows{"l", "b", "b", "d", "m"});
        }
    }
    canvas.outline();
    fill(canvas, star(16, 16.5f, 8, 9.4f, 5.0f, 0.2f), ink);
    fill(canvas, star(16, 16.5f, 8, 8.2f, 4.2f, 0.2f), iceLight);
    fill(canvas, star(16, 16.5f, 8, 5.8f, 3.0f, 0.2f), white);
    return canvas;
}

Canvas coin() {
    Canvas canvas = blank();
    fill(canvas, circle(16, 16, 9.8f), goldDark);
    fill(canvas, circle(15.6f, 15.6f, 9.0f), gold);
    fill(canvas, ring(circle(15.8f, 15.8f, 7.2f), 1.1f), goldDark);
    fill(canvas, subtract(circle(16, 16, 9.8f), circle(16.8f, 16.8f, 9.8f)), fireWhite);
    canvas.outline();
    static const Legend mark{{'k', {112, 72, 16}}};
    drawMap(canvas, 12, 11, mark,
            {"kk....kk", "kk....kk", "kk....kk", ".kk..kk.", ".kk..kk.", ".kk..kk.", "..kkkk..", "..kkkk..", "...kk...",
             "...kk..."});
    canvas.line(10, 9, 12, 7, white);
    return canvas;
}

Canvas stopSign() {
    Canvas canvas = blank();
    const auto octagon = [](float radius) {
        std::vector<Point> points;
        for (int corner = 0; corner < 8; ++corner) {
            const float turn = (static_cast<float>(corner) + 0.5f) * std::numbers::pi_v<float> / 4;
            points.push_back({16 + radius * std::cos(turn), 16 + radius * std::sin(turn)});
        }
        return polygon(points);
    };
    fill(canvas, octagon(11.4f), white);
    fill(canvas, octagon(9.6f), fireRed);
    canvas.outline();
    // A raised hand.
    static const Legend hand{{'w', white}};
    drawMap(canvas, 11, 9, hand,
            {"....w.....", "..w.w.w...", "..w.w.w.w.", "..w.w.w.w.", "..w.w.w.w.", "..wwwwwww.", "w.wwwwwww.",
             "wwwwwwwww.", ".wwwwwwww.", "..wwwwwww.", "...wwwww..", "...wwwww..", "...wwwww.."});
    return canvas;
}

Canvas snailShell() {
    Canvas canvas = blank();
    fill(canvas, unite(rectangle(5, 22, 22, 4, 2), capsule(25, 23, 26, 16, 1.8f)), leafLight);
    canvas.outline();
    fill(canvas, circle(14.5f, 15.5f, 8.8f), ink);
    fillLit(canvas, circle(14.5f, 15.5f, 7.9f), {fireYellow, fireOrange, brickMiddle}, 8);
    std::vector<Point> whorl;
    for (int step = 0; step <= 30; ++step) {
        const float part = static_cast<float>(step) / 30.0f;
        const float turn = 1.0f + part * 10.0f, far = 6.6f * (1 - part);
        whorl.push_back({14.5f + far * std::cos(turn), 15.5f + far * std::sin(turn)});
    }
    fill(canvas, polyline(whorl, 0.8f), brickDark);
    canvas.set(26, 15, ink);
    canvas.set(25, 15, white);
    return canvas;
}

Canvas coiledSnake() {
    Canvas canvas = blank();
    for (const float y : {23.0f, 18.5f}) {
        const Shape coil = ellipse(15.0f, y, y > 20 ? 9.5f : 7.0f, 3.4f);
        fill(canvas, grown(coil, 1), ink);
        fill(canvas, coil, leafLight);
        fill(canvas, intersect(coil, rectangle(4, y + 0.5f, 24, 4)), leafDark);
    }
    const Shape neck = polyline({{14, 18}, {11, 14}, {13, 10}, {18, 9}}, 2.4f);
    const Shape head = ellipse(19, 9.5f, 4.8f, 3.6f);
    fill(canvas, grown(unite(neck, head), 1), ink);
    fill(canvas, unite(neck, head), leafLight);
    canvas.fillRect(18, 7, 3, 3, white);
    canvas.fillRect(19, 8, 2, 2, ink);
    canvas.line(24, 11, 26, 11, fireWhite);
    canvas.set(27, 10, fireWhite);
    canvas.set(27, 12, fireWhite);
    return canvas;
}

Canvas questionMark() {
    Canvas canvas = blank();
    static const Legend mark{{'w', white}};
    drawMap(canvas, 10, 7, mark,
            {"...wwwwww...", "..wwwwwwww..", ".wwww..wwww.", ".www....www.", ".www....www.", "........www.",
             ".......wwww.", "......wwww..", ".....wwww...", ".....www....", ".....www....", "............",
             "............", ".....www....", ".....www....", ".....www...."});
    canvas.outline();
    return canvas;
}

}  // namespace vandrel::art::symbol
