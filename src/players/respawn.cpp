// The dead: flags dropped, the wait, and the way back.
#include <fmt/format.h>

#include "arena/game.h"
#include "base/numeric.h"
#include "base/version.h"
#include "match/options/game_options.h"
#include "players/player.h"

namespace vandrel {

namespace {

constexpr int respawnRoomRadius = 2;  // squares opened each way
constexpr int clearedSquaresFrom = replayVersion(0, 0, 9);

bool comesBackTowardBase() {
    switch (gameOptions.gameMode) {
        case GameMode::CaptureTheFlag:
        case GameMode::BattleRoyale:
        case GameMode::KingOfTheHill:
        case GameMode::Everything:
            return true;
        default:
            return false;
    }
}

// Teams 0 and 1 have their base on the left and right edge and so walk along y in its column, the others along x in its
// row. The base ends the walk even if it is solid.
Square walkToBase(Square square, int teamIndex) {
    if (teamIndex < 0) {
        return square;
    }
    const Square base = teams.at(static_cast<std::size_t>(teamIndex)).base();
    const bool alongY = teamIndex < 2;
    while (square != base && isSolid(square)) {
        if (alongY) {
            square = {base.x, approach(square.y, base.y, 1)};
        } else {
            square = {approach(square.x, base.x, 1), base.y};
        }
    }
    return square;
}

// Turns along x and along y alternate, x first; a turn whose axis is in the middle moves nothing.
Square walkToMiddle(Square square) {
    const Square middle = middleSquare();
    bool alongX = true;
    while (square != middle && isSolid(square)) {
        if (alongX) {
            square.x = approach(square.x, middle.x, 1);
        } else {
            square.y = approach(square.y, middle.y, 1);
        }
        alongX = !alongX;
    }
    return square;
}

}  // namespace

Square Player::respawnPosition() const {
    const Square start{startX, startY};
    return comesBackTowardBase() ? walkToBase(start, team) : walkToMiddle(start);
}

void Player::updateDead(const PackagedReplayData& replayData) {
    for (Flag& flag : game->flags) {
        if (flag.carrier.lock().get() == this) {
            flag.carrier.reset();
        }
    }
    if (isAI || !isRespawningAllowed()) {
        return;
    }
    const bool ringWaits = respawnTimer > respawnRingFrames() * gameOptions.frameMultiplier;
    if (ringWaits && game->isArenaAlmostClosed()) {
        return;
    }
    --respawnTimer;
    if (respawnTimer < 1) {
        respawn(replayData);
    }
}

void Player::respawn(const PackagedReplayData& replayData) {
    const Square back = respawnPosition();
    const Pixel corner = squareToPixel(back);
    x = corner.x;
    y = corner.y;
    reset();
    takeRunningShield();
    if (!replayData.isOlderThan(clearedSquaresFrom)) {
        clearAround(back, respawnRoomRadius, false);
    } else if (squareGrid.at(back) != SquareKind::Empty) {
        ghost = true;
        shield = false;
    }
}

}  // namespace vandrel
