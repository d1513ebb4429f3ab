#include "players/snake_choice.h"

#include <fmt/format.h>

#include <algorithm>
#include <chrono>
#include <future>
#include <limits>
#include <vector>

#include "arena/game.h"
#include "base/random.h"
#include "match/options/game_options.h"
#include "players/player.h"
#include "shell/log.h"

namespace vandrel {

namespace {

constexpr int randomiseFromDepth = 9;
constexpr int coinFromPaths = 12'001;
constexpr float nearlyAsMany = 0.9f;

constexpr int lowestLoweredDepth = 9;  // a depth below is never lowered
constexpr int depthFloor = 8;
constexpr int depthCeilingWithBlocks = 22;
constexpr int depthCeilingWithoutBlocks = 15;
constexpr long long quickMilliseconds = 3;  // below this there was time to spare

struct DepthDecrease {
    long long fromMilliseconds;
    int decrease;
};
// Longest first.
constexpr DepthDecrease depthDecreases[] = {{17, 8}, {13, 4}, {11, 3}, {9, 2}, {7, 1}};

int depthDecreaseFor(long long milliseconds) {
    const auto* found = std::find_if(std::begin(depthDecreases), std::end(depthDecreases),
                                     [&](const DepthDecrease& row) { return milliseconds >= row.fromMilliseconds; });
    return found == std::end(depthDecreases) ? 0 : found->decrease;
}

}  // namespace

Square chooseDirection(std::span<const DirectionFound> found, bool randomise) {
    int bestScore = std::numeric_limits<int>::min();
    int bestPaths = 0;
    Square chosen{1, 0};
    for (const auto& [direction, result] : found) {
        bool take = result.score > bestScore || (result.score == bestScore && result.paths > bestPaths);
        if (!take && randomise && result.score == bestScore && result.paths >= coinFromPaths &&
            static_cast<float>(result.paths) > static_cast<float>(bestPaths) * nearlyAsMany) {
            take = gameRand() % 2 == 0;
        }
        if (take) {
            bestScore = result.score;
            bestPaths = result.paths;
            chosen = direction;
        }
    }
    return chosen;
}

void adaptSearchDepth(long long milliseconds) {
    int& depth = gameOptions.aiSearchDepth;
    const int ceiling = gameOptions.gridBlocksResolved.value() ? depthCeilingWithBlocks : depthCeilingWithoutBlocks;
    const int decrease = depthDecreaseFor(milliseconds);
    if (decrease > 0 && depth >= lowestLoweredDepth) {
        depth = std::max(depth - decrease, depthFloor);
        logText(fmt::format("DEPTH DOWN {} {}\n", decrease, depth));
    } else if (milliseconds < quickMilliseconds && depth < ceiling) {
        ++depth;
        logText(fmt::format("DEPTH UP!!! {}\n", depth));
    }
}

// One task for each direction but the way back. They only read, and nothing else runs until all have answered, so
// nothing is locked.
void Player::aiSnakeControlChoice(int& xDir, int& yDir) {
    const auto start = std::chrono::steady_clock::now();
    const int wallValue = snakeLength < gameOptions.snakeTargetLength ? 2 : 1;
    const SnakeBoard board(*Game::current(), *this, square(), gameOptions.aiSearchDepth, wallValue);

    std::vector<std::pair<Square, std::future<CheckDirectionResult>>> tasks;
    for (const Facing way : facingOrder) {
        if (way != opposite(facing)) {
            const Square direction = directionOf(way);
            tasks.emplace_back(direction, std::async(std::launch::async,
                                                     [&board, direction] { return board.checkDirection(direction); }));
        }
    }
    const bool randomise = !gameOptions.gridBlocksResolved.value() && gameOptions.aiSearchDepth >= randomiseFromDepth;
    std::vector<DirectionFound> found;
    found.reserve(tasks.size());
    for (auto& [direction, task] : tasks) {
        found.push_back({direction, task.get()});
    }
    const Square chosen = chooseDirection(found, randomise);
    const auto taken = std::chrono::steady_clock::now() - start;
    adaptSearchDepth(std::chrono::duration_cast<std::chrono::milliseconds>(taken).count());
    xDir = chosen.x;
    yDir = chosen.y;
}

}  // namespace vandrel
