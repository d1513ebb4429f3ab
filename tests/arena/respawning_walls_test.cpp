#include <gtest/gtest.h>

#include "support/round_fixture.h"

namespace vandrel {
namespace {

class RespawningWallsTest : public testing::Test {
  protected:
    static RoundSetup setup() {
        RoundSetup setup;
        setup.size = {19, 11};
        setup.mode = GameMode::Deathmatch;
        setup.tune = [](GameOptions& options) {
            options.respawnWallsResolved = {true, 10, 3, 5, 20};
            options.powerupDisabled.fill(true);
            options.powerupDisabled[Bonus::Speed] = false;
        };
        return setup;
    }
    static int countWalls() {
        int count = 0;
        for (int x = 1; x < grid_squares_x - 1; ++x) {
            for (int y = 1; y < grid_squares_y - 1; ++y) {
                count += isBreakableWall(squareGrid.at(x, y)) ? 1 : 0;
            }
        }
        return count;
    }
};

TEST_F(RespawningWallsTest, AWallIsAnnouncedAndStandsAHundredTwentyUpdatesLaterWithAPowerup) {
    for (const int rate : {60, 120}) {
        RoundSetup withRate = setup();
        withRate.rate = rate;
        TestRound round(withRate);
        round.addPlayer({1, 1});
        EXPECT_EQ(round.stepUntil([&] { return !round.game().pendingWalls.empty(); }), 10);
        const PendingWall wall = round.game().pendingWalls.front();
        EXPECT_EQ(round.stepUntil([] { return countWalls() > 0; }), 120) << rate;
        EXPECT_EQ(squareGrid.at(wall.x, wall.y), SquareKind::Wall);
        EXPECT_EQ(bonusGrid.at(wall.x, wall.y), Bonus::Speed);
    }
}

TEST_F(RespawningWallsTest, WallsComeBackFromTheLowerLimitToTheUpperAndNotAgainBefore) {
    TestRound round(setup());
    round.addPlayer({1, 1});
    round.step(1000);
    const int standing = countWalls();
    EXPECT_GE(standing, 5);
    EXPECT_TRUE(round.game().pendingWalls.empty());
    EXPECT_FALSE(round.game().respawnPhaseActive);
    // Three still stand: that is not below the lower limit.
    int left = standing;
    for (int x = 1; x < grid_squares_x - 1 && left > 3; ++x) {
        for (int y = 1; y < grid_squares_y - 1 && left > 3; ++y) {
            if (isBreakableWall(squareGrid.at(x, y))) {
                squareGrid.set(x, y, SquareKind::Empty);
                bonusGrid.at(x, y) = 0;
                --left;
            }
        }
    }
    round.step(50);
    EXPECT_TRUE(round.game().pendingWalls.empty());
}

TEST_F(RespawningWallsTest, NothingIsAnnouncedWithoutEnoughFreeSquares) {
    RoundSetup tight = setup();
    tight.tune = [](GameOptions& options) { options.respawnWallsResolved = {true, 10, 10, 50, 17 * 9}; };
    TestRound round(tight);
    round.addPlayer({1, 1});
    round.game().respawnPhaseActive = true;
    round.step(100);
    EXPECT_TRUE(round.game().pendingWalls.empty());
    EXPECT_FALSE(round.game().respawnPhaseActive);
}

TEST_F(RespawningWallsTest, AnAnnouncedWallWhoseSquareIsTakenIsDropped) {
    TestRound round(setup());
    const auto player = round.addPlayer({1, 1});
    round.stepUntil([&] { return !round.game().pendingWalls.empty(); });
    const PendingWall wall = round.game().pendingWalls.front();
    player->x = wall.x * 32;
    player->y = wall.y * 32;
    round.step(121);
    EXPECT_EQ(squareGrid.at(wall.x, wall.y), SquareKind::Empty);
}

TEST_F(RespawningWallsTest, TheFirstWallComesFarFromThePlayerAndAwayFromTheEdge) {
    TestRound round(setup());
    round.addPlayer({1, 1});
    round.step(10);
    ASSERT_EQ(round.game().pendingWalls.size(), 1U);
    // (17, 9) is farther, but all three columns round it touch the edge; so do two of (16, 8)'s neighbours' rows.
    const PendingWall wall = round.game().pendingWalls.front();
    EXPECT_EQ((Square{wall.x, wall.y}), (Square{16, 8}));
}

TEST_F(RespawningWallsTest, WhatBlocksAReturningWall) {
    TestRound round(setup());
    const auto player = round.addPlayer({3, 3});
    const Game& game = round.game();
    EXPECT_FALSE(canRespawnWallAt(game, {3, 3}));
    player->dead = true;
    EXPECT_TRUE(canRespawnWallAt(game, {3, 3})) << "the dead do not matter";
    player->dead = false;
    placeBomb({5, 5}, player, 90);
    EXPECT_TRUE(canRespawnWallAt(game, {5, 5})) << "nor do bombs";
    squareGrid.set(6, 5, SquareKind::WallCrumbling);
    EXPECT_TRUE(canRespawnWallAt(game, {6, 5})) << "nor crumbling walls";
    bonusGrid.at(7, 5) = Bonus::Cash;
    EXPECT_FALSE(canRespawnWallAt(game, {7, 5}));
    squareGrid.set(8, 5, SquareKind::HardWall);
    EXPECT_FALSE(canRespawnWallAt(game, {8, 5}));
    round.addSnake({9, 5}, Facing::Right, 4);
    EXPECT_FALSE(canRespawnWallAt(game, {9, 5}));
}

TEST_F(RespawningWallsTest, OldReplaysDoNotKnowThemOrDrawTheirSquares) {
    RoundSetup none = setup();
    none.version = replayVersion(0, 96, 6);
    {
        TestRound round(none);
        round.addPlayer({1, 1});
        round.step(30);
        EXPECT_TRUE(round.game().pendingWalls.empty());
    }
    RoundSetup drawn = setup();
    drawn.version = replayVersion(0, 96, 9);
    TestRound round(drawn);
    round.addPlayer({1, 1});
    round.step(10);
    ASSERT_EQ(round.game().pendingWalls.size(), 1U);
    // The first two outputs of a twister with the default seed, into 17 columns and 9 rows.
    EXPECT_EQ(round.game().pendingWalls[0].x, 1 + static_cast<int>(3499211612U % 17U));
    EXPECT_EQ(round.game().pendingWalls[0].y, 1 + static_cast<int>(581869302U % 9U));
}

}  // namespace
}  // namespace vandrel
