// Snake form: the head moves pixel by pixel along its heading and turns on grid lines only; the body follows 16 pixels
// of path behind, part by part.
#include <algorithm>

#include "arena/game.h"
#include "base/numeric.h"
#include "base/version.h"
#include "match/options/game_options.h"
#include "players/player.h"
#include "shell/assertion.h"

namespace vandrel {

namespace {

constexpr int partSpacing = 16;  // entries of the history, so pixels of path
constexpr int pixelMoveFrom = replayVersion(0, 0, 11);

}  // namespace

void Player::moveSnake(int xDir, int yDir, const PackagedReplayData& replayData, const RecordInput& record) {
    if (replayData.isOlderThan(pixelMoveFrom)) {
        moveOldSnake(xDir, yDir);
        return;
    }
    bool chosen = false;
    const int pixels = getSpeed(replayData);
    for (int i = 0; i < pixels; ++i) {
        if (!stepSnake(xDir, yDir, replayData, record, chosen)) {
            return;
        }
    }
}

// Whether any of the three ways other than back is open.
bool Player::hasWayOut() const {
    return std::any_of(facingOrder.begin(), facingOrder.end(), [&](Facing way) {
        return way != opposite(facing) && !game->isSquareBlocked(square() + directionOf(way), Blocked::SolidOrSnake);
    });
}

// Turns to a side where the input says so and nothing blocks it. Forward and backward are no turn.
void Player::turnSnake(int xDir, int yDir) {
    const Square heading = directionOf(facing);
    const bool sideways = (xDir != 0 || yDir != 0) && xDir != heading.x && yDir != heading.y;
    if (sideways && !game->isSquareBlocked(square() + Square{xDir, yDir}, Blocked::SolidOrSnake)) {
        facing = facingOf({xDir, yDir});
    }
}

// One pixel; false when the snake is at its end.
bool Player::stepSnake(int& xDir, int& yDir, const PackagedReplayData& replayData, const RecordInput& record,
                       bool& chosen) {
    if (snakeHistory.empty() || snakeHistory.back() != position()) {
        snakeHistory.push_back(position());
    }
    const Square here = square();
    const bool onLine = (directionOf(facing).x != 0 ? x : y) % squareSize == 0;
    if (onLine) {
        if (isAI && !replayData.playback && !chosen) {
            aiSnakeControlChoice(xDir, yDir);
            record(xDir, yDir, false, false);
            chosen = true;
        }
        turnSnake(xDir, yDir);
        if (!hasWayOut()) {
            becomeHuman();
            return false;
        }
    }
    VANDREL_CHECK(snakeLength > 0, "snakeLength > 0");
    const Square heading = directionOf(facing);
    int& along = heading.x != 0 ? x : y;
    const Square ahead = squareAtPixel(leadingPixel(position(), facing) + heading);
    if (game->isSquareBlocked(ahead, Blocked::Solid)) {
        // `onLine` was asked before the turn: a snake that has just turned stands on both lines.
        if (!onLine) {
            along = approach(along, heading.x != 0 ? squareToPixel(here).x : squareToPixel(here).y, 1);
        }
    } else if (!(onLine && game->isSquareBlocked(ahead, Blocked::AnySnake, this))) {
        x += heading.x;
        y += heading.y;
    }
    if (along % squareSize == 0 && isBreakableWall(squareGrid.at(here))) {
        eatWall(here);
    }
    rebuildBody();
    return true;
}

void Player::eatWall(Square wall) {
    squareGrid.set(wall, SquareKind::Empty);
    bonusGrid.at(wall) = 0;
    setSnakeLength(snakeLength + 1);
}

// Parts beyond the history pile up on the oldest entry in use.
void Player::rebuildBody() {
    snakeParts.clear();
    auto left = static_cast<std::ptrdiff_t>(snakeHistory.size());
    auto i = left - 1;
    Facing partFacing = facing;
    for (int part = 0; part < snakeLength; ++part) {
        left -= partSpacing;
        if (left >= 1) {
            i -= partSpacing;
            const Pixel from = snakeHistory[static_cast<std::size_t>(i)];
            const Pixel to = snakeHistory[static_cast<std::size_t>(i + 1)];
            partFacing = facingOf({signOf(to.x - from.x), signOf(to.y - from.y)});
        }
        const Pixel at = snakeHistory[static_cast<std::size_t>(i)];
        snakeParts.emplace_back(at.x, at.y, partFacing);
    }
}

}  // namespace vandrel
