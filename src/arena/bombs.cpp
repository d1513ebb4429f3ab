// The bomb pass: fuses, rockets in flight, crumbling walls.
#include "arena/game.h"
#include "base/version.h"
#include "match/options/game_options.h"
#include "players/player.h"
#include "presentation/play_sample.h"

namespace vandrel {

namespace {

constexpr int rocketStepFrames = 3;
constexpr int oneStepAPassFrom = replayVersion(0, 95, 15);

bool isWaiting(const Bomb& bomb, const Player& owner) {
    return (bomb.kind == BombKind::Steered || bomb.kind == BombKind::Armed) && owner.remoteActive;
}

bool isFreeForRocket(const Game& game, Square square, const Player& owner) {
    return !hasBomb(square) && squareGrid.at(square) == SquareKind::Empty && bonusGrid.at(square) == 0 &&
           !game.isPlayerOnSquare(square.x, square.y, &owner) && !game.isSquareBlocked(square, Blocked::All, &owner);
}

void flyRocket(Game& game, Square square, const Player& owner) {
    Bomb& rocket = bombGrid.edit(square);
    if (rocket.movedThisFrame) {
        return;
    }
    ++rocket.rocketStep;
    if (rocket.rocketStep < scaledFrames(rocketStepFrames)) {
        return;
    }
    const Square next = square + directionOf(rocket.direction);
    if (!isFreeForRocket(game, next, owner)) {
        rocket.kind = BombKind::Ticking;  // the flight is over, and the fuse runs from the next frame on
        return;
    }
    Bomb& moved = bombGrid.edit(next);
    moved = rocket;
    moved.rocketStep = 0;
    moved.movedThisFrame = !game.replay.isOlderThan(oneStepAPassFrom);
    rocket.owner.reset();
}

void burnFuse(Game& game, Square square, const std::shared_ptr<Player>& owner) {
    Bomb& bomb = bombGrid.edit(square);
    const int fuse = bomb.fuse;
    --bomb.fuse;
    if (fuse >= 1) {
        return;
    }
    playSample(SampleIds::Explosion1, fullVolume);
    --owner->bombsPlaced;
    game.explodeBomb(square, owner);
    bomb.owner.reset();
}

void updateBomb(Game& game, Square square, const std::shared_ptr<Player>& owner) {
    Bomb& bomb = bombGrid.edit(square);
    if (squareGrid.at(square) == SquareKind::EdgeWall) {
        bomb.fuse = 0;
        bomb.kind = BombKind::Ticking;
        owner->remoteActive = false;
    }
    if (isWaiting(bomb, *owner)) {
        return;
    }
    if (bomb.kind == BombKind::Rocket) {
        flyRocket(game, square, *owner);
    } else {
        burnFuse(game, square, owner);
    }
}

void crumble(Square square) {
    const int kind = squareGrid.at(square);
    if (!isCrumbling(kind)) {
        return;
    }
    const int next = kind + 1;
    const bool crumbled = next == SquareKind::WallCrumbled || next == SquareKind::HardWallCrumbled;
    squareGrid.set(square, crumbled ? SquareKind::Empty : next);
}

}  // namespace

void Game::updateBombs() {
    activeSquares.forEach([](int x, int y) {
        if (isInnerSquare({x, y}) && bombGrid.at(x, y).movedThisFrame) {
            bombGrid.edit(x, y).movedThisFrame = false;
        }
    });
    // Columns from left to right, each from top to bottom. A rocket that steps on to a square behind this one is met
    // again there.
    activeSquares.forEach([this](int x, int y) {
        const Square square{x, y};
        if (!isInnerSquare(square)) {
            activeSquares.clear(x, y);
            return;
        }
        if (const auto owner = bombGrid.at(square).owner.lock()) {
            updateBomb(*this, square, owner);
        }
        crumble(square);
        if (!hasBomb(square) && !isCrumbling(squareGrid.at(square))) {
            activeSquares.clear(x, y);
        }
    });
}

}  // namespace vandrel
