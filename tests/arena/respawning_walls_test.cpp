// When, where and how many walls come back, and what they wait for, is told by the golden rounds, where one pixel of a
// walk depends on each. Here is what live play adds, and what the rules of old replays leave out.
#include <gtest/gtest.h>

#include "support/round_fixture.h"

namespace vandrel {
namespace {

RoundSetup returning(int rate, std::optional<int> version = {}) {
    return {.size = {19, 11},
            .rate = rate,
            .mode = GameMode::Deathmatch,
            .version = version,
            .tune = [](GameOptions& options) {
                options.respawnWallsResolved = {true, 10, 3, 5, 20};
                options.powerupDisabled.fill(true);
                options.powerupDisabled[Bonus::Speed] = false;
            }};
}

TEST(RespawningWalls, StandAHundredTwentyUpdatesAfterTheirAnnouncementWithAPowerup) {
    for (const int rate : {60, 120}) {
        TestRound round(returning(rate));
        round.addPlayer({1, 1});
        round.step(10);
        ASSERT_EQ(round.game().pendingWalls.size(), 1U);
        // (17, 9) is farther, but all three columns round it touch the edge; so do two of (16, 8)'s neighbours' rows.
        const Square square = round.game().pendingWalls.front().square();
        EXPECT_EQ(square, (Square{16, 8}));
        round.step(119);
        EXPECT_EQ(squareGrid.at(square), SquareKind::Empty) << rate;
        round.step();
        EXPECT_EQ(squareGrid.at(square), SquareKind::Wall) << rate;
        EXPECT_EQ(bonusGrid.at(square), Bonus::Speed);
    }
}

TEST(RespawningWalls, AreUnknownToReplaysFromBeforeThem) {
    TestRound none(returning(60, replayVersion(0, 96, 6)));
    none.addPlayer({1, 1});
    none.step(30);
    EXPECT_TRUE(none.game().pendingWalls.empty());
}

TEST(RespawningWalls, AreDrawnAtRandomByReplaysFromBeforeSquaresWereScored) {
    TestRound drawn(returning(60, replayVersion(0, 96, 9)));
    drawn.addPlayer({1, 1});
    drawn.step(10);
    ASSERT_EQ(drawn.game().pendingWalls.size(), 1U);
    // The first two outputs of a twister with the default seed, into 17 columns and 9 rows.
    EXPECT_EQ(drawn.game().pendingWalls[0].square(),
              (Square{1 + static_cast<int>(3499211612U % 17U), 1 + static_cast<int>(581869302U % 9U)}));
}

}  // namespace
}  // namespace vandrel
