// What releases changed in who has records and lines of verification, and in the rules of flags, of which the captures
// are recorded: each is played on both sides of its change. What is in a record is tested with the records.
#include <gtest/gtest.h>

#include <memory>
#include <sstream>

#include "players/both_sides.h"
#include "shell/switches.h"

namespace vandrel {
namespace {

Flag looseFlag(int team, Pixel place) {
    Flag flag;
    flag.team = team;
    flag.inBase = false;
    flag.moveTo(place);
    return flag;
}

// Steps through the lines, which must be all that the players' positions are held against.
void stepAgainst(TestRound& round, const std::string& lines) {
    const auto text = std::make_shared<std::istringstream>(lines + "END\n");
    verifyEnabled = true;
    round.game().replay.inputVerify = text;
    EXPECT_NO_THROW(round.step());
    std::string next;
    *text >> next;
    EXPECT_EQ(next, "END");
}

TEST(Since_0_0_7, AFlagIsNotTakenByItsOwnTeam) {
    playBothSides(replayVersion(0, 0, 7),
                  [](TestRound& round, bool old) {
                      round.addTeam({1, 5});
                      round.addTeam({13, 5});
                      const auto player = round.addPlayer({4, 5}, 0);
                      round.game().flags = {looseFlag(0, {132, 160}), looseFlag(1, {416, 160})};
                      round.step();
                      EXPECT_EQ(round.game().flags[0].carrier.lock() == player, old);
                      EXPECT_EQ(round.game().flags[0].inBase, !old);
                  },
                  {.mode = GameMode::CaptureTheFlag});
}

TEST(Since_0_95_4, TheVerificationHasSnakes) {
    playBothSides(replayVersion(0, 95, 4), [](TestRound& round, bool old) {
        round.addSnake({5, 5}, Facing::Right, 2);
        stepAgainst(round, old ? "0\n163\n160\n" : "0\n163\n160\n2 162 160 162 160\n");
    });
}

TEST(Since_0_95_10, TheDeadHaveNoRecordsAndNoLines) {
    playBothSides(replayVersion(0, 95, 10), [](TestRound& round, bool old) {
        round.addPlayer({5, 5})->die();
        const auto living = round.addPlayer({7, 5});
        round.hold(*living, {.right = true});
        stepAgainst(round, old ? "0\n160\n160\n1\n226\n160\n" : "1\n226\n160\n");
        EXPECT_EQ(living->x, 226);
    });
}

// A carrier of the neutral flag stands on its base.
TEST(Since_0_96_6, NobodyCapturesOnABaseThatTwoTeamsShare) {
    for (const Square otherBase : {Square{1, 5}, Square{13, 5}}) {
        playBothSides(replayVersion(0, 96, 6),
                      [otherBase](TestRound& round, bool old) {
                          const bool captures = old || otherBase != Square{1, 5};
                          gameOptions.singleFlag = true;
                          round.addTeam({1, 5});
                          round.addTeam(otherBase);
                          const auto player = round.addPlayer({1, 5}, 0);
                          round.game().flags = {looseFlag(-1, {})};
                          round.game().flags[0].carrier = player;
                          if (captures) {
                              round.putBehindRecord(*player, "\1");  // the score
                          }
                          round.step();
                          EXPECT_EQ(teams[0].score, captures ? 1 : 0);
                          EXPECT_EQ(round.game().flags[0].carrier.expired(), captures);
                      },
                      {.mode = GameMode::CaptureTheFlag});
    }
}

}  // namespace
}  // namespace vandrel
