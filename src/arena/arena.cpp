#include "arena/arena.h"

#include <cstdlib>

#include "players/player.h"

namespace vandrel {

int grid_squares_x = 0;
int grid_squares_y = 0;

ActiveSquares activeSquares;
SquareGrid squareGrid(activeSquares);
Layer<int> bonusGrid;
BombGrid bombGrid(activeSquares);

// The teams come first: a player who goes at exit leaves its team.
std::vector<Team> teams;
std::vector<std::shared_ptr<Player>> players;

void (*onArenaResized)(int width, int height) = nullptr;

void resizeArena(Square size) {
    grid_squares_x = size.x;
    grid_squares_y = size.y;
    activeSquares.resize(size.x, size.y);
    squareGrid.resize(size.x, size.y);
    bonusGrid.resize(size.x, size.y);
    bombGrid.resize(size.x, size.y);
}

void clearAround(Square centre, int radius, bool clearBlocks) {
    const auto clear = [&](Square square) {
        if (!isInsideGrid(square)) {
            return;
        }
        const int kind = squareGrid.at(square);
        if (kind == SquareKind::EdgeWall || (kind == SquareKind::GridBlock && !clearBlocks)) {
            return;
        }
        squareGrid.set(square, SquareKind::Empty);
        bonusGrid.at(square) = 0;
    };
    for (int step = -radius; step <= radius; ++step) {
        clear({centre.x + step, centre.y});
        clear({centre.x, centre.y + step});
    }
}

}  // namespace vandrel
