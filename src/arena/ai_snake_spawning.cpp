// When a snake of the computer enters the arena, and where.
#include <fmt/format.h>

#include <algorithm>
#include <ios>
#include <istream>
#include <vector>

#include "arena/game.h"
#include "base/version.h"
#include "match/options/game_options.h"
#include "players/player.h"
#include "replay/unit/streams.h"
#include "shell/assertion.h"
#include "shell/log.h"

namespace vandrel {

namespace {

constexpr int spawnSamples = 150;
constexpr int oldSpawnSamples = 50;
constexpr float safeDistance = 3.0f;  // squares from a closing wall, a flame or a bomb
constexpr int announcementFrames = 1000;
constexpr int chosenSquaresFrom = replayVersion(0, 95, 18);
constexpr int recordedSpeedsFrom = replayVersion(0, 95, 23);
constexpr int safeSquaresFrom = replayVersion(0, 96, 8);
constexpr int manySamplesFrom = replayVersion(0, 96, 9);

float spawnScore(const Game& game, Square square, const std::vector<Square>& living) {
    if (game.isSquareBlocked(square, Blocked::SolidOrSnake) || game.isPlayerOnSquare(square.x, square.y, nullptr)) {
        return 0.0f;
    }
    if (!game.replay.isOlderThan(safeSquaresFrom) &&
        (game.isShrinkCursorNear(square, safeDistance) || game.isExplosionNear(square, safeDistance) ||
         game.isBombNear(square, safeDistance))) {
        return 0.0f;
    }
    return leastSquaredDistance(square, living);
}

void announceSnakesLeft(Game& game) {
    const std::string text = fmt::format("{} snake{} remaining!", game.aiSnakesLeft, game.aiSnakesLeft == 1 ? "" : "s");
    game.announce(text, {arenaWidthPixels() / 2, arenaHeightPixels() / 2}, announcementFrames);
}

void readSpeed(Game& game, Player& snake, bool& replayEnded) {
    if (game.endMarkSeen || game.replay.isOlderThan(recordedSpeedsFrom)) {
        return;
    }
    try {
        snake.speed = readSignedByte(game.replay.input);
    } catch (const std::ios_base::failure&) {
        if (!game.replay.input->eof()) {
            throw;
        }
        logText("EOF (read AI snake speed)\n");
        game.meetEndOfRecords(replayEnded);
        return;
    }
    VANDREL_CHECK_AT(snake.speed > 0 && snake.speed < 11, "player.back()->speed > 0 && player.back()->speed < 11",
                     replayInputPos(game.replay));
}

}  // namespace

std::optional<Square> Game::getAISnakeSpawnPos() {
    const int samples = replay.isOlderThan(manySamplesFrom) ? oldSpawnSamples : spawnSamples;
    const std::vector<Square> living = squaresOfTheLiving();
    return sampleBestSquare(
        firstInnerSquare(), lastInnerSquare(), [&](Square square) { return spawnScore(*this, square, living); },
        samples);
}

void Game::updateAISnakes(bool& replayEnded) {
    if (aiSnakesLeft < 1) {
        return;
    }
    const auto living =
        std::count_if(players.begin(), players.end(), [](const auto& player) { return player->isAI && !player->dead; });
    if (living >= gameOptions.snakesAtOnce) {
        return;
    }
    --aiSnakeCountdown;
    if (aiSnakeCountdown > 0) {
        return;
    }
    logText("Make AI snake\n");
    const auto square = replay.isOlderThan(chosenSquaresFrom) ? middleSquare() : getAISnakeSpawnPos();
    if (!square.has_value()) {
        return;
    }
    logText(fmt::format("{{{},{}}}\n", square->x, square->y));
    const auto snake = createAISnake(nextAISnakeNumber, *square, replay.version);
    ++nextAISnakeNumber;
    snake->game = this;
    players.push_back(snake);
    if (gameOptions.gameMode != GameMode::Everything) {
        teams.at(1).members.push_back(snake);
    }
    announceSnakesLeft(*this);
    if (replay.playback) {
        readSpeed(*this, *snake, replayEnded);
    } else if (replay.writes()) {
        writeByte(replay.output, snake->speed);
    }
    aiSnakeCountdown = gameOptions.snakeSpawnFrames;
    --aiSnakesLeft;
}

}  // namespace vandrel
