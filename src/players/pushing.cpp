// What Strength does: pushing walls and bombs one square on, and what happens to those behind a wall.
#include <algorithm>

#include "arena/game.h"
#include "base/version.h"
#include "players/player.h"
#include "players/version_gates.h"
#include "presentation/play_sample.h"

namespace vandrel {

namespace {

constexpr int crushingFrom = replayVersion(0, 96, 13);

bool isFreeForPush(Square square) {
    return squareGrid.at(square) == SquareKind::Empty && bonusGrid.at(square) == 0 && !hasBomb(square);
}

bool isPushableBomb(const Bomb& bomb) {
    return bomb.isLive() && (bomb.kind == BombKind::Ticking || bomb.kind == BombKind::Armed);
}

// Whether any part from the second on, as far as the snake is long, stands on the square.
bool hasTailOn(const Player& snake, Square square) {
    const std::size_t end = std::min(snake.snakeParts.size(), static_cast<std::size_t>(snake.snakeLengthNow()));
    for (std::size_t i = 1; i < end; ++i) {
        if (squareOf(snake.snakeParts[i]) == square) {
            return true;
        }
    }
    return false;
}

}  // namespace

bool Player::push(int xDir, int yDir, Square ahead, const PackagedReplayData& replayData) {
    const Square target = ahead + Square{xDir, yDir};
    if (isBreakableWall(squareGrid.at(ahead))) {
        if (!isFreeForPush(target)) {
            return false;
        }
        playSample(SampleIds::Slide);
        squareGrid.set(target, squareGrid.at(ahead));
        bonusGrid.at(target) = bonusGrid.at(ahead);
        crushUnderPushedWall(target, replayData);
        squareGrid.set(ahead, SquareKind::Empty);
        bonusGrid.at(ahead) = 0;
        return true;
    }
    if (!isPushableBomb(bombGrid.at(ahead)) || !isFreeForPush(target)) {
        return false;
    }
    playSample(SampleIds::Slide);
    Bomb& bomb = bombGrid.edit(ahead);
    bombGrid.edit(target) = bomb;
    bomb = Bomb{};
    return true;
}

void Player::crushUnderPushedWall(Square target, const PackagedReplayData& replayData) {
    if (replayData.isOlderThan(crushingFrom)) {
        return;
    }
    const bool snakesCrushed = !replayData.isOlderThan(snakesCrushedFrom);
    const auto self = shared_from_this();
    for (const auto& player : players) {
        if (player->dead) {
            continue;
        }
        if (player->square() == target) {
            const bool newReason = player->isSnake() && snakesCrushed;
            player->hurt(newReason ? DeathReason::SnakeHeadPushedWall : DeathReason::PushedWall, replayData, self);
        }
        if (!player->isSnake() || !snakesCrushed) {
            continue;
        }
        bool hit = false;
        // Each hurt may have shortened the snake, so the search starts again.
        while (player->isSnake() && hasTailOn(*player, target)) {
            player->hurt(DeathReason::SnakeBodyPushedWall, replayData, nullptr);
            hit = true;
        }
        if (hit && (player->isAI || player->dead)) {
            creditKill(player, !player->dead);
        }
    }
}

}  // namespace vandrel
