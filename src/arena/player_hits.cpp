// The hit pass: who stands in a flame, in a wall, or under the head of a snake.
#include <algorithm>
#include <vector>

#include "arena/game.h"
#include "base/version.h"
#include "players/player.h"
#include "players/version_gates.h"

namespace vandrel {

namespace {

constexpr int collidingHeadsFrom = replayVersion(0, 95, 12);

}  // namespace

// Stamps the squares that burn, so that a player who stands in no flame is passed over without a look at all of them.
void Game::markFlames() {
    if (flameStamps_.width() != grid_squares_x || flameStamps_.height() != grid_squares_y) {
        flameStamps_.resize(grid_squares_x, grid_squares_y);
        flameStamp_ = 0;
    }
    ++flameStamp_;
    for (const Explosion& explosion : explosions) {
        flameStamps_.at(explosion.square()) = flameStamp_;
    }
}

void Game::checkFlames(Player& player) {
    const Square centre = player.square();
    const bool touched =
        isBurning(centre) ||
        (player.isSnake() && std::any_of(player.snakeParts.begin(), player.snakeParts.end(),
                                         [&](const SnakePart& part) { return isBurning(squareOf(part)); }));
    if (!touched) {
        return;
    }
    for (const Explosion& explosion : explosions) {
        const auto owner = explosion.owner.lock();
        if (owner == nullptr) {
            continue;
        }
        const bool ownFlamethrower = explosion.isFlamethrower && owner.get() == &player;
        if (explosion.square() == centre && !ownFlamethrower) {
            player.hurt(DeathReason::Explosion, replay, owner);
            return;
        }
        if (player.hasBodyOn(explosion.square())) {
            player.hurt(DeathReason::SnakeBodyHitByExplosion, replay, owner);
            return;
        }
    }
}

bool Game::isBodyInWall(const Player& player) const {
    std::size_t end = player.snakeParts.size();
    if (!replay.isOlderThan(snakesCrushedFrom)) {
        end = std::min(end, static_cast<std::size_t>(player.snakeLengthNow()));
    }
    for (std::size_t i = 1; i < end; ++i) {
        const int kind = squareGrid.at(squareOf(player.snakeParts[i]));
        if (kind >= SquareKind::GridBlock && kind <= SquareKind::HardWallHitTwice) {
            return true;
        }
    }
    return false;
}

void Game::checkHitsOf(const std::shared_ptr<Player>& player, std::vector<std::shared_ptr<Player>>& collided) {
    if (!explosions.empty()) {
        checkFlames(*player);
    }
    if (player->dead) {
        return;
    }
    const Square centre = player->square();
    if (!player->isSnake() && squareGrid.at(centre) != SquareKind::Empty) {
        player->hurt(DeathReason::Wall, replay, nullptr);
    }
    if (player->dead) {
        return;
    }
    if (player->isSnake() && isBodyInWall(*player)) {
        player->hurt(DeathReason::SnakeBodyHitByAppearingWall, replay, nullptr);
    }
    if (player->dead) {
        return;
    }
    std::shared_ptr<Player> snake;
    if (!isSquareBlocked(centre, Blocked::SnakeHead, player.get(), &snake)) {
        return;
    }
    if (player->isSnake()) {
        collided.push_back(player);
    } else {
        player->hurt(DeathReason::Eaten, replay, snake);
    }
}

void Game::checkPlayerHits() {
    if (!explosions.empty()) {
        markFlames();
    }
    std::vector<std::shared_ptr<Player>> collided;
    for (const auto& player : players) {
        if (!player->dead && !player->ghost) {
            checkHitsOf(player, collided);
        }
    }
    if (replay.isOlderThan(collidingHeadsFrom)) {
        return;
    }
    for (const auto& snake : collided) {
        snake->hurt(DeathReason::SnakeHeadCollision, replay, nullptr);
    }
}

}  // namespace vandrel
