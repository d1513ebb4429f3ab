// The move of snakes in the oldest replays: a step of four pixels a frame, with no loop over pixels and no way-out
// test. Kept only to play those files.
#include <algorithm>
#include <cstdlib>

#include "arena/game.h"
#include "base/numeric.h"
#include "players/player.h"

namespace vandrel {

namespace {

constexpr int oldStep = 4;
constexpr int partDistance = 16;  // pixels of path

int snappedDown(int value) {
    return value / oldStep * oldStep;
}

}  // namespace

void Player::moveOldSnake(int xDir, int yDir) {
    if (snakeHistory.empty() || snakeHistory.back() != position()) {
        snakeHistory.push_back(position());
    }
    if (x % squareSize == 0 && y % squareSize == 0) {
        turnSnake(xDir, yDir);
    }
    const Square heading = directionOf(facing);
    const Pixel front = leadingPixel(position(), facing);
    const Pixel beyond{front.x + heading.x * oldStep, front.y + heading.y * oldStep};
    const Square frontSquare = squareAtPixel(front);
    const Square beyondSquare = squareAtPixel(beyond);
    const int kindBeyond = squareGrid.at(beyondSquare);
    if (kindBeyond == SquareKind::Empty) {
        x = snappedDown(x) + heading.x * oldStep;
        y = snappedDown(y) + heading.y * oldStep;
    } else if (!isIndestructible(kindBeyond)) {
        // Pixel by pixel through a wall: in step again only once it is eaten, or the snake would not get on.
        x += heading.x;
        y += heading.y;
    }
    if (squareGrid.at(frontSquare) != SquareKind::Empty && frontSquare != beyondSquare) {
        eatWall(frontSquare);
    }
    rebuildOldBody();
}

// Walks back along the history, measuring the path between its entries.
void Player::rebuildOldBody() {
    snakeParts.clear();
    Pixel at = position();
    std::size_t next = snakeHistory.size();
    Facing partFacing = facing;
    for (int part = 0; part < snakeLength; ++part) {
        int left = partDistance;
        while (left > 0 && next > 0) {
            const Pixel entry = snakeHistory[next - 1];
            const Square step{signOf(at.x - entry.x), signOf(at.y - entry.y)};
            const int length = std::abs(at.x - entry.x) + std::abs(at.y - entry.y);
            if (length > 0 && (step.x == 0 || step.y == 0)) {
                partFacing = facingOf(step);
            }
            if (length > left) {
                at = {at.x - step.x * left, at.y - step.y * left};
                left = 0;
            } else {
                at = entry;
                left -= length;
                --next;
            }
        }
        snakeParts.emplace_back(at.x, at.y, partFacing);
    }
}

}  // namespace vandrel
