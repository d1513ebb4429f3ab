// How a snake of the computer looks ahead: every path of its next squares, to a fixed number of steps. A decision
// prepares one board and searches it from each direction that is open to the snake; the choice between them stands in
// snake_choice.
#pragma once

#include <cstddef>
#include <vector>

#include "base/vector2.h"

namespace vandrel {

class Game;
class Player;

struct CheckDirectionResult {
    int score = 0;  // of the best path
    int paths = 0;  // path ends counted, wrapped around if there are too many for an int

    friend bool operator==(const CheckDirectionResult&, const CheckDirectionResult&) = default;
};

// The part of the arena that a path of `depth` squares from the head can reach, with all that a decision cannot change
// worked out once: what ends a path, what a square is worth, who stands there.
class SnakeBoard {
  public:
    // Reads the layers, `players` and `gameOptions` as they stand. `wallValue` is the worth of a breakable wall.
    SnakeBoard(const Game& game, const Player& self, Square head, int depth, int wallValue);

    // Searches all paths that leave the head by the square beside it in `direction`. Each free square counts 1, each
    // breakable wall `wallValue`, and a human, who is no ghost, more the sooner a path gets there. A path ends after
    // `depth` squares, where it is blocked (2 off), under a closing wall (1 off), or where it meets itself. Several
    // threads may search at once. Throws std::out_of_range where a path leaves the grid.
    CheckDirectionResult checkDirection(Square direction) const;

  private:
    enum class Kind : unsigned char { Open, Stop, Head, Outside };

    struct Cell {
        // What a path gains that ends here: the loss where it must, else the gain as the very last square.
        int score = 0;
        int worth = 0;           // of the human here, once more for each step that is left
        unsigned char ends = 0;  // path ends counted with this as the very last square
        Kind kind = Kind::Outside;
    };
    class Walk;

    Cell* find(Square square);
    void layGround(int wallValue);
    void layCursors(const Game& game);
    void laySnakes();
    void layHumans(const Player& self);
    void layHead();

    Square head_;
    int depth_;
    Square min_;  // corner of the window round the head, which may be one square off the grid
    int width_;   // of the window, in squares
    int height_;
    std::vector<Cell> cells_;  // columns, x first
};

}  // namespace vandrel
