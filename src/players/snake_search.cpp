#include "players/snake_search.h"

#include <algorithm>
#include <array>
#include <limits>
#include <stdexcept>

#include "arena/arena.h"
#include "arena/game.h"
#include "match/options/game_options.h"
#include "players/player.h"

namespace vandrel {

namespace {

constexpr int blockedScore = -2;
constexpr int cursorScore = -1;
constexpr int specialWorth = 10;           // of a human with another bomb, top speed or ultrabomb
constexpr unsigned char innerEnds = 4;     // a last square counts each of its neighbours
constexpr unsigned char outsideEnds = 64;  // more than the neighbours of any square can have together
constexpr int noScore = std::numeric_limits<int>::min() / 2;

int worthOf(const Player& human) {
    if (human.ghost) {
        return 0;
    }
    const bool special = human.bombType != BombType::Normal || human.speed == gameOptions.speedCap || human.ultraBomb;
    return special ? specialWorth : gameOptions.snakeAggressiveness;
}

[[noreturn]] void throwOffGrid() {
    throw std::out_of_range("invalid vector subscript");
}

}  // namespace

// One search: the path is the marks on its own copy of the cells.
class SnakeBoard::Walk {
  public:
    explicit Walk(const SnakeBoard& board)
        : cells_(board.cells_), offsets_{board.height_, -board.height_, std::ptrdiff_t{1}, std::ptrdiff_t{-1}} {}

    CheckDirectionResult from(std::size_t first, int depth) {
        visit(&cells_[first], depth, 0);
        // No path counts below zero once it has left its first square.
        return {best_, static_cast<int>(ends_)};
    }

  private:
    // Goes on to an open square, with `depth` steps left of which this is one; 2 or more.
    void visit(Cell* cell, int depth, int score) {
        score += cell->score + (depth - 1) * cell->worth;
        if (depth == 2) {
            endBeside(cell, score);
            return;
        }
        const Cell open = *cell;
        *cell = {.score = 0, .worth = 0, .ends = 1, .kind = Kind::Stop};
        for (const std::ptrdiff_t offset : offsets_) {
            Cell* next = cell + offset;
            if (next->kind == Kind::Open) {
                visit(next, depth - 1, score);
            } else {
                end(*next, score);
            }
        }
        *cell = open;
    }

    // The last step of all, to each neighbour at once: most of a search happens here.
    void endBeside(const Cell* cell, int score) {
        const Cell& right = cell[offsets_[0]];
        const Cell& left = cell[offsets_[1]];
        const Cell& down = cell[offsets_[2]];
        const Cell& up = cell[offsets_[3]];
        const unsigned ends = static_cast<unsigned>(right.ends + left.ends + down.ends + up.ends);
        if (ends >= outsideEnds) {
            throwOffGrid();
        }
        ends_ += ends;
        best_ = std::max(best_, score + std::max(std::max(right.score, left.score), std::max(down.score, up.score)));
    }

    void end(const Cell& cell, int score) {
        if (cell.kind == Kind::Outside) {
            throwOffGrid();
        }
        ends_ += cell.ends;
        best_ = std::max(best_, score + cell.score);
    }

    std::vector<Cell> cells_;
    std::array<std::ptrdiff_t, 4> offsets_;
    int best_ = 0;
    unsigned ends_ = 0;
};

SnakeBoard::SnakeBoard(const Game& game, const Player& self, Square head, int depth, int wallValue)
    : head_(head),
      depth_(depth),
      min_{std::max(head.x - depth, -1), std::max(head.y - depth, -1)},
      width_(std::min(head.x + depth, grid_squares_x) - min_.x + 1),
      height_(std::min(head.y + depth, grid_squares_y) - min_.y + 1),
      cells_(static_cast<std::size_t>(width_) * static_cast<std::size_t>(height_)) {
    // The order is that of the tests: a snake blocks under a cursor too, and a human on either is not reached.
    layGround(wallValue);
    layCursors(game);
    laySnakes();
    layHumans(self);
    layHead();
}

// Null for a square out of reach or off the grid.
SnakeBoard::Cell* SnakeBoard::find(Square square) {
    const Square place = square - min_;
    if (place.x < 0 || place.x >= width_ || place.y < 0 || place.y >= height_ || !isInsideGrid(square)) {
        return nullptr;
    }
    return &cells_[static_cast<std::size_t>(place.x) * static_cast<std::size_t>(height_) +
                   static_cast<std::size_t>(place.y)];
}

void SnakeBoard::layGround(int wallValue) {
    std::size_t index = 0;
    for (int x = min_.x; x < min_.x + width_; ++x) {
        for (int y = min_.y; y < min_.y + height_; ++y) {
            Cell& cell = cells_[index++];
            if (!isInsideGrid({x, y})) {
                cell = {.score = noScore, .worth = 0, .ends = outsideEnds, .kind = Kind::Outside};
                continue;
            }
            const int kind = squareGrid.at(x, y);
            if (isIndestructible(kind)) {
                cell = {.score = blockedScore, .worth = 0, .ends = 1, .kind = Kind::Stop};
            } else {
                cell = {
                    .score = isBreakableWall(kind) ? wallValue : 1, .worth = 0, .ends = innerEnds, .kind = Kind::Open};
            }
        }
    }
}

void SnakeBoard::layCursors(const Game& game) {
    for (const ShrinkCursor& cursor : game.shrinkCursors) {
        if (Cell* cell = find(cursor.square()); cell != nullptr && cell->kind == Kind::Open) {
            *cell = {.score = cursorScore, .worth = 0, .ends = 1, .kind = Kind::Stop};
        }
    }
}

void SnakeBoard::laySnakes() {
    const auto block = [this](Square square) {
        if (Cell* cell = find(square)) {
            *cell = {.score = blockedScore, .worth = 0, .ends = 1, .kind = Kind::Stop};
        }
    };
    for (const auto& player : players) {
        if (!player->isSnake() || player->dead) {
            continue;
        }
        block(player->square());
        for (const SnakePart& part : player->snakeParts) {
            block(squareOf(part));
        }
    }
}

void SnakeBoard::layHumans(const Player& self) {
    // Of several on one square the first counts, a ghost too: backwards, it is the one that stays.
    for (auto player = players.rbegin(); player != players.rend(); ++player) {
        const Player& human = **player;
        if (&human == &self || human.dead || human.isAI) {
            continue;
        }
        if (Cell* cell = find(human.square()); cell != nullptr && cell->kind == Kind::Open) {
            const int worth = worthOf(human);
            cell->score += worth - cell->worth;
            cell->worth = worth;
        }
    }
}

void SnakeBoard::layHead() {
    for (const Facing facing : facingOrder) {
        if (Cell* cell = find(head_ + directionOf(facing)); cell != nullptr && cell->kind == Kind::Open) {
            --cell->ends;
        }
    }
    *find(head_) = {.score = noScore, .worth = 0, .ends = 0, .kind = Kind::Head};
}

CheckDirectionResult SnakeBoard::checkDirection(Square direction) const {
    if (depth_ == 0) {
        return {0, 1};
    }
    const Square first = head_ + direction - min_;
    const std::size_t index =
        static_cast<std::size_t>(first.x) * static_cast<std::size_t>(height_) + static_cast<std::size_t>(first.y);
    const Cell& cell = cells_[index];
    if (cell.kind == Kind::Outside) {
        throwOffGrid();
    }
    if (cell.kind == Kind::Stop) {
        return {cell.score, cell.ends};
    }
    if (depth_ == 1) {
        return {std::max(0, cell.score), cell.ends};
    }
    return Walk(*this).from(index, depth_);
}

}  // namespace vandrel
