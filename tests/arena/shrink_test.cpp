#include <gtest/gtest.h>

#include <vector>

#include "support/round_fixture.h"

namespace vandrel {
namespace {

// A round whose walls close in right away, one step an update.
class ShrinkTest : public testing::Test {
  protected:
    static RoundSetup closing(Square size = {19, 11}) {
        RoundSetup setup;
        setup.size = size;
        setup.mode = GameMode::Deathmatch;
        setup.tune = [](GameOptions& options) {
            options.shrinkingOn = true;
            options.shrinkStyleResolved = 1;
            options.shrinkSpeedFrames = 1;
        };
        return setup;
    }
    // Skips the wait and the warning.
    static void startClosing(TestRound& round) {
        round.game().shrinkState = ShrinkState::Warning;
        round.game().shrinkCountdown = -499;
        round.game().updateShrink();
    }
    static int countEdgeWalls() {
        int count = 0;
        for (int x = 1; x < grid_squares_x - 1; ++x) {
            for (int y = 1; y < grid_squares_y - 1; ++y) {
                count += squareGrid.at(x, y) == SquareKind::EdgeWall ? 1 : 0;
            }
        }
        return count;
    }
};

TEST_F(ShrinkTest, WaitsWarnsForFiveHundredUpdatesAndCloses) {
    for (const int rate : {60, 120}) {
        RoundSetup setup = closing();
        setup.rate = rate;
        TestRound round(setup);
        round.game().shrinkCountdown = 100;
        EXPECT_EQ(round.stepUntil([&] { return round.game().shrinkState == ShrinkState::Warning; }), 100);
        EXPECT_EQ(round.stepUntil([&] { return round.game().shrinkState == ShrinkState::Shrinking; }), 500) << rate;
    }
}

TEST_F(ShrinkTest, TheWarningNeverEndsWhereShrinkingIsNotAllowed) {
    TestRound round(closing());
    round.game().shrinkAllowed = false;
    round.game().shrinkCountdown = 1;
    round.step(700);
    EXPECT_EQ(round.game().shrinkState, ShrinkState::Warning);
    EXPECT_EQ(round.game().shrinkCountdown, 0);
}

TEST_F(ShrinkTest, WithShrinkingOffTheStateGoesOnButNoWallIsLaid) {
    RoundSetup setup = closing();
    setup.tune = [](GameOptions& options) { options.shrinkingOn = false; };
    TestRound round(setup);
    startClosing(round);
    round.step(50);
    EXPECT_EQ(round.game().shrinkState, ShrinkState::Shrinking);
    EXPECT_TRUE(round.game().shrinkCursors.empty());
    EXPECT_EQ(countEdgeWalls(), 0);
}

TEST_F(ShrinkTest, TheClassicSpiralGoesClockwiseFromTheTopLeft) {
    TestRound round(closing());
    startClosing(round);
    round.step();
    EXPECT_EQ(squareGrid.at(1, 1), SquareKind::EdgeWall);
    round.step(16);
    EXPECT_EQ(squareGrid.at(17, 1), SquareKind::EdgeWall);
    EXPECT_EQ(countEdgeWalls(), 17);
    round.step();
    EXPECT_EQ(squareGrid.at(17, 2), SquareKind::EdgeWall) << "then down";
    round.step(7 + 16);
    EXPECT_EQ(squareGrid.at(1, 9), SquareKind::EdgeWall) << "then left";
    round.step(7);
    EXPECT_EQ(squareGrid.at(1, 2), SquareKind::EdgeWall) << "then up";
    round.step();
    EXPECT_EQ(squareGrid.at(2, 2), SquareKind::EdgeWall) << "then inward";
}

TEST_F(ShrinkTest, EachStyleFillsTheArenaAndFinishes) {
    struct Case {
        int style;
        std::size_t cursors;
    };
    for (const Case& c : std::vector<Case>{{1, 1}, {2, 2}, {3, 4}}) {
        TestRound round(closing());
        gameOptions.shrinkStyleResolved = c.style;
        startClosing(round);
        ASSERT_EQ(round.game().shrinkCursors.size(), c.cursors);
        const int updates = round.stepUntil([&] { return round.game().shrinkState == ShrinkState::Finished; });
        EXPECT_GT(updates, 0) << c.style;
        EXPECT_GE(countEdgeWalls(), 17 * 9 - static_cast<int>(c.cursors)) << c.style;
        EXPECT_LE(updates, 17 * 9 / static_cast<int>(c.cursors) + 4) << c.style;
    }
}

TEST_F(ShrinkTest, EachStepTakesTheOptionsFramesAndIsHeardFromItsPlace) {
    RoundSetup setup = closing();
    TestRound round(setup);
    gameOptions.shrinkSpeedFrames = 4;
    startClosing(round);
    round.takeHeard();
    round.step(3);
    EXPECT_EQ(countEdgeWalls(), 0);
    round.step();
    EXPECT_EQ(countEdgeWalls(), 1);
    const int pan = 1 * 255 / 19;
    EXPECT_EQ(round.takeHeard(), (std::vector<HeardSample>{{SampleIds::Splurge, 66, pan, 3000}}));
}

TEST_F(ShrinkTest, AWallPushesTheBaseItCoversAndKeepsThePowerupUnderIt) {
    RoundSetup setup = closing();
    setup.mode = GameMode::KingOfTheHill;
    TestRound round(setup);
    round.addTeam({1, 1}, {1, 0});
    round.addTeam({1, 5}, {1, 0});
    bonusGrid.at(1, 1) = Bonus::Speed;
    startClosing(round);
    round.step();
    EXPECT_EQ(teams[0].base(), (Square{2, 1}));
    EXPECT_EQ(teams[1].base(), (Square{1, 5}));
    EXPECT_EQ(bonusGrid.at(1, 1), Bonus::Speed);
    round.step();
    EXPECT_EQ(teams[0].base(), (Square{3, 1}));
}

TEST_F(ShrinkTest, AWallKillsWhoStandsThereInTheNextFrame) {
    TestRound round(closing());
    const auto player = round.addPlayer({1, 1});
    startClosing(round);
    round.step();
    EXPECT_FALSE(player->dead);
    round.step();
    EXPECT_TRUE(player->dead);
}

TEST_F(ShrinkTest, ABombUnderAWallGoesOff) {
    TestRound round(closing());
    const auto player = round.addPlayer({9, 5});
    placeBomb({1, 1}, player, 80);
    player->remoteActive = true;
    startClosing(round);
    round.step();
    EXPECT_TRUE(hasBomb({1, 1}));
    round.step();
    EXPECT_FALSE(hasBomb({1, 1}));
    EXPECT_FALSE(player->remoteActive);
}

TEST_F(ShrinkTest, LastingGhostsBeginToFadeWhenTheWallsStart) {
    TestRound round(closing());
    const auto ghost = round.addPlayer({9, 5});
    ghost->ghost = true;
    ghost->shieldTimer = Player::lastingShield();
    round.step(10);
    EXPECT_EQ(ghost->shieldTimer, Player::lastingShield());
    startClosing(round);
    EXPECT_EQ(round.stepUntil([&] { return !ghost->ghost; }), 121);
}

TEST_F(ShrinkTest, TheArenaIsAlmostClosedOnceTheSpiralIsInTheMiddleRowBetweenWalls) {
    TestRound round(closing());
    startClosing(round);
    const int updates = round.stepUntil([&] { return round.game().isArenaAlmostClosed(); });
    ASSERT_GT(updates, 0);
    EXPECT_EQ(round.game().shrinkCursors.front().y, 5);
    EXPECT_EQ(round.game().shrinkState, ShrinkState::Shrinking);
    EXPECT_GT(countEdgeWalls(), 17 * 9 - 20);
}

TEST_F(ShrinkTest, CursorsAreSeenWhereTheyStandAndWhereTheyGo) {
    TestRound round(closing());
    startClosing(round);
    const Game& game = round.game();
    EXPECT_TRUE(game.isShrinkCursorAt({1, 1}));
    EXPECT_TRUE(game.isShrinkCursorEntering({2, 1}));
    EXPECT_FALSE(game.isShrinkCursorAt({2, 1}));
    EXPECT_FALSE(game.isShrinkCursorEntering({3, 1}));
    EXPECT_TRUE(game.isShrinkCursorNear({4, 1}, 3.0f));
    EXPECT_FALSE(game.isShrinkCursorNear({4, 2}, 3.0f));
}

}  // namespace
}  // namespace vandrel
