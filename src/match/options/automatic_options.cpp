#include "match/options/automatic_options.h"

#include <fmt/format.h>

#include <algorithm>
#include <map>
#include <random>
#include <string>
#include <utility>
#include <vector>

#include "base/checked.h"
#include "base/random.h"
#include "match/options/game_options.h"
#include "match/options/name_tables.h"
#include "shell/log.h"

namespace vandrel {

namespace {

// All frame counts are at 60 updates a second.
const std::map<int, int> sizeByPlayersTeam{{6, 3}, {16, 4}, {40, 5}, {100, 6}};
const std::map<int, int> sizeByPlayersSolo{{9, 3}, {24, 4}, {64, 5}, {100, 6}};
const std::map<int, std::pair<int, int>> playerLimits{{1, {1, 2}},    {2, {2, 5}},    {3, {2, 16}},   {4, {6, 64}},
                                                      {5, {12, 100}}, {6, {16, 100}}, {7, {48, 100}}, {8, {64, 100}}};
const std::map<int, std::pair<int, int>> playerLimitsWild{{1, {1, 6}},   {2, {2, 16}},  {3, {2, 32}},   {4, {2, 100}},
                                                          {5, {2, 100}}, {6, {2, 100}}, {7, {64, 100}}, {8, {64, 100}}};
const std::map<int, int> shrinkSpeedByArena{{1, 0}, {2, 2}, {3, 2},  {4, 2},  {5, 3},  {6, 3}, {7, 3},
                                            {8, 4}, {9, 1}, {10, 2}, {11, 2}, {12, 3}, {13, 3}};
const std::map<int, int> timeBeforeByArena{{1, 1}, {2, 2}, {3, 2},  {4, 2},  {5, 2},  {6, 1}, {7, 1},
                                           {8, 1}, {9, 1}, {10, 2}, {11, 2}, {12, 1}, {13, 1}};
const std::map<int, int> shrinkSpeedFramesTable{{0, 60}, {1, 32}, {2, 16}, {3, 8}, {4, 4}, {5, 2}};
const std::map<int, int> timeBeforeFramesTable{{0, 1080}, {1, 2160}, {2, 5400}, {3, 7560}};
const std::map<int, int> preparationFramesTable{{1, 0}, {2, 200}, {3, 400}, {4, 600}, {5, 1000}};
const std::map<int, std::pair<int, int>> auctionIntervals{{1, {800, 1200}}, {2, {1200, 2000}}, {3, {2000, 3000}}};
const std::map<int, int> spawnFramesTable{{1, 0}, {2, 199}, {3, 301}, {4, 401}, {5, 501}};

bool fiveTimesInSix() {
    return gameRand() % 6 > 0;
}

// One run of `automaticOptions`. The steps are called in the one order in which the draws must come.
class Resolver {
  public:
    void resolveAll() {
        resolveArenaSize();
        resolveShrinkSpeed();
        resolveTimeBeforeShrinking();
        resolveShrinkStyle();
        resolveGridBlocks();
        resolveWallDensity();
        resolvePowerupDensity();
        resolveSnakes();
        resolveSearchAndRespawningWalls();
        resolveAuctions();
        logText(fmt::format("{}\n", fmt::join(fragments_, " ")));
    }

  private:
    int globalInt(int low, int high) { return uniformInt(globalGenerator, low, high); }
    float globalFloat() { return canonicalFloat(globalGenerator); }
    float privateFloat() { return canonicalFloat(privateGenerator_); }
    int arena() const { return options_.arenaSizeResolved.value(); }

    void resolveArenaSize();
    int drawArenaSize();
    void resolveShrinkSpeed();
    void resolveTimeBeforeShrinking();
    void resolveShrinkStyle();
    int drawShrinkStyle();
    void resolveGridBlocks();
    void resolveWallDensity();
    void resolvePowerupDensity();
    void resolveSnakes();
    void resolveSearchAndRespawningWalls();
    void resolveAuctions();

    GameOptions& options_ = gameOptions;
    const int randomness_ = gameOptions.randomness;
    std::mt19937 privateGenerator_ = globalGenerator;  // its draws do not advance the global one
    std::vector<std::string> fragments_;
};

int Resolver::drawArenaSize() {
    const GameMode mode = options_.gameMode;
    const bool teamSizes = isTeamMode(mode) || mode == GameMode::SnakeHunter;
    const auto& sizes = teamSizes ? sizeByPlayersTeam : sizeByPlayersSolo;
    const auto found = sizes.upper_bound(options_.numPlayers);
    int size = found == sizes.end() ? normalArena : found->second;
    const int spread = isTeamMode(mode) && randomness_ > 0 ? globalInt(randomness_, randomness_ + 1) : randomness_;
    const auto& limits = randomness_ >= 2 ? playerLimitsWild : playerLimits;
    for (int round = 0; round < 3; ++round) {
        size = std::clamp(size + globalInt(-randomness_, spread), 1, colossalArena);
        while (options_.numPlayers < checkedKey(limits, size).first) {
            --size;
        }
        while (options_.numPlayers > checkedKey(limits, size).second) {
            ++size;
        }
    }
    if (size >= largerArena && fiveTimesInSix()) {
        --size;
    }
    if (size < normalArena && (mode == GameMode::SnakeHunter || fiveTimesInSix())) {
        size = normalArena;
    }
    return size;
}

void Resolver::resolveArenaSize() {
    if (options_.arenaSize != 0) {
        options_.arenaSizeResolved = options_.arenaSize;
        return;
    }
    options_.arenaSizeResolved = drawArenaSize();
    fragments_.push_back(fmt::format("Size: {:<8}", checkedAt(arenaSizes, arena()).name));
}

void Resolver::resolveShrinkSpeed() {
    int speed = options_.shrinkSpeed;
    if (speed == autoShrinkSpeed) {
        speed = checkedKey(shrinkSpeedByArena, arena());
        for (int i = 0; i < randomness_; ++i) {
            if (globalFloat() > 0.5f) {
                speed = std::clamp(speed + globalInt(-randomness_, randomness_), 0, 5);
            }
        }
        fragments_.push_back(fmt::format("SSpeed: {:<9}", checkedAt(ShrinkSpeedNames, speed)));
    }
    options_.shrinkSpeedFrames = checkedKey(shrinkSpeedFramesTable, speed) * options_.frameMultiplier;
}

void Resolver::resolveTimeBeforeShrinking() {
    int time = options_.timeBeforeShrinking;
    if (time == autoTimeBeforeShrinking) {
        time = checkedKey(timeBeforeByArena, arena());
        if (options_.gameMode == GameMode::SnakeHunter) {
            time = arena() < hugeArena ? 3 : 2;
        } else {
            if (globalFloat() > 0.5f) {
                time = std::clamp(time + globalInt(-randomness_, randomness_), 0, 3);
            }
            if (time == 3 && options_.shrinkSpeedFrames.value() < 3 && fiveTimesInSix()) {
                time = 2;
            }
        }
        fragments_.push_back(fmt::format("TimeBeforeS: {:<10}", checkedAt(TimeBeforeShrinkingNames, time)));
    }
    options_.timeBeforeShrinkingFrames = checkedKey(timeBeforeFramesTable, time) * options_.frameMultiplier;
}

int Resolver::drawShrinkStyle() {
    const GameMode mode = options_.gameMode;
    if (randomness_ == 0) {
        const bool mirrored = mode == GameMode::SnakeHunter || options_.arenaSize >= largerArena ||
                              (mode == GameMode::Everything && options_.everythingSnakeHunter);
        return mirrored ? 2 : 1;
    }
    // The frames are compared as they stand, so at a high rate with those already multiplied.
    auto weight = static_cast<float>(randomness_);
    weight += arena() >= largeArena ? 0.5f : 0.0f;
    weight += options_.shrinkSpeedFrames.value() < 16 ? 1.0f : 0.0f;
    weight += options_.timeBeforeShrinkingFrames.value() > 5400 ? 1.0f : 0.0f;
    weight += mode == GameMode::SnakeHunter ? 1.0f : 0.0f;
    if (randomness_ > 1 && privateFloat() > 0.95f) {
        return 3;
    }
    return privateFloat() * weight > 0.6f ? 2 : 1;
}

void Resolver::resolveShrinkStyle() {
    if (options_.shrinkStyle != 0) {
        options_.shrinkStyleResolved = options_.shrinkStyle;
        return;
    }
    options_.shrinkStyleResolved = drawShrinkStyle();
    fragments_.push_back(
        fmt::format("SStyle: {:<10}", checkedAt(ShrinkStyleLogNames, options_.shrinkStyleResolved.value())));
}

void Resolver::resolveGridBlocks() {
    if (options_.gridBlocks != 0) {
        options_.gridBlocksResolved = options_.gridBlocks == 2;
        return;
    }
    bool blocks = true;
    if (randomness_ == 1) {
        blocks = !(privateFloat() > 0.9f);
    } else if (randomness_ >= 2) {
        blocks = !(privateFloat() > 0.7f);
    }
    options_.gridBlocksResolved = blocks;
    fragments_.push_back(fmt::format("GB: {:<6}", blocks));
}

void Resolver::resolveWallDensity() {
    if (options_.wallDensity != autoDensity) {
        options_.wallPercent = 5 * options_.wallDensity;
        return;
    }
    int percent = options_.gameMode == GameMode::SnakeHunter ? 80 : 70;
    for (int i = 0; i < randomness_; ++i) {
        percent += globalInt(-5 * randomness_, 10 * randomness_);
    }
    options_.wallPercent = std::clamp(percent, 0, 100);
    fragments_.push_back(fmt::format("WallPb: {:<4}", options_.wallPercent.value()));
}

void Resolver::resolvePowerupDensity() {
    if (options_.powerupDensity != autoDensity) {
        options_.powerupPercent = 5 * options_.powerupDensity;
        return;
    }
    int percent = options_.gameMode == GameMode::SnakeHunter ? 50 : 40;
    for (int i = 0; i < randomness_; ++i) {
        if (privateFloat() > 0.8f) {
            percent += globalInt(-5 * randomness_, 40 * randomness_);
        }
    }
    options_.powerupPercent = std::clamp(percent, 0, 100);
    fragments_.push_back(fmt::format("BonusPb: {:<4}", options_.powerupPercent.value()));
}

void Resolver::resolveSnakes() {
    const int others = std::max(options_.numPlayers - 1, 1);
    const int preparation = options_.preparationTime != 0 ? checkedKey(preparationFramesTable, options_.preparationTime)
                                                          : checkedKey(preparationFramesTable, 4) / others;
    options_.snakePreparationFrames = preparation * options_.frameMultiplier;

    int spawn = 0;
    if (options_.spawnInterval != 0) {
        spawn = checkedKey(spawnFramesTable, options_.spawnInterval);
    } else {
        spawn = checkedKey(spawnFramesTable, 4) / others;
        fragments_.push_back(fmt::format("SnakeInterval (unmod): {:<4}", spawn));
    }
    options_.snakeSpawnFrames = spawn * options_.frameMultiplier;

    if (options_.snakeNumber != 0) {
        options_.snakeCount = options_.snakeNumber;
    } else {
        options_.snakeCount = std::clamp(options_.numPlayers + 3, 3, 30);
        fragments_.push_back(fmt::format("nSnakes: {:<4}", options_.snakeCount));
    }

    if (options_.maxSnakes != 0) {
        options_.snakesAtOnce = options_.maxSnakes;
    } else if (options_.snakeCount > 5 && arena() >= largeArena) {
        options_.snakesAtOnce = 2;
        if (options_.spawnInterval == 0) {
            options_.snakeSpawnFrames *= 5;
            fragments_.push_back(fmt::format("SnakeInterval (mod): {:<4}", options_.snakeSpawnFrames));
            options_.snakeSpawnFrames = std::min(options_.snakeSpawnFrames, checkedKey(spawnFramesTable, 5));
        }
    } else {
        options_.snakesAtOnce = 1;
    }
}

void Resolver::resolveSearchAndRespawningWalls() {
    const bool blocks = options_.gridBlocksResolved.value();
    options_.aiSearchDepth = blocks ? 15 : 5;
    RespawnWallOptions& walls = options_.respawnWallsResolved;
    walls = checkedAt(options_.respawnWalls, static_cast<int>(options_.gameMode));
    if (randomness_ < 2) {
        return;
    }
    // A round that starts empty and fills up.
    if (!blocks && privateFloat() > 0.9f && options_.wallDensity == autoDensity) {
        options_.wallPercent = 0;
        walls = options_.respawnWalls[static_cast<unsigned>(GameMode::SnakeHunter)];
    }
    if (walls.enabled) {
        if (privateFloat() > 0.6f) {
            walls.stopAt *= 2;
            if (privateFloat() > 0.6f) {
                walls.startBelow *= 2;
            }
        }
        if (privateFloat() > 0.6f) {
            walls.interval /= 2;
        }
    }
}

void Resolver::resolveAuctions() {
    const auto row = auctionIntervals.find(options_.auctions);
    options_.auctionInterval = row == auctionIntervals.end() ? 0 : globalInt(row->second.first, row->second.second);
}

}  // namespace

void automaticOptions() {
    Resolver().resolveAll();
}

}  // namespace vandrel
