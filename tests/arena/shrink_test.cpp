#include <gtest/gtest.h>

#include <vector>

#include "support/round_fixture.h"

namespace vandrel {
namespace {

// A round of 19 x 11 squares whose walls are laid a step an update. Pillars are walled over and turn no cursor.
class ClosingRound : public TestRound {
  public:
    explicit ClosingRound(int rate = 60)
        : TestRound({.size = {19, 11}, .pillars = true, .rate = rate, .mode = GameMode::Deathmatch}) {
        gameOptions.shrinkSpeedFrames = 1;
    }

    // Skips the wait and the warning.
    void startClosing() {
        game().shrinkState = ShrinkState::Warning;
        game().shrinkCountdown = -499;
        game().updateShrink();
    }
};

int countEdgeWalls() {
    int count = 0;
    for (int x = 1; x < grid_squares_x - 1; ++x) {
        for (int y = 1; y < grid_squares_y - 1; ++y) {
            count += squareGrid.at(x, y) == SquareKind::EdgeWall ? 1 : 0;
        }
    }
    return count;
}

TEST(Shrink, WaitsWarnsForFiveHundredUpdatesAndCloses) {
    for (const int rate : {60, 120}) {
        ClosingRound round(rate);
        round.game().shrinkCountdown = 100;
        EXPECT_EQ(round.stepUntil([&] { return round.game().shrinkState == ShrinkState::Warning; }), 100);
        EXPECT_EQ(round.stepUntil([&] { return round.game().shrinkState == ShrinkState::Shrinking; }), 500) << rate;
    }
}

TEST(Shrink, TheWarningNeverEndsWhereShrinkingIsNotAllowed) {
    ClosingRound round;
    round.game().shrinkAllowed = false;
    round.game().shrinkCountdown = 1;
    round.step(700);
    EXPECT_EQ(round.game().shrinkState, ShrinkState::Warning);
    EXPECT_EQ(round.game().shrinkCountdown, 0);
}

TEST(Shrink, SwitchedOffTheStateGoesOnButNoWallIsLaid) {
    ClosingRound round;
    gameOptions.shrinkingOn = false;
    round.startClosing();
    round.step(50);
    EXPECT_EQ(round.game().shrinkState, ShrinkState::Shrinking);
    EXPECT_EQ(countEdgeWalls(), 0);
}

TEST(Shrink, EachStepTakesTheOptionsFramesAndIsHeardFromItsPlace) {
    ClosingRound round;
    gameOptions.shrinkSpeedFrames = 4;
    round.startClosing();
    round.takeHeard();
    round.step(3);
    EXPECT_EQ(countEdgeWalls(), 0);
    round.step();
    EXPECT_EQ(countEdgeWalls(), 1);
    const int pan = 1 * 255 / 19;
    EXPECT_EQ(round.takeHeard(), (std::vector<HeardSample>{{SampleIds::Splurge, 66, pan, 3000}}));
}

TEST(Shrink, AWallPushesTheBaseItCoversKeepsThePowerupUnderItAndKillsInTheNextFrame) {
    ClosingRound round;
    round.addTeam({1, 1}, {1, 0});
    round.addTeam({1, 5}, {1, 0});
    const auto player = round.addPlayer({1, 1});
    bonusGrid.at(2, 1) = Bonus::Speed;
    round.startClosing();
    round.step();
    EXPECT_EQ(teams[0].base(), (Square{2, 1}));
    EXPECT_EQ(teams[1].base(), (Square{1, 5}));
    EXPECT_FALSE(player->dead);
    round.step();
    EXPECT_EQ(teams[0].base(), (Square{3, 1}));
    EXPECT_EQ(bonusGrid.at(2, 1), Bonus::Speed);
    EXPECT_TRUE(player->dead);
}

TEST(Shrink, LastingGhostsBeginToFadeWhenTheWallsStart) {
    ClosingRound round;
    const auto ghost = round.addPlayer({9, 5});
    ghost->ghost = true;
    ghost->shieldTimer = Player::lastingShield();
    round.step(10);
    EXPECT_EQ(ghost->shieldTimer, Player::lastingShield());
    round.startClosing();
    EXPECT_EQ(round.stepUntil([&] { return !ghost->ghost; }), 121);
}

TEST(Shrink, CursorsAreSeenWhereTheyStandAndWhereTheyGo) {
    ClosingRound round;
    round.startClosing();
    const Game& game = round.game();
    EXPECT_TRUE(game.isShrinkCursorAt({1, 1}));
    EXPECT_TRUE(game.isShrinkCursorEntering({2, 1}));
    EXPECT_FALSE(game.isShrinkCursorAt({2, 1}));
    EXPECT_FALSE(game.isShrinkCursorEntering({3, 1}));
    EXPECT_TRUE(game.isShrinkCursorNear({4, 1}, 3.0f));
    EXPECT_FALSE(game.isShrinkCursorNear({4, 2}, 3.0f));
}

// Four rings round a middle row of nine squares. All but closed is the arena, for whoever waits to come back, while the
// first cursor stands in that row with walls above and below it. It passes the row in the sides of each ring before,
// with the square ahead of it still open. The way in between is told by the golden rounds.
TEST(Shrink, TheSpiralOfEachStyleClosesOnTheMiddleRow) {
    struct Case {
        int style;
        int allButClosed;  // after so many steps
        Square cursor;
        int closed;
    };
    for (const Case& c : {
             Case{1, 143, {4, 5}, 153},  // the last square of the innermost ring's left side
             Case{2, 71, {14, 5}, 77},   // of its right side: the first cursor is the one from the bottom right
             Case{3, 36, {5, 5}, 41},    // the middle row itself, which it enters from below
         }) {
        SCOPED_TRACE(c.style);
        ClosingRound round;
        const Game& game = round.game();
        gameOptions.shrinkStyleResolved = c.style;
        round.startClosing();
        EXPECT_EQ(round.stepUntil([&] { return game.isArenaAlmostClosed(); }), c.allButClosed);
        EXPECT_EQ(game.shrinkCursors.front().square(), c.cursor);
        EXPECT_EQ(round.stepUntil([&] {
            EXPECT_TRUE(game.isArenaAlmostClosed());
            return game.shrinkState == ShrinkState::Finished;
        }),
                  c.closed - c.allButClosed);
        round.step(20);
        EXPECT_EQ(countEdgeWalls(), 17 * 9);
        for (const ShrinkCursor& cursor : game.shrinkCursors) {
            EXPECT_EQ(cursor.y, 5) << "is left in the arena's middle row";
        }
    }
}

}  // namespace
}  // namespace vandrel
