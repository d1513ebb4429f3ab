// The powerups: a rounded tile whose colour tells the family (orange bombs, green body, blue guards, violet weapons,
// yellow money, red mischief, black and white for the unknown) and one symbol.
#include "images/powerup_symbols.h"
#include "images/recipe.h"
#include "painter/shapes.h"

namespace vandrel::art {
namespace {

struct Family {
    Colour lit;
    Colour face;
    Colour shade;
};

constexpr Family bombs{palette::fireYellow, {240, 128, 40}, {160, 72, 24}};
constexpr Family body{{184, 232, 120}, {88, 160, 72}, {40, 96, 56}};
constexpr Family guards{palette::iceLight, {56, 104, 208}, {32, 56, 136}};
constexpr Family weapons{{208, 160, 248}, {136, 80, 208}, {76, 40, 140}};
constexpr Family money{palette::fireWhite, {216, 152, 40}, {136, 88, 24}};
constexpr Family mischief{{255, 160, 128}, {184, 40, 48}, {104, 20, 44}};
constexpr Family unknown{palette::white, {40, 34, 52}, palette::stoneMiddle};

Canvas tile(const Family& family, const Canvas& symbol) {
    Canvas canvas(32, 32);
    fill(canvas, rectangle(2, 2, 28, 28, 5), palette::ink);
    fill(canvas, rectangle(3, 3, 26, 26, 4), family.shade);
    fill(canvas, rectangle(3, 3, 25, 25, 4), family.lit);
    fill(canvas, rectangle(5, 5, 22, 22, 3), family.face);
    // What of the symbol passes the tile's edge is cut off.
    const Canvas frame = canvas;
    canvas.draw(symbol);
    for (int y = 0; y < canvas.height(); ++y) {
        for (int x = 0; x < canvas.width(); ++x) {
            if (!frame.visible(x, y)) {
                canvas.set(x, y, clear);
            }
        }
    }
    return canvas;
}

}  // namespace

Pictures paintFamily() {
    return {{"B_Bomb", tile(bombs, symbol::bombPlus())},       {"B_Range", tile(bombs, symbol::rangeArrows())},
            {"B_BombAngry", tile(bombs, symbol::angryBomb())}, {"B_Speed", tile(body, symbol::wingedBoot())},
            {"B_SuperNew", tile(body, symbol::flexedArm())},   {"B_ShieldNew", tile(guards, symbol::shield())},
            {"B_Ghost", tile(guards, symbol::sheetGhost())},   {"B_Ctrl", tile(weapons, symbol::handset())},
            {"B_Tbomb", tile(weapons, symbol::plunger())},     {"B_Flame", tile(weapons, symbol::nozzle())},
            {"B_Rocket", tile(weapons, symbol::rocket())},     {"B_Anhil", tile(weapons, symbol::burstBrick())},
            {"B_Cash", tile(money, symbol::coin())},           {"B_Stop", tile(mischief, symbol::stopSign())},
            {"B_Snail", tile(mischief, symbol::snailShell())}, {"B_Snake", tile(mischief, symbol::coiledSnake())},
            {"B_Quest", tile(unknown, symbol::questionMark())}};
}

}  // namespace vandrel::art
