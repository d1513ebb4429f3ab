#include "match/round_start.h"

#include "arena/game.h"
#include "arena/sparks.h"
#include "match/options/game_options.h"
#include "players/player.h"
#include "shell/frame_counter.h"

namespace vandrel {

void startRound(Game& game) {
    game.shrinkCountdown = gameOptions.timeBeforeShrinkingFrames.value();
    game.aiSnakeCountdown = gameOptions.snakePreparationFrames;
    game.aiSnakesLeft = gameOptions.snakeCount;
    for (const auto& player : players) {
        player->startRound();
    }
    sparks.clear();
    frameCounter = 0;
}

}  // namespace vandrel
