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
