// The making of a snake of the computer.
#include <algorithm>

#include "arena/game.h"
#include "base/version.h"
#include "match/options/game_options.h"
#include "players/player.h"

namespace vandrel {

namespace {

constexpr int usualSpeed = 3;
constexpr int raisedSpeed = 4;
constexpr float fastHumans = 5.0f;
constexpr int looksForWayOutFrom = replayVersion(0, 95, 20);

// The humans' mean speed, a dead one counting as at the start of a life, and whether the fastest is at the cap.
int speedAgainstHumans() {
    int sum = 0;
    int count = 0;
    int fastest = 0;
    for (const auto& player : players) {
        if (!player->isAI) {
            const int speed = player->dead ? gameOptions.initialSpeed : player->speed;
            sum += speed;
            ++count;
            fastest = std::max(fastest, speed);
        }
    }
    if (count == 0) {
        return usualSpeed;
    }
    const float mean = static_cast<float>(sum) / static_cast<float>(count);
    return mean >= fastHumans || fastest == gameOptions.speedCap ? raisedSpeed : usualSpeed;
}

void lookForWayOut(Player& snake, Square square) {
    if (!isSolid(square + directionOf(snake.facing))) {
        return;
    }
    const auto way = std::find_if(facingOrder.begin(), facingOrder.end(),
                                  [&](Facing facing) { return !isSolid(square + directionOf(facing)); });
    if (way != facingOrder.end()) {
        snake.facing = *way;
    }
}

}  // namespace

std::shared_ptr<Player> createAISnake(int num, Square square, std::optional<int> version) {
    squareGrid.set(square, SquareKind::Empty);
    PlayerLook look;
    randomPlayerLook(look);
    auto snake = std::make_shared<Player>(num, 0, -1, look, std::make_shared<NoControls>());
    const Pixel corner = squareToPixel(square);
    snake->x = corner.x;
    snake->y = corner.y;
    snake->isAI = true;
    snake->speed = gameOptions.snakeSpeed != 0 ? gameOptions.snakeSpeed : speedAgainstHumans();
    if (!version.has_value() || *version >= looksForWayOutFrom) {
        lookForWayOut(*snake, square);
    }
    snake->becomeSnake();
    return snake;
}

}  // namespace vandrel
