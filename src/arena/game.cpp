#include "arena/game.h"

#include <fmt/format.h>

#include <utility>

#include "base/random.h"
#include "match/options/game_options.h"
#include "players/player.h"
#include "shell/log.h"

namespace vandrel {

namespace {

Game* currentGame = nullptr;
constexpr int wallAppearStyles = 5;

}  // namespace

Game::Game(const PackagedReplayData& replayData) : replay(replayData), wallAppearStyle(gameRand() % wallAppearStyles) {
    currentGame = this;
    if (gameOptions.respawnWallsResolved.enabled) {
        respawnCountdown = gameOptions.respawnWallsResolved.interval;
    }
    if (gameOptions.auctionInterval.has_value()) {
        logText(fmt::format("Auction interval: {}\n", *gameOptions.auctionInterval));
    }
}

Game::~Game() {
    if (currentGame == this) {
        currentGame = nullptr;
    }
}

Game* Game::current() {
    return currentGame;
}

void Game::addToast(std::unique_ptr<Toast> toast) {
    toasts.push_back(std::move(toast));
}

void Game::addScoreToast(int points, const Player& player, Team& team) {
    const Vector2Base<float> start{static_cast<float>(player.x) + 16.0f, static_cast<float>(player.y) + 16.0f};
    const Pixel base = squareToPixel(team.base());
    const Vector2Base<float> target{static_cast<float>(base.x + halfSquare), static_cast<float>(base.y + halfSquare)};
    const auto frames = static_cast<float>(scoreToastFrames);
    const Vector2Base<float> velocity{(target.x - start.x) / frames, (target.y - start.y) / frames};
    addToast(std::make_unique<DisplayScoreToast>(points, &team, start, velocity, scoreToastFrames, FontId::Builtin));
}

const char* Game::PlayerPositionSetupError::what() const noexcept {
    return "Error while generating player positions.\nLevel may be too small for this number of players\n"
           "Press ENTER or button 1";
}

}  // namespace vandrel
