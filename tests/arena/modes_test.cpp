#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <vector>

#include "arena/sparks.h"
#include "shell/frame_counter.h"
#include "support/round_fixture.h"

namespace vandrel {
namespace {

RoundSetup setupOf(GameMode mode) {
    RoundSetup setup;
    setup.size = {19, 11};
    setup.mode = mode;
    return setup;
}

void addFlag(TestRound& round, int team) {
    Flag flag;
    flag.team = team;
    flag.moveTo(squareToPixel(flagHome(flag)));
    round.game().flags.push_back(flag);
}

// Flags that nobody carries. Who touches one is told where the players' side of flags is tested.
class LooseFlagTest : public testing::Test {
  protected:
    LooseFlagTest() : round_(setupOf(GameMode::CaptureTheFlag)) {
        for (int team = 0; team < 2; ++team) {
            round_.addTeam({1 + 16 * team, 5});
            addFlag(round_, team);
        }
    }
    Flag& flag() { return round_.game().flags[1]; }

    TestRound round_;
};

TEST_F(LooseFlagTest, OfADeadCarrierSlidesOntoItsSquare) {
    const auto carrier = round_.addPlayer({9, 5}, 0);
    flag().inBase = false;
    flag().carrier = carrier;
    carrier->x += 10;
    carrier->y -= 7;
    round_.step();
    carrier->die();
    round_.step();
    EXPECT_TRUE(flag().carrier.expired());
    EXPECT_FALSE(flag().inBase);
    EXPECT_EQ(flag().position(), (Pixel{9 * 32 + 9, 5 * 32 - 6})) << "one pixel an update on each axis";
    round_.step(9);
    EXPECT_EQ(flag().position(), squareToPixel({9, 5}));
}

TEST_F(LooseFlagTest, InsideAWallCrawlsTowardItsBase) {
    squareGrid.set(17, 5, SquareKind::EdgeWall);
    teams[1].baseX = 16;
    round_.step(5);
    EXPECT_EQ(flag().position(), (Pixel{17 * 32 - 5, 5 * 32}));
    EXPECT_TRUE(flag().inBase);
}

class HillTest : public testing::Test {
  protected:
    HillTest() : round_(setupOf(GameMode::KingOfTheHill)) {
        round_.addTeam({1, 5});
        round_.addTeam({17, 5});
        round_.game().hillLeft = 8;
        round_.game().hillRight = 10;
        round_.game().hillTop = 4;
        round_.game().hillBottom = 6;
    }
    TestRound round_;
};

TEST_F(HillTest, ScoresOnceASecondAndTheNumberAtTheBaseFollows) {
    const auto king = round_.addPlayer({8, 4}, 1);
    round_.step();
    EXPECT_EQ(teams[1].score, 1);
    EXPECT_EQ(king->trailTimer, 61);
    EXPECT_EQ(teams[1].displayedScore, 0);
    round_.step(59);
    EXPECT_EQ(teams[1].score, 1);
    round_.step();
    EXPECT_EQ(teams[1].score, 2);
    round_.step(29);
    EXPECT_EQ(teams[1].displayedScore, 1) << "ninety updates after the first point";
}

TEST_F(HillTest, TheBordersCountAndGhostsTheDeadAndTheTeamlessDoNot) {
    round_.addPlayer({10, 6}, 0);
    round_.addPlayer({11, 6}, 0);
    const auto ghost = round_.addPlayer({9, 5}, 1);
    ghost->ghost = true;
    ghost->shieldTimer = Player::lastingShield();
    const auto dead = round_.addPlayer({9, 5}, 1);
    dead->dead = true;
    dead->respawnTimer = 1000;
    round_.addPlayer({9, 5});
    round_.step();
    EXPECT_EQ(teams[0].score, 1);
    EXPECT_EQ(teams[1].score, 0);
}

// When a round is over, by mode, and who has won it.
TEST(RoundEnd, ClassicEndsWithOneLeftAndTheLivingWin) {
    TestRound round(setupOf(GameMode::Classic));
    const auto first = round.addPlayer({1, 1});
    const auto second = round.addPlayer({5, 5});
    gameOptions.numPlayers = 2;
    EXPECT_FALSE(round.game().isRoundOver());
    second->dead = true;
    EXPECT_TRUE(round.game().isRoundOver());
    EXPECT_EQ(std::get<PlayerWinners>(round.game().getWinners()).players, (std::vector{first}));
    first->dead = true;
    EXPECT_TRUE(std::get<PlayerWinners>(round.game().getWinners()).players.empty());
}

TEST(RoundEnd, TheRoundGoesOnForFourSecondsAndALaterChangeHasNoEffect) {
    for (const int rate : {60, 120}) {
        RoundSetup setup = setupOf(GameMode::Classic);
        setup.rate = rate;
        TestRound round(setup);
        round.addPlayer({1, 1});
        const auto second = round.addPlayer({5, 5});
        gameOptions.numPlayers = 2;
        second->dead = true;
        round.step();
        second->dead = false;
        EXPECT_EQ(round.stepUntil([&] { return round.roundOver; }), rate * 4) << rate;
    }
}

TEST(RoundEnd, ModesOfPointsEndWithTheWalls) {
    for (const GameMode mode : {GameMode::CaptureTheFlag, GameMode::KingOfTheHill, GameMode::Deathmatch,
                                GameMode::Everything, GameMode::SnakeHunter}) {
        TestRound round(setupOf(mode));
        round.game().aiSnakesLeft = 1;
        EXPECT_FALSE(round.game().isRoundOver());
        round.game().shrinkState = ShrinkState::Finished;
        EXPECT_TRUE(round.game().isRoundOver());
    }
}

TEST(RoundEnd, BattleRoyaleEndsWithOneTeamThatCanStillRescue) {
    TestRound round(setupOf(GameMode::BattleRoyale));
    round.addTeam({1, 1});
    round.addTeam({1, 1});
    const auto first = round.addPlayer({1, 1}, 0);
    const auto second = round.addPlayer({5, 5}, 1);
    EXPECT_FALSE(round.game().isRoundOver());
    second->crawling = true;
    second->crawlTimer = 100;
    EXPECT_FALSE(round.game().isRoundOver()) << "who gets up by himself is not down";
    EXPECT_EQ(std::get<TeamWinners>(round.game().getWinners()).teams, std::vector{0});
    second->crawlTimer = 0;
    EXPECT_TRUE(round.game().isRoundOver());
    first->dead = true;
    EXPECT_TRUE(std::get<TeamWinners>(round.game().getWinners()).teams.empty());
}

TEST(RoundEnd, SnakeHunterEndsWithTheSnakesOrTheHumans) {
    RoundSetup setup = setupOf(GameMode::SnakeHunter);
    setup.tune = [](GameOptions& options) { options.snakeHunterRespawn = false; };
    TestRound round(setup);
    round.addTeam({1, 1});
    round.addTeam({1, 1});
    const auto human = round.addPlayer({1, 1}, 0);
    gameOptions.numPlayers = 1;
    const auto snake = round.addSnake({9, 5}, Facing::Right, 4, true);
    round.game().aiSnakesLeft = 0;
    EXPECT_FALSE(round.game().isRoundOver());
    human->dead = true;
    EXPECT_TRUE(round.game().isRoundOver());
    EXPECT_EQ(std::get<TeamWinners>(round.game().getWinners()).teams, std::vector{1});
    human->dead = false;
    snake->dead = true;
    EXPECT_TRUE(round.game().isRoundOver());
    EXPECT_EQ(std::get<TeamWinners>(round.game().getWinners()).teams, std::vector{0});
    gameOptions.snakeHunterRespawn = true;
    snake->dead = false;
    human->dead = true;
    EXPECT_FALSE(round.game().isRoundOver()) << "the dead come back";
}

TEST(RoundEnd, TheHighestScoreWinsAndNobodyWithoutOne) {
    TestRound round(setupOf(GameMode::KingOfTheHill));
    for (int i = 0; i < 3; ++i) {
        round.addTeam({1, 1});
    }
    struct Case {
        std::vector<int> scores;
        std::vector<int> winners;
    };
    for (const Case& c : std::vector<Case>{{{0, 0, 0}, {}}, {{3, 1, 3}, {0, 2}}, {{-2, 0, -1}, {}}, {{0, 1, 0}, {1}}}) {
        for (std::size_t i = 0; i < 3; ++i) {
            teams[i].score = c.scores[i];
        }
        EXPECT_EQ(std::get<TeamWinners>(round.game().getWinners()).teams, c.winners);
    }
}

TEST(RoundEnd, DeathmatchTiesShareTheWinUnlessEverybodyTies) {
    TestRound round(setupOf(GameMode::Deathmatch));
    const auto first = round.addPlayer({1, 1});
    const auto second = round.addPlayer({3, 3});
    const auto third = round.addPlayer({5, 5});
    EXPECT_TRUE(std::get<PlayerWinners>(round.game().getWinners()).players.empty());
    first->kills = 2;
    third->kills = 2;
    EXPECT_EQ(std::get<PlayerWinners>(round.game().getWinners()).players, (std::vector{first, third}));
    second->kills = 3;
    EXPECT_EQ(std::get<PlayerWinners>(round.game().getWinners()).players, (std::vector{second}));
}

TEST(Sparks, FallAndGoOutAfterTwoHundredFortyUpdates) {
    sparks.clear();
    addSparks({100, 50});
    ASSERT_EQ(sparks.size(), 300U);
    const float vy = sparks[0].vy;
    EXPECT_LE(vy, 0.0f);
    advanceSparks();
    EXPECT_FLOAT_EQ(sparks[0].vy, vy + 0.01f);
    EXPECT_FLOAT_EQ(sparks[0].y, 50.0f + vy + 0.01f);
    for (int i = 0; i < 238; ++i) {
        advanceSparks();
    }
    EXPECT_EQ(sparks.size(), 300U);
    advanceSparks();
    EXPECT_TRUE(sparks.empty());
}

TEST(ModeSwitches, EverythingIsAnySubsetOfTheOthers) {
    const TestRound round(setupOf(GameMode::Everything));
    struct Switch {
        bool GameOptions::*field;
        GameMode mode;
    };
    const std::vector<Switch> switches{{&GameOptions::everythingCTF, GameMode::CaptureTheFlag},
                                       {&GameOptions::everythingBattleRoyale, GameMode::BattleRoyale},
                                       {&GameOptions::everythingKotH, GameMode::KingOfTheHill},
                                       {&GameOptions::everythingSnakeHunter, GameMode::SnakeHunter},
                                       {&GameOptions::everythingDeathmatch, GameMode::Deathmatch}};
    for (const Switch& on : switches) {
        for (const Switch& each : switches) {
            gameOptions.*each.field = each.field == on.field;
        }
        for (const Switch& each : switches) {
            EXPECT_EQ(isModeActive(each.mode), each.field == on.field);
        }
    }
    EXPECT_FALSE(isModeActive(GameMode::Classic));
    EXPECT_FALSE(isModeActive(GameMode::Everything));
}

}  // namespace
}  // namespace vandrel
