// The one arena: its layers, the players and the teams in it, and the ways from pixels to squares, which are not
// interchangeable. It outlives rounds; each round's set-up fills it anew.
#pragma once

#include <memory>
#include <vector>

#include "arena/layers.h"
#include "arena/team.h"
#include "base/facing.h"
#include "base/vector2.h"

namespace vandrel {

class Player;

extern int grid_squares_x;  // width in squares, outer ring included
extern int grid_squares_y;

extern ActiveSquares activeSquares;
extern SquareGrid squareGrid;
extern Layer<int> bonusGrid;  // the `Bonus` on or under each square
extern BombGrid bombGrid;

extern std::vector<std::shared_ptr<Player>> players;  // humans first, snakes of the computer behind them as they appear
extern std::vector<Team> teams;                       // empty where the mode has none

inline constexpr int squareSize = 32;  // pixels
inline constexpr int halfSquare = 16;

// The square on which the sprite at this pixel position mainly stands: all rules of the game go by it.
constexpr Square squareUnder(Pixel position) {
    return {(position.x + halfSquare) / squareSize, (position.y + halfSquare) / squareSize};
}
// The square of an exact pixel, truncated toward zero.
constexpr Square squareAtPixel(Pixel pixel) {
    return {pixel.x / squareSize, pixel.y / squareSize};
}
constexpr Pixel squareToPixel(Square square) {
    return {square.x * squareSize, square.y * squareSize};
}
// The pixel in the middle of the square.
constexpr Pixel centreOf(Square square) {
    return {square.x * squareSize + halfSquare, square.y * squareSize + halfSquare};
}

// The foremost pixel of a sprite at `position` that looks to `facing`.
constexpr Pixel leadingPixel(Pixel position, Facing facing) {
    switch (facing) {
        case Facing::Right:
            return {position.x + squareSize - 1, position.y + halfSquare};
        case Facing::Up:
            return {position.x + halfSquare, position.y};
        case Facing::Left:
            return {position.x, position.y + halfSquare};
        case Facing::Down:
            break;
    }
    return {position.x + halfSquare, position.y + squareSize - 1};
}

inline int arenaWidthPixels() {
    return grid_squares_x * squareSize;
}
inline int arenaHeightPixels() {
    return grid_squares_y * squareSize;
}
inline bool isInsideGrid(Square square) {
    return square.x >= 0 && square.x < grid_squares_x && square.y >= 0 && square.y < grid_squares_y;
}
inline bool isInnerSquare(Square square) {
    return square.x > 0 && square.x < grid_squares_x - 1 && square.y > 0 && square.y < grid_squares_y - 1;
}
// The corners of the arena inside its outer ring.
inline Square firstInnerSquare() {
    return {1, 1};
}
inline Square lastInnerSquare() {
    return {grid_squares_x - 2, grid_squares_y - 2};
}
inline Square middleSquare() {
    return {grid_squares_x / 2, grid_squares_y / 2};
}

// Called by each set-up with the arena's size in pixels, so that whoever shows it can make a picture of that size. Null
// where nobody looks.
extern void (*onArenaResized)(int width, int height);

// Empties the layers and gives them this size in squares.
void resizeArena(Square size);

// Whether a pillar or an edge wall stands on the square.
inline bool isSolid(Square square) {
    return isIndestructible(squareGrid.at(square));
}

// Whether a live bomb lies on the square.
inline bool hasBomb(Square square) {
    return bombGrid.at(square).isLive();
}

// Opens the plus shape of `radius` squares round the centre: its squares become empty and lose their powerups, edge
// walls never, pillars only with `clearBlocks`.
void clearAround(Square centre, int radius, bool clearBlocks);

}  // namespace vandrel
