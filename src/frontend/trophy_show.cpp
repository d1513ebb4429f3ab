#include "frontend/trophy_show.h"

#include <algorithm>
#include <utility>

#include "match/options/game_options.h"
#include "players/player.h"
#include "presentation/play_sample.h"

namespace vandrel {

namespace {

constexpr int drumVolume = fullVolume * 3 / 4;
constexpr float drumSeconds = 1.769f;
constexpr float restSeconds = 1.0f;

bool isMatchOver(const std::vector<ScoringEntity>& entities) {
    const auto best = std::ranges::max_element(entities, {}, &ScoringEntity::score);
    return best != entities.end() && best->score == gameOptions.winsNeeded;
}

}  // namespace

TrophyShow::TrophyShow(std::vector<ScoringEntity> entities, bool noWinner, TrophyShowWorld world)
    : entities_(std::move(entities)),
      noWinner_(noWinner),
      world_(std::move(world)),
      matchOver_(isMatchOver(entities_)),
      timer_(drumSeconds) {
    playSample(SampleIds::Beat2, drumVolume);
}

void TrophyShow::update(int width, int height) {
    if (timer_ > 0.0f) {
        timer_ -= 1.0f / static_cast<float>(gameOptions.updaterate);
        return;
    }
    switch (phase_) {
        case Phase::Drum:
            playSample(noWinner_ ? SampleIds::Wimbaah : SampleIds::Gong2);
            phase_ = Phase::Gong;
            break;
        case Phase::Gong:
            timer_ = restSeconds;
            phase_ = Phase::Rest;
            break;
        case Phase::Rest:
            phase_ = Phase::Open;
            if (matchOver_) {
                music_ = world_.makeVictoryMusic();
                launchWinners();
            }
            break;
        case Phase::Open:
            done_ = world_.spacePressed();
            advancePlayers(width, height);
            break;
    }
}

int TrophyShow::trophiesOf(const ScoringEntity& entity) const {
    return phase_ == Phase::Drum ? entity.previousScore : entity.score;
}

WinnerFlight* TrophyShow::flightOf(const Player& player) {
    const auto found = flights_.find(&player);
    return found == flights_.end() ? nullptr : &found->second;
}

void TrophyShow::launchWinners() {
    for (const ScoringEntity& entity : entities_) {
        if (entity.score != gameOptions.winsNeeded) {
            continue;
        }
        for (const auto& player : entity.players) {
            flights_.emplace(player.get(), throwUp());
        }
    }
}

void TrophyShow::advancePlayers(int width, int height) {
    for (const ScoringEntity& entity : entities_) {
        for (const auto& player : entity.players) {
            player->slowTimer = std::max(player->slowTimer - 1, 0);
            WinnerFlight* flight = flightOf(*player);
            if (flight != nullptr && flight->hasLeft()) {
                flight->advance(width, height);
            }
        }
    }
}

}  // namespace vandrel
