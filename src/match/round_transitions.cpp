#include "match/round_transitions.h"

#include <algorithm>
#include <utility>

#include "base/random.h"
#include "match/options/game_options.h"
#include "players/player.h"
#include "presentation/drawing.h"
#include "presentation/play_sample.h"
#include "presentation/toasts_drawing.h"
#include "shell/frame_pump.h"
#include "shell/game_screen.h"
#include "shell/switches.h"

namespace vandrel {

namespace {

constexpr int randomnessScreenSlot = 1;
constexpr int randomnessTicks = 120;  // not scaled by the rate
constexpr float randomnessThreshold = 0.8f;

std::vector<ScoringEntity> scoreTeams(const TeamWinners& winners) {
    std::vector<ScoringEntity> entities;
    for (std::size_t i = 0; i < teams.size(); ++i) {
        Team& team = teams[i];
        ScoringEntity entity;
        entity.previousScore = team.wins;
        if (std::count(winners.teams.begin(), winners.teams.end(), static_cast<int>(i)) != 0) {
            ++team.wins;
        }
        entity.score = team.wins;
        entity.teamColour = team.colour;
        for (const auto& member : team.members) {
            if (auto player = member.lock()) {
                entity.players.push_back(std::move(player));
            }
        }
        entities.push_back(std::move(entity));
    }
    return entities;
}

std::vector<ScoringEntity> scorePlayers(const PlayerWinners& winners) {
    std::vector<ScoringEntity> entities;
    for (const auto& player : players) {
        ScoringEntity entity;
        entity.previousScore = player->wins;
        if (std::count(winners.players.begin(), winners.players.end(), player) != 0) {
            ++player->wins;
        }
        entity.score = player->wins;
        entity.players.push_back(player);
        entities.push_back(std::move(entity));
    }
    return entities;
}

void bringBackForTheTable() {
    for (const auto& player : players) {
        player->dead = false;
        player->remoteActive = false;
        if (gameOptions.gameMode == GameMode::Everything) {
            player->crawling = false;
        }
    }
}

void removeAISnakes() {
    std::erase_if(players, [](const auto& player) { return player->isAI; });
    if (isModeActive(GameMode::SnakeHunter) && gameOptions.gameMode != GameMode::Everything) {
        teams.at(1).members.clear();
    }
}

}  // namespace

std::vector<ScoringEntity> scoreRound(const Winners& winners) {
    if (const auto* winningTeams = std::get_if<TeamWinners>(&winners)) {
        return scoreTeams(*winningTeams);
    }
    return scorePlayers(std::get<PlayerWinners>(winners));
}

bool finishRound(const Game& game, const std::string& replayFile, const RoundEndScreens& screens) {
    std::vector<ScoringEntity> entities = scoreRound(game.getWinners());
    int maxScore = 0;
    bool noWinner = true;
    for (const ScoringEntity& entity : entities) {
        maxScore = std::max(maxScore, entity.score);
        noWinner = noWinner && entity.score == entity.previousScore;
    }
    bringBackForTheTable();
    screens.trophyRoom(std::move(entities), noWinner, diagnostic ? replayFile : "");
    removeAISnakes();  // not earlier: they stand on the table too
    const bool matchOver = maxScore >= gameOptions.winsNeeded;
    if (matchOver && lootboxesEnabled) {
        screens.lootboxRoom();
    }
    return matchOver;
}

void incrementRandomness(Game& game, const std::function<void(Game& game)>& show) {
    const float roll = canonicalFloat(globalGenerator) * static_cast<float>(gameOptions.randomnessIncrease);
    if (!(roll > randomnessThreshold)) {
        return;
    }
    ++gameOptions.randomness;
    playSample(SampleIds::Splurge, normalVolume, centrePan, gameOptions.randomness * 300 + 100);
    show(game);
}

void showRandomness(Game& game) {
    setGameScreenSlot(randomnessScreenSlot);
    const int middle = gameScreenWidth / 2;
    const Vector2Base<float> bottomCentre{static_cast<float>(middle), static_cast<float>(gameScreenHeight)};
    game.addToast(std::make_unique<TimedToast>("Randomness up!", bottomCentre, Vector2Base<float>{0.0f, -5.0f},
                                               randomnessTicks, FontId::Font30));
    int counter = randomnessTicks;
    framePump(
        [&] {
            game.updateToasts();
            --counter;
        },
        [&] {
            clearToBlack(*screen);
            drawToasts(game.toasts, *screen);
            presentFrame();
        },
        [&] { return counter < 1; });
}

}  // namespace vandrel
