#include "arena/game.h"

#include <fmt/format.h>

#include <utility>
#include <vector>

#include "base/random.h"
#include "match/options/game_options.h"
#include "players/player.h"
#include "shell/log.h"

namespace vandrel {

namespace {

std::vector<Game*> livingGames;  // the current one last
constexpr int wallAppearStyles = 5;
constexpr int toldFrames = 90;  // not scaled by the rate
constexpr Vector2Base<float> toldVelocity{0.0f, -0.5f};
constexpr Vector2Base<float> announcedVelocity{0.0f, -1.0f};

Vector2Base<float> inFloat(Pixel pixel) {
    return {static_cast<float>(pixel.x), static_cast<float>(pixel.y)};
}

}  // namespace

Game::Game(const PackagedReplayData& replayData) : replay(replayData), wallAppearStyle(gameRand() % wallAppearStyles) {
    livingGames.push_back(this);
    if (gameOptions.respawnWallsResolved.enabled) {
        respawnCountdown = gameOptions.respawnWallsResolved.interval;
    }
    if (gameOptions.auctionInterval.has_value()) {
        logText(fmt::format("Auction interval: {}\n", *gameOptions.auctionInterval));
    }
}

Game::~Game() {
    std::erase(livingGames, this);
}

Game* Game::current() {
    return livingGames.empty() ? nullptr : livingGames.back();
}

void Game::addToast(std::unique_ptr<Toast> toast) {
    toasts.push_back(std::move(toast));
}

void Game::tell(const std::string& text, Pixel from) {
    addToast(std::make_unique<TimedToast>(text, inFloat(from), toldVelocity, toldFrames, FontId::Builtin));
}

void Game::announce(const std::string& text, Pixel from, int frames) {
    addToast(std::make_unique<TimedToast>(text, inFloat(from), announcedVelocity, frames, FontId::Font30));
}

void Game::addScoreToast(int points, const Player& player, Team& team) {
    const Vector2Base<float> start = inFloat(player.centre());
    const Vector2Base<float> target = inFloat(centreOf(team.base()));
    const auto frames = static_cast<float>(scoreToastFrames);
    const Vector2Base<float> velocity{(target.x - start.x) / frames, (target.y - start.y) / frames};
    addToast(std::make_unique<DisplayScoreToast>(points, &team, start, velocity, scoreToastFrames, FontId::Builtin));
}

const char* Game::PlayerPositionSetupError::what() const noexcept {
    return "Error while generating player positions.\nLevel may be too small for this number of players\n"
           "Press ENTER or button 1";
}

}  // namespace vandrel
