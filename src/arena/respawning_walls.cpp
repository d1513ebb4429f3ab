// Walls that come back when the arena has become too empty, so that a long round keeps cover.
#include <fmt/format.h>

#include <algorithm>
#include <vector>

#include "arena/bonus.h"
#include "arena/game.h"
#include "base/random.h"
#include "base/version.h"
#include "match/options/game_options.h"
#include "players/player.h"
#include "replay/unit/field_check.h"
#include "replay/unit/streams.h"
#include "shell/assertion.h"
#include "shell/log.h"

namespace vandrel {

namespace {

constexpr int pendingWallFrames = 120;  // not scaled by the rate
constexpr float edgeColumnFactor = 0.75f;
constexpr int respawningWallsFrom = replayVersion(0, 96, 7);
constexpr int scoredSquaresFrom = replayVersion(0, 96, 10);
constexpr int testedSquaresFrom = replayVersion(0, 96, 11);

struct SquareCount {
    int free = 0;
    int walls = 0;
};

SquareCount countInnerSquares() {
    SquareCount count;
    for (int x = 1; x <= grid_squares_x - 2; ++x) {
        for (int y = 1; y <= grid_squares_y - 2; ++y) {
            const int kind = squareGrid.at(x, y);
            count.free += kind == SquareKind::Empty ? 1 : 0;
            count.walls += isBreakableWall(kind) ? 1 : 0;
        }
    }
    return count;
}

bool columnHoldsEdge(int x, int y) {
    for (int row = std::max(y - 1, 0); row <= std::min(y + 1, grid_squares_y - 1); ++row) {
        if (squareGrid.at(x, row) == SquareKind::EdgeWall) {
            return true;
        }
    }
    return false;
}

// High far from players and away from edge walls.
float wallScore(const Game& game, Square square, const std::vector<Square>& living) {
    const bool pending = std::any_of(game.pendingWalls.begin(), game.pendingWalls.end(),
                                     [&](const PendingWall& wall) { return wall.square() == square; });
    if (pending || (!game.replay.isOlderThan(testedSquaresFrom) && !canRespawnWallAt(game, square))) {
        return 0.0f;
    }
    float score = leastSquaredDistance(square, living);
    for (int x = std::max(square.x - 1, 0); x <= std::min(square.x + 1, grid_squares_x - 1); ++x) {
        if (columnHoldsEdge(x, square.y)) {
            score *= edgeColumnFactor;
        }
    }
    return score;
}

}  // namespace

bool canRespawnWallAt(const Game& game, Square square) {
    return !game.isSquareBlocked(square, Blocked::All) && game.playerOnSquare(square, nullptr) == nullptr &&
           bonusGrid.at(square) == 0;
}

// Where the records have ended none is left for this wall, and it does not stand.
void Game::standWall(const PendingWall& wall) {
    const Square square = wall.square();
    if (replay.playback) {
        if (endMarkSeen) {
            return;
        }
        const char c = static_cast<char>(readByte(replay.input));
        VANDREL_CHECK(c == 'B', "c == 'B'");
        const int bonus = checkedField("wall bonus", readSignedByte(replay.input), 0, bonusCount - 1);
        squareGrid.set(square, SquareKind::Wall);
        bonusGrid.at(square) = bonus;
        return;
    }
    squareGrid.set(square, SquareKind::Wall);
    const int bonus = chooseBonus(false);
    bonusGrid.at(square) = bonus;
    if (replay.writes()) {
        writeByte(replay.output, 'B');
        writeByte(replay.output, bonus);
    }
}

void Game::updatePendingWalls() {
    for (PendingWall& wall : pendingWalls) {
        --wall.frames;
        if (wall.frames < 1 && canRespawnWallAt(*this, wall.square())) {
            standWall(wall);
        }
    }
    std::erase_if(pendingWalls, [](const PendingWall& wall) { return wall.frames < 1; });
}

// The count of walls against its two limits, with hysteresis.
bool Game::wantsMoreWalls() {
    const RespawnWallOptions& options = gameOptions.respawnWallsResolved;
    const SquareCount count = countInnerSquares();
    const int limit = respawnPhaseActive ? options.stopAt : options.startBelow;
    respawnPhaseActive = count.free > options.minFreeSquares && count.walls < limit;
    return respawnPhaseActive;
}

std::optional<Square> Game::chooseWallSquare() {
    if (replay.isOlderThan(scoredSquaresFrom)) {
        Square square;
        square.x = uniformInt(legacyRespawnRng, firstInnerSquare().x, lastInnerSquare().x);
        square.y = uniformInt(legacyRespawnRng, firstInnerSquare().y, lastInnerSquare().y);
        return square;
    }
    const std::vector<Square> living = squaresOfTheLiving();
    return findBestSquare(firstInnerSquare(), lastInnerSquare(),
                          [&](Square square) { return wallScore(*this, square, living); });
}

void Game::updateRespawningWalls() {
    const RespawnWallOptions& options = gameOptions.respawnWallsResolved;
    if (!options.enabled || replay.isOlderThan(respawningWallsFrom)) {
        return;
    }
    updatePendingWalls();
    --respawnCountdown;
    if (respawnCountdown > 0) {
        return;
    }
    respawnCountdown = options.interval;
    if (!wantsMoreWalls()) {
        return;
    }
    const auto square = chooseWallSquare();
    if (!square.has_value()) {
        return;
    }
    if (canRespawnWallAt(*this, *square)) {
        pendingWalls.push_back({square->x, square->y, pendingWallFrames});
    } else {
        logText(fmt::format("Couldn't respawn wall at {{{},{}}}\n", square->x, square->y));
    }
}

}  // namespace vandrel
