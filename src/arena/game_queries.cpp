// What the rules ask of the round: what blocks a square, what lies near it, who stands there, who is left.
#include <algorithm>

#include "arena/game.h"
#include "base/distance.h"
#include "match/options/game_options.h"
#include "players/player.h"

namespace vandrel {

namespace {

bool isSnakeHeadOn(Square square, const Player* ignoredPlayer, std::shared_ptr<Player>* foundPlayer) {
    for (const auto& player : players) {
        if (player.get() != ignoredPlayer && player->isSnake() && !player->dead && player->square() == square) {
            if (foundPlayer != nullptr) {
                *foundPlayer = player;
            }
            return true;
        }
    }
    return false;
}

bool isSnakeBodyOn(Square square) {
    return std::any_of(players.begin(), players.end(),
                       [&](const auto& player) { return !player->dead && player->hasBodyOn(square); });
}

}  // namespace

bool Game::isSquareBlocked(Square square, int mask, const Player* ignoredPlayer,
                           std::shared_ptr<Player>* foundPlayer) const {
    const int kind = squareGrid.at(square);
    if ((mask & Blocked::Edge) != 0 && kind == SquareKind::EdgeWall) {
        return true;
    }
    if ((mask & Blocked::Block) != 0 && kind == SquareKind::GridBlock) {
        return true;
    }
    if ((mask & Blocked::Wall) != 0 && isBreakableWall(kind)) {
        return true;
    }
    if (Player::snakesInPlay() == 0) {
        return false;
    }
    return ((mask & Blocked::SnakeHead) != 0 && isSnakeHeadOn(square, ignoredPlayer, foundPlayer)) ||
           ((mask & Blocked::SnakeBody) != 0 && isSnakeBodyOn(square));
}

bool Game::hasExplosion(Square square) const {
    return std::any_of(explosions.begin(), explosions.end(),
                       [&](const Explosion& explosion) { return explosion.square() == square; });
}

bool Game::isShrinkCursorAt(Square square) const {
    return std::any_of(shrinkCursors.begin(), shrinkCursors.end(),
                       [&](const ShrinkCursor& cursor) { return cursor.square() == square; });
}

bool Game::isShrinkCursorEntering(Square square) const {
    return std::any_of(shrinkCursors.begin(), shrinkCursors.end(), [&](const ShrinkCursor& cursor) {
        return cursor.square() == square || nextShrinkStep(cursor).first.square() == square;
    });
}

bool Game::isBombNear(Square square, float radius) const {
    for (int x = 1; x <= grid_squares_x - 2; ++x) {
        for (int y = 1; y <= grid_squares_y - 2; ++y) {
            if (squaredDistance({x, y}, square) <= radius * radius && hasBomb({x, y})) {
                return true;
            }
        }
    }
    return false;
}

bool Game::isExplosionNear(Square square, float radius) const {
    return std::any_of(explosions.begin(), explosions.end(), [&](const Explosion& explosion) {
        return squaredDistance(explosion.square(), square) <= radius * radius;
    });
}

bool Game::isShrinkCursorNear(Square square, float radius) const {
    return std::any_of(shrinkCursors.begin(), shrinkCursors.end(), [&](const ShrinkCursor& cursor) {
        return squaredDistance(cursor.square(), square) <= radius * radius;
    });
}

bool Game::isPlayerOnSquare(int x, int y, const Player* ignoredPlayer) const {
    return std::any_of(players.begin(), players.end(), [&](const auto& player) {
        return player.get() != ignoredPlayer && !player->dead && !player->ghost &&
               squareAtPixel(player->position()) == Square{x, y};
    });
}

std::shared_ptr<Player> Game::playerOnSquare(Square square, const Player* ignoredPlayer) const {
    const auto found = std::find_if(players.begin(), players.end(), [&](const auto& player) {
        return player.get() != ignoredPlayer && !player->dead && !player->isAI && player->square() == square;
    });
    return found == players.end() ? nullptr : *found;
}

bool Game::isArenaAlmostClosed() const {
    if (shrinkState < ShrinkState::Shrinking || shrinkCursors.empty()) {
        return false;
    }
    const ShrinkCursor& cursor = shrinkCursors.front();
    return cursor.y == grid_squares_y / 2 && squareGrid.at(cursor.x, cursor.y - 1) == SquareKind::EdgeWall &&
           squareGrid.at(cursor.x, cursor.y + 1) == SquareKind::EdgeWall;
}

bool Game::isOnHill(Square square) const {
    return square.x >= hillLeft && square.x <= hillRight && square.y >= hillTop && square.y <= hillBottom;
}

int Game::countDeadHumans() const {
    return static_cast<int>(std::count_if(players.begin(), players.end(),
                                          [](const auto& player) { return player->dead && !player->isAI; }));
}

bool Game::noAISnakesLeft() const {
    return aiSnakesLeft == 0 && std::none_of(players.begin(), players.end(),
                                             [](const auto& player) { return player->isAI && !player->dead; });
}

}  // namespace vandrel
