#include "match/options/automatic_options.h"

#include <gmock/gmock.h>

#include <array>
#include <string>
#include <vector>

#include "base/random.h"
#include "match/options/game_options.h"
#include "match/options/name_tables.h"
#include "shell/log.h"

namespace vandrel {
namespace {

std::string logged;

class AutomaticOptionsTest : public testing::Test {
  protected:
    void SetUp() override {
        before_ = setDebugOutput([](const char* line, std::size_t length) { logged.append(line, length); });
        gameOptions = GameOptions{};
        globalGenerator = std::mt19937{};
        seedGameRand(1);
        logged.clear();
    }
    void TearDown() override {
        setDebugOutput(before_);
        gameOptions = GameOptions{};
    }

  private:
    DebugOutput before_ = nullptr;
};

// Arena size, shrink speed frames, frames before shrinking, shrink style, grid blocks, wall percent, powerup percent,
// auction interval, preparation frames, spawn frames, snakes, snakes at once, search depth, and of the returning walls
// interval, startBelow, stopAt.
using Resolved = std::array<int, 16>;

Resolved resolvedOptions() {
    const GameOptions& o = gameOptions;
    return {*o.arenaSizeResolved,
            *o.shrinkSpeedFrames,
            *o.timeBeforeShrinkingFrames,
            *o.shrinkStyleResolved,
            *o.gridBlocksResolved ? 1 : 0,
            *o.wallPercent,
            *o.powerupPercent,
            *o.auctionInterval,
            o.snakePreparationFrames,
            o.snakeSpawnFrames,
            o.snakeCount,
            o.snakesAtOnce,
            o.aiSearchDepth,
            o.respawnWallsResolved.interval,
            o.respawnWallsResolved.startBelow,
            o.respawnWallsResolved.stopAt};
}

struct Drawn {
    int mode;
    int players;
    int randomness;
    int frameMultiplier;
    int gridBlocks;
    int call;  // the how manieth in a row from the seeds
    Resolved resolved;
};

// Worked out by a second implementation of the drawing rules, in another language, with generators of its own.
const std::vector<Drawn> drawnFromTheSeeds{
    {0, 2, 0, 1, 1, 1, {3, 16, 5400, 1, 0, 70, 40, 1674, 600, 401, 5, 1, 5, 0, 0, 0}},
    {0, 2, 0, 1, 1, 4, {3, 16, 5400, 1, 0, 70, 40, 2000, 600, 401, 5, 1, 5, 0, 0, 0}},
    {0, 2, 0, 1, 1, 8, {3, 16, 5400, 1, 0, 70, 40, 1284, 600, 401, 5, 1, 5, 0, 0, 0}},
    {1, 8, 0, 1, 1, 1, {4, 16, 5400, 1, 0, 70, 40, 1674, 85, 285, 11, 2, 5, 0, 0, 0}},
    {1, 8, 0, 1, 1, 4, {4, 16, 5400, 1, 0, 70, 40, 2000, 85, 285, 11, 2, 5, 0, 0, 0}},
    {1, 8, 0, 1, 1, 8, {4, 16, 5400, 1, 0, 70, 40, 1284, 85, 285, 11, 2, 5, 0, 0, 0}},
    {4, 4, 0, 1, 1, 1, {3, 16, 7560, 2, 0, 80, 50, 1859, 200, 133, 7, 1, 5, 10, 10, 50}},
    {4, 4, 0, 1, 1, 4, {3, 16, 7560, 2, 0, 80, 50, 1664, 200, 133, 7, 1, 5, 10, 10, 50}},
    {4, 4, 0, 1, 1, 8, {3, 16, 7560, 2, 0, 80, 50, 2000, 200, 133, 7, 1, 5, 10, 10, 50}},
    {6, 20, 0, 2, 1, 1, {4, 32, 10800, 2, 0, 70, 40, 1674, 62, 210, 23, 2, 5, 10, 10, 50}},
    {6, 20, 0, 2, 1, 4, {4, 32, 10800, 2, 0, 70, 40, 2000, 62, 210, 23, 2, 5, 10, 10, 50}},
    {6, 20, 0, 2, 1, 8, {5, 16, 10800, 2, 0, 70, 40, 1284, 62, 210, 23, 2, 5, 10, 10, 50}},
    {0, 2, 1, 1, 0, 1, {3, 16, 7560, 2, 1, 66, 65, 1810, 600, 401, 5, 1, 15, 0, 0, 0}},
    {0, 2, 1, 1, 0, 4, {3, 16, 5400, 2, 1, 66, 40, 1583, 600, 401, 5, 1, 15, 0, 0, 0}},
    {0, 2, 1, 1, 0, 8, {3, 16, 5400, 2, 1, 67, 40, 1441, 600, 401, 5, 1, 15, 0, 0, 0}},
    {3, 12, 1, 1, 0, 1, {4, 16, 7560, 2, 1, 66, 65, 1810, 54, 180, 15, 2, 15, 0, 0, 0}},
    {3, 12, 1, 1, 0, 4, {4, 16, 7560, 1, 1, 76, 40, 1686, 54, 180, 15, 2, 15, 0, 0, 0}},
    {3, 12, 1, 1, 0, 8, {3, 16, 5400, 1, 1, 68, 40, 1694, 54, 36, 15, 1, 15, 0, 0, 0}},
    {4, 5, 1, 1, 0, 1, {3, 16, 7560, 2, 1, 90, 52, 2000, 150, 100, 8, 1, 15, 10, 10, 50}},
    {4, 5, 1, 1, 0, 4, {3, 16, 7560, 2, 0, 84, 50, 1351, 150, 100, 8, 1, 5, 10, 10, 50}},
    {4, 5, 1, 1, 0, 8, {3, 16, 7560, 2, 1, 89, 50, 1950, 150, 100, 8, 1, 15, 10, 10, 50}},
    {5, 30, 1, 2, 0, 1, {5, 16, 15120, 2, 1, 66, 65, 1810, 40, 130, 30, 2, 15, 0, 0, 0}},
    {5, 30, 1, 2, 0, 4, {4, 32, 10800, 2, 1, 66, 40, 1583, 40, 130, 30, 2, 15, 0, 0, 0}},
    {5, 30, 1, 2, 0, 8, {4, 32, 10800, 2, 1, 67, 40, 1441, 40, 130, 30, 2, 15, 0, 0, 0}},
    {0, 2, 2, 1, 0, 1, {4, 2, 5400, 1, 0, 0, 78, 1565, 600, 401, 5, 1, 5, 5, 10, 100}},
    {0, 2, 2, 1, 0, 4, {3, 16, 5400, 2, 0, 78, 80, 1968, 600, 401, 5, 1, 5, 0, 0, 0}},
    {0, 2, 2, 1, 0, 8, {5, 8, 7560, 2, 1, 62, 40, 1308, 600, 401, 5, 1, 15, 0, 0, 0}},
    {2, 40, 2, 1, 0, 1, {4, 4, 5400, 1, 0, 0, 78, 1565, 15, 50, 30, 2, 5, 5, 10, 100}},
    {2, 40, 2, 1, 0, 4, {4, 32, 5400, 2, 0, 100, 40, 1968, 15, 50, 30, 2, 5, 0, 0, 0}},
    {2, 40, 2, 1, 0, 8, {5, 4, 5400, 2, 1, 87, 40, 1904, 15, 50, 30, 2, 15, 0, 0, 0}},
    {4, 5, 2, 1, 0, 1, {4, 2, 7560, 2, 0, 0, 100, 1423, 150, 500, 8, 2, 5, 5, 10, 100}},
    {4, 5, 2, 1, 0, 4, {5, 16, 7560, 2, 1, 90, 40, 1608, 150, 500, 8, 2, 15, 5, 20, 100}},
    {4, 5, 2, 1, 0, 8, {5, 2, 7560, 2, 1, 94, 50, 1351, 150, 500, 8, 2, 15, 10, 10, 100}},
    {6, 6, 2, 1, 0, 1, {4, 4, 5400, 1, 0, 0, 78, 1565, 120, 400, 9, 2, 5, 5, 10, 100}},
    {6, 6, 2, 1, 0, 4, {3, 32, 5400, 2, 0, 100, 40, 1968, 120, 80, 9, 1, 5, 10, 10, 50}},
    {6, 6, 2, 1, 0, 8, {4, 8, 5400, 2, 1, 87, 40, 1904, 120, 400, 9, 2, 15, 10, 10, 100}},
    {5, 100, 2, 2, 0, 1, {5, 4, 10800, 2, 0, 0, 78, 1565, 12, 40, 30, 2, 5, 5, 10, 100}},
    {5, 100, 2, 2, 0, 4, {5, 16, 10800, 2, 0, 78, 80, 1968, 12, 40, 30, 2, 5, 0, 0, 0}},
    {5, 100, 2, 2, 0, 8, {5, 16, 15120, 2, 1, 62, 40, 1308, 12, 40, 30, 2, 15, 0, 0, 0}},
};

TEST_F(AutomaticOptionsTest, DrawsTheSameFromTheSameSeedsAtEveryRandomness) {
    for (const Drawn& drawn : drawnFromTheSeeds) {
        gameOptions = GameOptions{};
        gameOptions.gameMode = static_cast<GameMode>(drawn.mode);
        gameOptions.numPlayers = drawn.players;
        gameOptions.randomness = drawn.randomness;
        gameOptions.frameMultiplier = drawn.frameMultiplier;
        gameOptions.gridBlocks = drawn.gridBlocks;
        globalGenerator = std::mt19937{};
        seedGameRand(1);
        for (int call = 0; call < drawn.call; ++call) {
            automaticOptions();
        }
        EXPECT_EQ(resolvedOptions(), drawn.resolved)
            << gameModeNames[static_cast<std::size_t>(drawn.mode)].longName << ", " << drawn.players
            << " players, randomness " << drawn.randomness << ", call " << drawn.call;
    }
}

TEST_F(AutomaticOptionsTest, ChosenFieldsAreTakenAsTheyAreAndNotLogged) {
    gameOptions.arenaSize = 12;
    gameOptions.shrinkSpeed = 5;
    gameOptions.timeBeforeShrinking = 0;
    gameOptions.shrinkStyle = 3;
    gameOptions.gridBlocks = 2;
    gameOptions.wallDensity = 3;
    gameOptions.powerupDensity = 20;
    gameOptions.auctions = 0;
    gameOptions.snakeNumber = 7;
    gameOptions.maxSnakes = 4;
    gameOptions.preparationTime = 5;
    gameOptions.spawnInterval = 2;
    gameOptions.frameMultiplier = 2;
    automaticOptions();
    EXPECT_EQ(resolvedOptions(), (Resolved{12, 4, 2160, 3, 1, 15, 100, 0, 2000, 398, 7, 4, 15, 0, 0, 0}));
    EXPECT_EQ(globalGenerator, std::mt19937{}) << "nothing was left to chance";
    EXPECT_EQ(logged, "0: \n");
}

TEST_F(AutomaticOptionsTest, LogsEachAutomaticChoiceInOneLine) {
    automaticOptions();
    EXPECT_EQ(logged,
              "0: Size: Normal   SSpeed: Normal    TimeBeforeS: Normal     SStyle: Classic    WallPb: 70   "
              "BonusPb: 40   SnakeInterval (unmod): 401  nSnakes: 5   \n");
}

TEST_F(AutomaticOptionsTest, AHundredPlayersAlwaysFindAnArenaThatHoldsThem) {
    gameOptions.numPlayers = 100;
    for (int i = 0; i < 50; ++i) {
        automaticOptions();
        EXPECT_GE(gameOptions.arenaSizeResolved, 4);
    }
}

TEST_F(AutomaticOptionsTest, AnArenaSizeOutsideTheTableIsAnError) {
    gameOptions.arenaSize = 14;
    EXPECT_THAT(automaticOptions, testing::ThrowsMessage<std::out_of_range>("invalid map<K, T> key"));
}

TEST(NameTables, HaveTheSizesThatTheirFieldsNeed) {
    const GameOptions defaults;
    EXPECT_EQ(ShrinkSpeedNames[static_cast<std::size_t>(defaults.shrinkSpeed)], "Auto");
    EXPECT_EQ(TimeBeforeShrinkingNames[static_cast<std::size_t>(defaults.timeBeforeShrinking)], "Auto");
    EXPECT_EQ(DensityNames[static_cast<std::size_t>(defaults.wallDensity)], "Auto");
    EXPECT_EQ(DensityNames[20], "100");
    EXPECT_EQ(bonusNames.size(), defaults.powerupDisabled.size());
    for (std::size_t i = 1; i < arenaSizes.size(); ++i) {
        EXPECT_EQ(arenaSizes[i].width % 2, 1);
        EXPECT_EQ(arenaSizes[i].height % 2, 1);
    }
}

}  // namespace
}  // namespace vandrel
