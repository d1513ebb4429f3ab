// Whole rounds of every mode, played by chance with no display, no sound and no asset: ten thousand updates each, with
// what must hold in any state looked at after every one.
#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <memory>
#include <random>
#include <string>

#include "arena/level_generation.h"
#include "base/random.h"
#include "match/options/automatic_options.h"
#include "match/options/name_tables.h"
#include "shell/frame_counter.h"
#include "support/round_fixture.h"

namespace vandrel {
namespace {

constexpr int updatesInAll = 10'000;
constexpr int playerCount = 4;
constexpr Square arena{27, 15};

bool isKnownKind(int kind) {
    return (kind >= SquareKind::Empty && kind <= SquareKind::HardWallHitTwice) ||
           (kind >= SquareKind::WallCrumbling && kind < SquareKind::WallCrumbled) ||
           (kind >= SquareKind::HardWallCrumbling && kind < SquareKind::HardWallCrumbled);
}

bool ringStands() {
    for (int x = 0; x < grid_squares_x; ++x) {
        for (int y = 0; y < grid_squares_y; ++y) {
            if (!isInnerSquare({x, y}) && squareGrid.at(x, y) != SquareKind::EdgeWall) {
                return false;
            }
        }
    }
    return true;
}

bool squaresAreInOrder() {
    for (int x = 0; x < grid_squares_x; ++x) {
        for (int y = 0; y < grid_squares_y; ++y) {
            const int bonus = bonusGrid.at(x, y);
            if (!isKnownKind(squareGrid.at(x, y)) || bonus < 0 || bonus >= bonusCount || bonus == Bonus::Death) {
                return false;
            }
        }
    }
    return true;
}

void expectPlayerInOrder(const Player& player, int updates) {
    ASSERT_TRUE(isInnerSquare(player.square())) << "player " << player.num << " in update " << updates;
    ASSERT_GE(player.snakeLengthNow(), 0);
    ASSERT_FALSE(player.crawling && player.isSnake() && !player.dead) << "player " << player.num;
    ASSERT_LE(player.speed, gameOptions.speedCap);
    // Bombs of an earlier life may lie there too, so the count can be lower, never higher.
    ASSERT_LE(player.bombsPlaced, countBombs(player)) << "player " << player.num << " in update " << updates;
    if (player.isSnake() && !player.dead && !player.snakeHistory.empty()) {
        ASSERT_GE(player.snakeLengthNow(), 4);
    }
}

// What the soak has seen happen, over all of its rounds.
struct Seen {
    int rounds = 0;
    int deaths = 0;
    int bangs = 0;
    int powerups = 0;
};

class Soak {
  public:
    explicit Soak(GameMode mode) : mode_(mode), world_({.mode = mode}) {}

    Seen run() {
        for (int updates = 0; updates < updatesInAll && !testing::Test::HasFatalFailure(); ++updates) {
            if (game_ == nullptr) {
                startRound();
            }
            pressKeys();
            step(updates);
        }
        return seen_;
    }

  private:
    // As the match driver does it, with players who stay for all rounds.
    void startRound() {
        gameOptions.numPlayers = playerCount;
        gameOptions.gameMode = mode_;
        gameOptions.arenaSize = 3;
        gameOptions.randomness = 2;
        gameOptions.timeBeforeShrinking = 0;
        gameOptions.shrinkSpeed = 4;
        gameOptions.powerupDensity = 20;
        automaticOptions();
        players.resize(std::min<std::size_t>(players.size(), playerCount));
        if (players.empty()) {
            makePlayers();
        }
        game_ = std::make_unique<Game>(PackagedReplayData{});
        game_->shrinkCountdown = gameOptions.timeBeforeShrinkingFrames.value();
        game_->aiSnakesLeft = gameOptions.snakeCount;
        game_->aiSnakeCountdown = gameOptions.snakePreparationFrames;
        frameCounter = 0;
        setUpRound(arena, game_->replay, *game_, false);
        for (const auto& player : players) {
            player->startRound();
        }
        ++seen_.rounds;
    }

    void makePlayers() {
        const int teamCount = isTeamMode(mode_) || mode_ == GameMode::SnakeHunter ? 2 : 0;
        for (int i = 0; i < teamCount; ++i) {
            world_.addTeam({1 + 24 * i, 7});
        }
        for (int i = 0; i < playerCount; ++i) {
            const int team = mode_ == GameMode::SnakeHunter ? 0 : (teamCount == 0 ? -1 : i % 2);
            world_.addPlayer({1, 1}, team)->cash = 3;
        }
    }

    void pressKeys() {
        for (int i = 0; i < playerCount; ++i) {
            const Player& player = *players[static_cast<std::size_t>(i)];
            if (--legs_[i] > 0) {
                continue;
            }
            legs_[i] = 1 + static_cast<int>(random_() % 40);
            HeldKeys keys;
            const auto way = random_() % 5;
            keys.left = way == 0;
            keys.right = way == 1;
            keys.up = way == 2;
            keys.down = way == 3;
            keys.fire = random_() % 4 == 0;
            keys.button2 = random_() % 3 == 0;
            world_.hold(player, keys);
        }
    }

    void step(int updates) {
        gameOptions.aiSearchDepth = 5;  // a deep search is no rule, and takes its time
        const auto deadBefore = countDead();
        bool roundOver = false;
        bool replayEnded = false;
        game_->update(roundOver, replayEnded, nullptr);
        ++frameCounter;
        seen_.deaths += std::max(countDead() - deadBefore, 0);
        for (const HeardSample& sample : world_.takeHeard()) {
            seen_.bangs += sample == HeardSample{SampleIds::Explosion1, 255} ? 1 : 0;
            seen_.powerups += sample.id == SampleIds::HitBass || sample.id == SampleIds::Cash2 ? 1 : 0;
        }
        check(updates);
        if (roundOver) {
            game_->getWinners();
            game_ = nullptr;
        }
    }

    static int countDead() {
        return static_cast<int>(
            std::count_if(players.begin(), players.end(), [](const auto& player) { return player->dead; }));
    }

    void check(int updates) const {
        ASSERT_TRUE(ringStands()) << "update " << updates;
        if (updates % 10 == 0) {
            ASSERT_TRUE(squaresAreInOrder()) << "update " << updates;
        }
        for (const auto& player : players) {
            expectPlayerInOrder(*player, updates);
        }
        for (const Explosion& flame : game_->explosions) {
            ASSERT_TRUE(isInsideGrid({flame.x, flame.y})) << "update " << updates;
        }
    }

    GameMode mode_;
    TestRound world_;
    std::mt19937 random_{1};
    std::array<int, playerCount> legs_{};
    Seen seen_;
    std::unique_ptr<Game> game_;
};

class HeadlessSoak : public testing::TestWithParam<GameMode> {};

TEST_P(HeadlessSoak, TenThousandUpdatesByChanceRunWithoutAFault) {
    seedGameRand(7);
    const Seen seen = Soak(GetParam()).run();
    EXPECT_GT(seen.rounds, 0);
    EXPECT_GT(seen.deaths, 3);
    EXPECT_GT(seen.bangs, 20);
    EXPECT_GT(seen.powerups, 0);
    RecordProperty("rounds", seen.rounds);
    RecordProperty("deaths", seen.deaths);
    RecordProperty("bangs", seen.bangs);
    RecordProperty("powerups", seen.powerups);
}

INSTANTIATE_TEST_SUITE_P(EveryMode, HeadlessSoak,
                         testing::Values(GameMode::Classic, GameMode::CaptureTheFlag, GameMode::BattleRoyale,
                                         GameMode::KingOfTheHill, GameMode::SnakeHunter, GameMode::Deathmatch,
                                         GameMode::Everything),
                         [](const auto& mode) {
                             return std::string(gameModeNames.at(static_cast<std::size_t>(mode.param)).internalName);
                         });

}  // namespace
}  // namespace vandrel
