#include "arena/bombs_drawing.h"

#include <algorithm>
#include <memory>
#include <unordered_map>

#include "arena/arena.h"
#include "arena/bonus.h"
#include "arena/game.h"
#include "base/checked.h"
#include "match/options/game_options.h"
#include "players/player.h"
#include "presentation/colours.h"
#include "presentation/drawing.h"
#include "presentation/recolour_shader.h"
#include "shell/accessibility.h"

namespace vandrel {

namespace {

using enum BitmapIds;

constexpr int bombFrameCount = 21;
constexpr int animatedFrames = 90;

const std::unordered_map<int, BitmapIds> bonusBitmaps{
    {Bonus::Bomb, B_Bomb},
    {Bonus::Range, B_Range},
    {Bonus::Speed, B_Speed},
    {Bonus::Controller, B_Ctrl},
    {Bonus::Timebomb, B_Tbomb},
    {Bonus::Ghost, B_Ghost},
    {Bonus::Shield, B_ShieldNew},
    {Bonus::Cash, B_Cash},
    {Bonus::Superman, B_SuperNew},
    {Bonus::Stop, B_Stop},
    {Bonus::Snail, B_Snail},
    {Bonus::Snake, B_Snake},
    {Bonus::Annhiliator, B_Anhil},
    {Bonus::Flamethrower, B_Flame},
    {Bonus::RocketLauncher, B_Rocket},
    {Bonus::QuestionShield, B_Quest},
    {Bonus::QuestionGhost, B_Quest},
    {Bonus::QuestionStop, B_Quest},
    {Bonus::QuestionFastIgnition, B_Quest},
    {Bonus::UltraBomb, B_BombAngry},
};

BitmapIds rocketBitmap(Facing direction) {
    switch (direction) {
        case Facing::Right:
            return R_Right;
        case Facing::Up:
            return R_Up;
        case Facing::Left:
            return R_Left;
        case Facing::Down:
            break;
    }
    return R_Down;
}

RecolourSettings bombSettings() {
    RecolourSettings settings;
    settings.baseCol = toColour(black);
    settings.newCol = toColour(accessibility.newBombCol);
    return settings;
}

void drawFlameLayer(const Game& game, const BitmapWrapper& target, int layer) {
    for (const Explosion& explosion : game.explosions) {
        if (explosion.layer != layer) {
            continue;
        }
        const std::shared_ptr<Player> owner = explosion.owner.lock();
        if (!owner) {
            continue;
        }
        const BitmapIds first = owner->annihilator ? Explo1A : Explo1;
        const Pixel corner = squareToPixel(explosion.square());
        drawId(target, first + (layer - 1), corner.x, corner.y);
    }
}

}  // namespace

BitmapIds bombBitmap(const Bomb& bomb) {
    if (bomb.kind == BombKind::Rocket) {
        return rocketBitmap(bomb.direction);
    }
    const int whole = scaledFrames(animatedFrames);
    const int number = std::min(bombFrameCount, 1 + (whole - bomb.fuse) * bombFrameCount / whole);
    return Bomb1 + (number - 1);
}

BitmapIds bonusBitmap(int bonus) {
    return checkedHashKey(bonusBitmaps, bonus);
}

void drawBombs(const BitmapWrapper& target) {
    const bool recolour = accessibility.recolourBombs;
    if (recolour) {
        setTarget(target);
        useRecolourShader(bombSettings());
    }
    activeSquares.forEach([&target](int x, int y) {
        const Bomb& bomb = bombGrid.at(x, y);
        if (bomb.isLive()) {
            const Pixel corner = squareToPixel({x, y});
            drawId(target, bombBitmap(bomb), corner.x, corner.y);
        }
    });
    if (recolour) {
        stopRecolourShader();
    }
}

void drawFlames(const Game& game, const BitmapWrapper& target) {
    for (const int layer : {3, 2, 1}) {
        drawFlameLayer(game, target, layer);
    }
}

}  // namespace vandrel
