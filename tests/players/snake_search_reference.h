// The search of a snake's paths and its choice as the rules put them: one recursive function that asks the game at
// every square and copies the path at every step. It is slow and plain, and what the game's own search is measured and
// proved against.
#pragma once

#include <algorithm>
#include <limits>
#include <memory>
#include <optional>
#include <utility>
#include <vector>

#include "arena/arena.h"
#include "arena/game.h"
#include "match/options/game_options.h"
#include "players/player.h"
#include "players/snake_search.h"

namespace vandrel::test {

inline CheckDirectionResult referenceCheckDirection(const Game& game, Square square, const std::vector<Square>& path,
                                                    int depth, int score, int wallValue,
                                                    const std::shared_ptr<Player>& self) {
    if (depth == 0) {
        return {score, 1};
    }
    if (game.isSquareBlocked(square, Blocked::SolidOrSnake)) {
        return {score - 2, 1};
    }
    if (game.isShrinkCursorAt(square)) {
        return {score - 1, 1};
    }
    if (std::find(path.begin(), path.end(), square) != path.end()) {
        return {score, 1};
    }
    int newScore = score + (isBreakableWall(squareGrid.at(square)) ? wallValue : 1);
    if (const std::shared_ptr<Player> human = game.playerOnSquare(square, self.get()); human && !human->ghost) {
        if (human->bombType != BombType::Normal || human->speed == gameOptions.speedCap || human->ultraBomb) {
            newScore += depth * 10;
        } else {
            newScore += depth * gameOptions.snakeAggressiveness;
        }
    }
    std::vector<Square> newPath = path;
    newPath.push_back(square);
    int best = 0;
    unsigned total = 0;
    for (const Square offset : {Square{1, 0}, Square{-1, 0}, Square{0, 1}, Square{0, -1}}) {
        const Square next = square + offset;
        if (next == path.front()) {
            continue;
        }
        const CheckDirectionResult result =
            referenceCheckDirection(game, next, newPath, depth - 1, newScore, wallValue, self);
        total += static_cast<unsigned>(result.paths);
        best = std::max(best, result.score);
    }
    return {best, static_cast<int>(total)};
}

// One decision without the coin: the direction, and what was found in each of the three.
struct ReferenceDecision {
    Square chosen{1, 0};
    std::vector<std::pair<Square, CheckDirectionResult>> found;
};

inline ReferenceDecision referenceDecision(const Game& game, const std::shared_ptr<Player>& self, int depth,
                                           int wallValue) {
    ReferenceDecision decision;
    int bestScore = std::numeric_limits<int>::min();
    int bestPaths = 0;
    for (const Square direction : {Square{0, 1}, Square{0, -1}, Square{-1, 0}, Square{1, 0}}) {
        if (direction == directionOf(opposite(self->facing))) {
            continue;
        }
        const Square head = self->square();
        const CheckDirectionResult result =
            referenceCheckDirection(game, head + direction, {head}, depth, 0, wallValue, self);
        decision.found.emplace_back(direction, result);
        if (result.score > bestScore || (result.score == bestScore && result.paths > bestPaths)) {
            bestScore = result.score;
            bestPaths = result.paths;
            decision.chosen = direction;
        }
    }
    return decision;
}

}  // namespace vandrel::test
