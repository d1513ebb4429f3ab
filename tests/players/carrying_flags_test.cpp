// Players and flags: how near one must be, recovery, carrying, what a capture asks for and gives.
#include <gtest/gtest.h>

#include <sstream>
#include <stdexcept>

#include "arena/sparks.h"
#include "players/in_words.h"

namespace vandrel {
namespace {

// Team 0 has its base on (1, 5), team 1 on (13, 5); both flags are at home.
class Flags : public testing::Test {
  protected:
    Flags() {
        round.addTeam({1, 5});
        round.addTeam({13, 5});
        for (int team = 0; team < 2; ++team) {
            Flag flag;
            flag.team = team;
            flag.moveTo(squareToPixel(flagHome(flag)));
            round.game().flags.push_back(flag);
        }
        player = round.addPlayer({7, 5}, 0);
        sparks.clear();
    }
    ~Flags() override { sparks.clear(); }

    Flag& flagOf(int team) { return round.game().flags[static_cast<std::size_t>(team)]; }
    bool carries(int team) { return flagOf(team).carrier.lock() == player; }
    void dropAt(int team, Pixel place) {
        flagOf(team).inBase = false;
        flagOf(team).moveTo(place);
    }
    void giveTo(const std::shared_ptr<Player>& carrier, int team) {
        flagOf(team).inBase = false;
        flagOf(team).carrier = carrier;
    }
    // The player's own update alone: loose flags do not slide.
    void updatePlayer() { player->update(round.replay(), &round.game(), false); }

    TestRound round{{.mode = GameMode::CaptureTheFlag}};
    std::shared_ptr<Player> player;
};

TEST_F(Flags, OfRivalsAreTakenNearerThanThirteenPixels) {
    struct Row {
        Pixel offset;
        bool taken;
    };
    for (const Row& row : {Row{{12, 0}, true}, Row{{13, 0}, false}, Row{{0, -12}, true}, Row{{9, 9}, true},
                           Row{{10, 9}, false}, Row{{5, 12}, false}}) {
        flagOf(1).carrier.reset();
        dropAt(1, {player->x + row.offset.x, player->y + row.offset.y});
        updatePlayer();
        EXPECT_EQ(carries(1), row.taken) << row.offset;
    }
}

TEST_F(Flags, OfOnesOwnAreRecoveredOutsideTheBaseOnly) {
    player->x = 32;
    updatePlayer();
    EXPECT_TRUE(flagOf(0).inBase);
    EXPECT_TRUE(round.toastTexts().empty());
    dropAt(0, {40, 165});
    updatePlayer();
    EXPECT_TRUE(flagOf(0).inBase);
    EXPECT_FALSE(carries(0));
    EXPECT_EQ(flagOf(0).position(), (Pixel{32, 160}));
    EXPECT_EQ(round.toastTexts(), (std::vector<std::string>{"Flag recovered"}));
    EXPECT_EQ(round.takeHeard(), (std::vector<HeardSample>{{SampleIds::Gong2, 200, 128, 2000}}));
}

TEST_F(Flags, AreLeftAloneByGhostsSnakesOfTheComputerInTheLobbyAndWhileSomebodyHasThem) {
    dropAt(1, player->position());
    asGhost(*player);
    updatePlayer();
    EXPECT_FALSE(carries(1));
    player->ghost = false;
    player->update(round.replay(), &round.game(), true);
    EXPECT_FALSE(carries(1));
    player->isAI = true;
    updatePlayer();
    EXPECT_FALSE(carries(1));
    player->isAI = false;
    updatePlayer();
    EXPECT_TRUE(carries(1));
    const auto other = round.addPlayer({7, 5}, 0);
    other->update(round.replay(), &round.game(), false);
    EXPECT_TRUE(carries(1));
}

TEST_F(Flags, StartTheTimeOfAGhostWhoCarriesThemButNotOfOneWhoCapturesThem) {
    giveTo(player, 1);
    player->givePowerup(Bonus::Ghost);
    updatePlayer();
    EXPECT_TRUE(player->ghost);
    EXPECT_EQ(player->shieldTimer, Player::runningShield());
    updatePlayer();
    EXPECT_EQ(player->shieldTimer, Player::runningShield() - 1);
    player->x = 32;
    player->shieldTimer = Player::lastingShield();
    updatePlayer();
    EXPECT_EQ(teams[0].score, 1);
    EXPECT_EQ(player->shieldTimer, Player::lastingShield()) << "it carries nothing any more";
}

TEST_F(Flags, AreCapturedAtTheBaseWithOnesOwnAtHome) {
    struct Row {
        const char* what;
        Pixel place;
        bool ownAtHome;
        bool sharedBase;
        bool captures;
    };
    constexpr Row rows[] = {
        {"on the base", {32, 160}, true, false, true},          {"thirteen pixels off", {45, 160}, true, false, true},
        {"fourteen pixels off", {46, 160}, true, false, false}, {"own flag away", {32, 160}, false, false, false},
        {"base shared", {32, 160}, true, true, false},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.what);
        teams[0].score = teams[0].displayedScore = 0;
        teams[1].baseX = row.sharedBase ? 1 : 13;
        giveTo(player, 1);
        flagOf(0).inBase = row.ownAtHome;
        flagOf(0).moveTo(row.ownAtHome ? Pixel{32, 160} : Pixel{300, 200});
        player->x = row.place.x;
        sparks.clear();
        round.takeHeard();
        updatePlayer();
        EXPECT_EQ(teams[0].score, row.captures ? 1 : 0);
        EXPECT_EQ(teams[0].displayedScore, teams[0].score);
        EXPECT_EQ(carries(1), !row.captures);
        EXPECT_EQ(flagOf(1).inBase, row.captures);
        EXPECT_EQ(flagOf(1).position(), row.captures ? (Pixel{13 * 32, 160}) : player->position());
        EXPECT_EQ(sparks.size(), row.captures ? 300U : 0U);
        EXPECT_EQ(round.takeHeard(),
                  row.captures ? (std::vector<HeardSample>{{SampleIds::Gong2}}) : std::vector<HeardSample>{});
    }
}

TEST_F(Flags, ANeutralOneNeedsNoFlagAtHome) {
    gameOptions.singleFlag = true;
    Flag neutral;
    neutral.moveTo(squareToPixel(flagHome(neutral)));
    round.game().flags = {neutral};
    updatePlayer();
    EXPECT_TRUE(carries(0)) << "any player takes it from the middle";
    EXPECT_FALSE(flagOf(0).inBase);
    player->x = 32;
    updatePlayer();
    EXPECT_EQ(teams[0].score, 1);
    EXPECT_EQ(flagOf(0).position(), (Pixel{7 * 32, 5 * 32}));
    EXPECT_TRUE(flagOf(0).inBase);
}

TEST_F(Flags, OfNobodyAreNotRecoveredByWhoHasNoTeamEither) {
    player->team = flagOf(1).team = -1;
    dropAt(1, player->position());
    updatePlayer();
    EXPECT_TRUE(carries(1)) << "a neutral flag goes home by capture only";
}

TEST_F(Flags, EarnTheirPointsInEverythingWhereTheModeIsOn) {
    gameOptions.gameMode = GameMode::Everything;
    gameOptions.flagCapturePoints = 17;
    giveTo(player, 1);
    player->x = 32;
    updatePlayer();
    EXPECT_EQ(teams[0].score, 17);
    gameOptions.everythingCTF = false;
    dropAt(1, player->position());
    updatePlayer();
    EXPECT_FALSE(carries(1)) << "where the mode is off";
}

TEST_F(Flags, InABaseCannotHaveACarrier) {
    flagOf(1).carrier = player;
    EXPECT_THROW(updatePlayer(), std::runtime_error);
}

TEST_F(Flags, ACaptureIsRecordedWithTheScore) {
    std::ostringstream recorded;
    std::ostringstream verified;
    round.game().replay.recording = true;
    round.game().replay.output = &recorded;
    round.game().replay.outputVerify = &verified;
    teams[0].score = 0x01020304;
    giveTo(player, 1);
    player->x = 32;
    updatePlayer();
    EXPECT_EQ(recorded.str(), std::string("\0\0\5\3\2\1", 6)) << "the player's record, then the score";
    EXPECT_EQ(verified.str(), "CTFSCORE\n0\n16909061\n");
}

}  // namespace
}  // namespace vandrel
