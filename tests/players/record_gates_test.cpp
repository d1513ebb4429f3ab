// What releases changed in who has records and lines of verification, and in the rules of flags, of which the captures
// are recorded: each is played on both sides of its change. What is in a record is tested with the records.
#include <gtest/gtest.h>

#include <memory>
#include <sstream>

#include "players/both_sides.h"
#include "shell/switches.h"

namespace vandrel {
namespace {

// A carrier of the neutral flag stands on its base (1, 5).
std::shared_ptr<Player> carryHome(TestRound& round, Square otherBase) {
    gameOptions.singleFlag = true;
    round.addTeam({1, 5});
    round.addTeam(otherBase);
    const auto player = round.addPlayer({1, 5}, 0);
    Flag flag;
    flag.inBase = false;
    flag.carrier = player;
    round.game().flags = {flag};
    return player;
}

TEST(Since_0_0_7, AFlagIsNotTakenByItsOwnTeam) {
    playBothSides(replayVersion(0, 0, 7),
                  [](TestRound& round, bool old) {
                      round.addTeam({1, 5});
                      round.addTeam({13, 5});
                      const auto player = round.addPlayer({4, 5}, 0);
                      Flag own;
                      own.team = 0;
                      own.inBase = false;
                      own.moveTo({132, 160});
                      Flag other;
                      other.team = 1;
                      other.moveTo({416, 160});
                      round.game().flags = {own, other};
                      round.step();
                      EXPECT_EQ(round.game().flags[0].carrier.lock() == player, old);
                      EXPECT_EQ(round.game().flags[0].inBase, !old);
                  },
                  {.mode = GameMode::CaptureTheFlag});
}

TEST(Since_0_95_4, TheVerificationHasSnakes) {
    playBothSides(replayVersion(0, 95, 4), [](TestRound& round, bool old) {
        const auto snake = round.addSnake({5, 5}, Facing::Right, 2);
        verifyEnabled = true;
        const std::string head = "0\n163\n160\n";
        const std::string body = "2 162 160 162 160\n";
        // What stands behind the player's own lines is not read by it.
        const auto text = std::make_shared<std::istringstream>(old ? head + "END\n" : head + body + "END\n");
        round.game().replay.inputVerify = text;
        EXPECT_NO_THROW(round.step());
        std::string next;
        *text >> next;
        EXPECT_EQ(next, "END");
    });
}

TEST(Since_0_95_10, TheDeadHaveNoRecordsAndNoLines) {
    playBothSides(replayVersion(0, 95, 10), [](TestRound& round, bool old) {
        const auto dead = round.addPlayer({5, 5});
        const auto living = round.addPlayer({7, 5});
        dead->die();
        verifyEnabled = true;
        const std::string text = old ? "0\n160\n160\n1\n226\n160\nEND\n" : "1\n226\n160\nEND\n";
        round.game().replay.inputVerify = std::make_shared<std::istringstream>(text);
        round.hold(*living, {.right = true});
        EXPECT_NO_THROW(round.step());
        EXPECT_EQ(living->x, 226);
        std::string next;
        *round.replay().inputVerify >> next;
        EXPECT_EQ(next, "END");
    });
}

TEST(Since_0_96_6, NobodyCapturesOnABaseThatTwoTeamsShare) {
    for (const Square otherBase : {Square{1, 5}, Square{13, 5}}) {
        playBothSides(replayVersion(0, 96, 6),
                      [otherBase](TestRound& round, bool old) {
                          const bool captures = old || otherBase != Square{1, 5};
                          const auto player = carryHome(round, otherBase);
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
