#include <array>

#include "arena/bonus.h"
#include "base/random.h"
#include "match/options/game_options.h"
#include "shell/switches.h"

namespace vandrel {

namespace {

static_assert(bonusCount == Bonus::UltraBomb + 1);

using Weights = std::array<int, bonusCount>;

//                               0   1   2   3  4  5   6   7   8  9  10 11 12 13 14 15 16 17 18 19 20 21
constexpr Weights levelWeights{0, 70, 40, 50, 5, 5, 10, 20, 20, 0, 10, 1, 5, 1, 2, 1, 1, 8, 4, 1, 4, 1};
constexpr Weights auctionWeights{0, 20, 20, 30, 5, 5, 5, 20, 0, 0, 5, 1, 5, 1, 2, 1, 1, 0, 0, 0, 4, 2};

struct WeightOverride {
    GameMode mode;
    int bonus;
    int weight;
};

constexpr std::array<WeightOverride, 1> weightOverrides{{{GameMode::SnakeHunter, Bonus::Controller, 1}}};

Weights currentWeights(bool forAuction) {
    Weights weights = forAuction ? auctionWeights : levelWeights;
    for (const WeightOverride& entry : weightOverrides) {
        if (entry.mode == gameOptions.gameMode) {
            weights[static_cast<unsigned>(entry.bonus)] = entry.weight;
        }
    }
    if (forAuction || (!lootboxesEnabled && gameOptions.auctionInterval.value() == 0)) {
        weights[Bonus::Cash] = 0;
    }
    for (std::size_t bonus = 1; bonus < weights.size(); ++bonus) {
        if (gameOptions.powerupDisabled[bonus]) {
            weights[bonus] = 0;
        }
    }
    return weights;
}

}  // namespace

int chooseBonus(bool forAuction) {
    const Weights weights = currentWeights(forAuction);
    int sum = 0;
    for (const int weight : weights) {
        sum += weight;
    }
    if (sum <= 0) {
        return Bonus::None;
    }
    int ticket = gameRand() % sum + 1;
    for (std::size_t bonus = 1; bonus < weights.size(); ++bonus) {
        if (ticket <= weights[bonus]) {
            return static_cast<int>(bonus);
        }
        ticket -= weights[bonus];
    }
    return Bonus::None;
}

}  // namespace vandrel
