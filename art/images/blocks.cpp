// What never breaks: the steel plate of the edge and of the closing walls (Block3), the stone pillar of the grid
// (Block4), and a variant of each (Block1, Block2). They fill the whole square and have bevels instead of outlines, so
// that rows join.
#include "images/recipe.h"
#include "painter/noise.h"
#include "painter/shapes.h"

namespace vandrel::art {
namespace {

constexpr int size = 32;

// A square frame `inset` pixels in, lit on its upper and left side.
void paintBevel(Canvas& canvas, int inset, Colour lit, Colour shade) {
    const int last = size - 1 - inset;
    canvas.line(inset, last, last, last, shade);
    canvas.line(last, inset, last, last, shade);
    canvas.line(inset, inset, last - 1, inset, lit);
    canvas.line(inset, inset, inset, last - 1, lit);
}

void paintRivet(Canvas& canvas, int x, int y) {
    canvas.fillRect(x, y, 3, 3, palette::steelMiddle);
    canvas.fillRect(x + 1, y + 1, 2, 2, palette::steelDark);
    canvas.fillRect(x, y, 2, 2, palette::white);
}

// Turned or mirrored it is the same plate: four rivets, no lettering.
Canvas steelPlate(bool crossed) {
    constexpr Colour face{176, 184, 204};
    Canvas canvas(size, size, face);
    paintBevel(canvas, 0, palette::steelLight, palette::steelDark);
    paintBevel(canvas, 1, palette::steelLight, palette::steelDark);
    paintBevel(canvas, 2, palette::steelLight, palette::steelMiddle);
    paintBevel(canvas, 8, palette::steelMiddle, palette::steelLight);
    canvas.fillRect(9, 9, 14, 14, {164, 172, 194});
    if (crossed) {
        canvas.line(10, 10, 21, 21, palette::steelMiddle);
        canvas.line(21, 10, 10, 21, palette::steelMiddle);
    }
    for (const int x : {4, 25}) {
        for (const int y : {4, 25}) {
            paintRivet(canvas, x, y);
        }
    }
    return canvas;
}

Canvas stonePillar(std::uint32_t seed, bool cracked) {
    constexpr Colour top{140, 136, 130};
    Canvas canvas(size, size, palette::stoneDark);
    paintBevel(canvas, 0, palette::stoneMiddle, {44, 42, 48});
    paintBevel(canvas, 1, palette::stoneMiddle, {52, 50, 56});
    // The clear top face, a little towards the light, over a darker side.
    fill(canvas, rectangle(3, 3, 26, 23, 2), palette::stoneLight);
    fill(canvas, rectangle(4, 4, 25, 22, 2), palette::stoneMiddle);
    fill(canvas, rectangle(4, 4, 24, 21, 2), top);
    Dice dice(seed);
    for (int speck = 0; speck < 9; ++speck) {
        const int x = 6 + dice.below(19), y = 6 + dice.below(16);
        canvas.line(x, y, x + 1 + dice.below(2), y, dice.chance(0.5f) ? palette::stoneLight : palette::stoneMiddle);
    }
    if (cracked) {
        canvas.line(20, 6, 17, 10, palette::stoneDark);
        canvas.line(17, 10, 19, 13, palette::stoneDark);
    }
    return canvas;
}

}  // namespace

Pictures paintFamily() {
    return {{"Block1", steelPlate(true)},
            {"Block2", stonePillar(7, true)},
            {"Block3", steelPlate(false)},
            {"Block4", stonePillar(3, false)}};
}

}  // namespace vandrel::art
