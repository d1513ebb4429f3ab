#include "match/options/automatic_options.h"

#include <fmt/format.h>

#include <algorithm>
#include <array>
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

struct PlayerRange {
    int fewest;
    int most;
};

// What an arena size stands for when it, the shrink speed or the time before shrinking is automatic.
struct ArenaRow {
    PlayerRange players;      // that may meet in it
    PlayerRange wildPlayers;  // the same with the most randomness
    int shrinkSpeed;          // a row of shrinkSpeedFramesTable
    int timeBefore;           // a row of timeBeforeFramesTable
};

// By arena size; the first is Tiny. The ultra-wide sizes are never drawn, so they have no players.
constexpr int firstArena = 1;
constexpr std::array<ArenaRow, arenaSizes.size() - firstArena> arenaRows{{
    {{1, 2}, {1, 6}, 0, 1},
    {{2, 5}, {2, 16}, 2, 2},
    {{2, 16}, {2, 32}, 2, 2},
    {{6, 64}, {2, 100}, 2, 2},
    {{12, 100}, {2, 100}, 3, 2},
    {{16, 100}, {2, 100}, 3, 1},
    {{48, 100}, {64, 100}, 3, 1},
    {{64, 100}, {64, 100}, 4, 1},
    {{}, {}, 1, 1},
    {{}, {}, 2, 2},
    {{}, {}, 2, 2},
    {{}, {}, 3, 1},
    {{}, {}, 3, 1},
}};

// The arena size for fewer players than `below`. The rows ascend; beyond the last the size is Normal.
struct SizeByPlayers {
    int below;
    int size;
};
constexpr std::array<SizeByPlayers, 4> teamSizes{{{6, 3}, {16, 4}, {40, 5}, {100, 6}}};
constexpr std::array<SizeByPlayers, 4> soloSizes{{{9, 3}, {24, 4}, {64, 5}, {100, 6}}};

constexpr std::array<int, 6> shrinkSpeedFramesTable{60, 32, 16, 8, 4, 2};    // "Very Slow" to "Insane"
constexpr std::array<int, 4> timeBeforeFramesTable{1080, 2160, 5400, 7560};  // "Very Short" to "Long"
constexpr int firstSnakeTime = 1;                                            // 0 is Auto
constexpr int autoSnakeTime = 4;
constexpr int longSnakeTime = 5;
constexpr std::array<int, 5> preparationFramesTable{0, 200, 400, 600, 1000};  // "None" to "Long"
constexpr std::array<int, 5> spawnFramesTable{0, 199, 301, 401, 501};

struct AuctionInterval {
    int shortest;
    int longest;
};
constexpr int firstAuctionInterval = 1;  // 0 is Off
constexpr std::array<AuctionInterval, 3> auctionIntervals{{{800, 1200}, {1200, 2000}, {2000, 3000}}};

const ArenaRow& arenaRow(int size) {
    return checkedRow(arenaRows, size, firstArena);
}

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
    const bool likeTeams = isTeamMode(mode) || mode == GameMode::SnakeHunter;
    const auto& sizes = likeTeams ? teamSizes : soloSizes;
    const auto* const found = std::ranges::upper_bound(sizes, options_.numPlayers, {}, &SizeByPlayers::below);
    int size = found == sizes.end() ? normalArena : found->size;
    const int spread = isTeamMode(mode) && randomness_ > 0 ? globalInt(randomness_, randomness_ + 1) : randomness_;
    const auto players = randomness_ >= 2 ? &ArenaRow::wildPlayers : &ArenaRow::players;
    for (int round = 0; round < 3; ++round) {
        size = std::clamp(size + globalInt(-randomness_, spread), 1, colossalArena);
        while (options_.numPlayers < (arenaRow(size).*players).fewest) {
            --size;
        }
        while (options_.numPlayers > (arenaRow(size).*players).most) {
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
        speed = arenaRow(arena()).shrinkSpeed;
        for (int i = 0; i < randomness_; ++i) {
            if (globalFloat() > 0.5f) {
                speed = std::clamp(speed + globalInt(-randomness_, randomness_), 0, 5);
            }
        }
        fragments_.push_back(fmt::format("SSpeed: {:<9}", checkedAt(ShrinkSpeedNames, speed)));
    }
    options_.shrinkSpeedFrames = checkedRow(shrinkSpeedFramesTable, speed) * options_.frameMultiplier;
}

void Resolver::resolveTimeBeforeShrinking() {
    int time = options_.timeBeforeShrinking;
    if (time == autoTimeBeforeShrinking) {
        time = arenaRow(arena()).timeBefore;
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
    options_.timeBeforeShrinkingFrames = checkedRow(timeBeforeFramesTable, time) * options_.frameMultiplier;
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
    const int preparation = options_.preparationTime != 0
                                ? checkedRow(preparationFramesTable, options_.preparationTime, firstSnakeTime)
                                : checkedRow(preparationFramesTable, autoSnakeTime, firstSnakeTime) / others;
    options_.snakePreparationFrames = preparation * options_.frameMultiplier;

    int spawn = 0;
    if (options_.spawnInterval != 0) {
        spawn = checkedRow(spawnFramesTable, options_.spawnInterval, firstSnakeTime);
    } else {
        spawn = checkedRow(spawnFramesTable, autoSnakeTime, firstSnakeTime) / others;
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
            options_.snakeSpawnFrames =
                std::min(options_.snakeSpawnFrames, checkedRow(spawnFramesTable, longSnakeTime, firstSnakeTime));
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
    // The setting can be any number when it comes from a replay or a test; what is no row means no auctions.
    const int row = options_.auctions - firstAuctionInterval;
    if (row < 0 || row >= static_cast<int>(auctionIntervals.size())) {
        options_.auctionInterval = 0;
        return;
    }
    const AuctionInterval interval = checkedAt(auctionIntervals, row);
    options_.auctionInterval = globalInt(interval.shortest, interval.longest);
}

}  // namespace

void automaticOptions() {
    Resolver().resolveAll();
}

}  // namespace vandrel
