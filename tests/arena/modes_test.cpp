#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "arena/sparks.h"
#include "support/round_fixture.h"

namespace vandrel {
namespace {

using Numbers = std::vector<int>;

// A round of the mode with teams that nobody is in yet.
class ModeRound : public TestRound {
  public:
    explicit ModeRound(GameMode mode, int teamCount = 0, int rate = 60)
        : TestRound({.size = {19, 11}, .rate = rate, .mode = mode}) {
        for (int team = 0; team < teamCount; ++team) {
            addTeam({1 + 16 * team, 5});
        }
    }

    bool isOver() { return game().isRoundOver(); }
    // The numbers of the teams or players who have won as it stands.
    Numbers winners() {
        const Winners won = game().getWinners();
        if (const auto* byTeam = std::get_if<TeamWinners>(&won)) {
            return byTeam->teams;
        }
        Numbers numbers;
        for (const auto& player : std::get<PlayerWinners>(won).players) {
            numbers.push_back(player->num);
        }
        return numbers;
    }
};

// Flags that nobody carries. Who touches one is told where the players' side of flags is tested.
class LooseFlagTest : public testing::Test {
  protected:
    LooseFlagTest() {
        for (int team = 0; team < 2; ++team) {
            Flag flag;
            flag.team = team;
            flag.moveTo(squareToPixel(flagHome(flag)));
            round_.game().flags.push_back(flag);
        }
    }
    Flag& flag() { return round_.game().flags[1]; }

    ModeRound round_{GameMode::CaptureTheFlag, 2};
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

TEST(Hill, ScoresOnceASecondForTheLivingOfATeamUpToItsBordersAndTheNumberAtTheBaseFollows) {
    for (const int rate : {60, 120}) {
        SCOPED_TRACE(rate);
        ModeRound round(GameMode::KingOfTheHill, 2, rate);
        Game& game = round.game();
        game.hillLeft = 8;
        game.hillRight = 10;
        game.hillTop = 4;
        game.hillBottom = 6;
        const auto king = round.addPlayer(rate == 60 ? Square{8, 4} : Square{10, 6}, 0);
        round.addPlayer({11, 6}, 0);
        round.addPlayer({9, 5});
        const auto ghost = round.addPlayer({9, 5}, 1);
        ghost->ghost = true;
        ghost->shieldTimer = Player::lastingShield();
        const auto dead = round.addPlayer({9, 5}, 1);
        dead->dead = true;
        dead->respawnTimer = 1000;
        round.step();
        EXPECT_EQ(teams[0].score, 1);
        EXPECT_EQ(king->trailTimer, 61);
        EXPECT_EQ(teams[0].displayedScore, 0);
        round.step(rate - 1);
        EXPECT_EQ(teams[0].score, 1);
        round.step();
        EXPECT_EQ(teams[0].score, 2);
        EXPECT_TRUE(rate == 120 || round.stepUntil([] { return teams[0].displayedScore == 1; }) == 29)
            << "ninety updates after the first point";
        EXPECT_EQ(teams[1].score, 0) << "neither ghosts nor the dead";
    }
}

// When a round is over, by mode, and who has won it.
TEST(RoundEnd, ClassicEndsWithOneLeftAndTheLivingWin) {
    ModeRound round(GameMode::Classic);
    const auto first = round.addPlayer({1, 1});
    const auto second = round.addPlayer({5, 5});
    gameOptions.numPlayers = 2;
    EXPECT_FALSE(round.isOver());
    second->dead = true;
    EXPECT_TRUE(round.isOver());
    EXPECT_EQ(round.winners(), Numbers{0});
    first->dead = true;
    EXPECT_EQ(round.winners(), Numbers{});
}

TEST(RoundEnd, TheRoundGoesOnForFourSecondsAndALaterChangeHasNoEffect) {
    for (const int rate : {60, 120}) {
        ModeRound round(GameMode::Classic, 0, rate);
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
        ModeRound round(mode);
        round.game().aiSnakesLeft = 1;
        for (const ShrinkState state : {ShrinkState::Waiting, ShrinkState::Shrinking, ShrinkState::Finished}) {
            round.game().shrinkState = state;
            EXPECT_EQ(round.isOver(), state == ShrinkState::Finished) << static_cast<int>(mode);
        }
    }
}

TEST(RoundEnd, BattleRoyaleEndsWithOneTeamThatCanStillRescue) {
    ModeRound round(GameMode::BattleRoyale, 2);
    const auto first = round.addPlayer({1, 1}, 0);
    const auto second = round.addPlayer({5, 5}, 1);
    EXPECT_FALSE(round.isOver());
    first->crawling = true;
    first->crawlTimer = 100;
    EXPECT_FALSE(round.isOver()) << "who gets up by himself is not down";
    EXPECT_EQ(round.winners(), Numbers{1}) << "but not upright either";
    first->crawlTimer = 0;
    EXPECT_TRUE(round.isOver());
    second->dead = true;
    EXPECT_EQ(round.winners(), Numbers{});
}

TEST(RoundEnd, SnakeHunterEndsWithTheSnakesOrTheHumansWhoDoNotComeBack) {
    ModeRound round(GameMode::SnakeHunter, 2);
    const auto human = round.addPlayer({1, 1}, 0);
    const auto snake = round.addSnake({9, 5}, Facing::Right, 4, true);
    gameOptions.numPlayers = 1;
    struct Case {
        bool comeBack;
        bool humanDead;
        bool snakeDead;
        int stillToCome;
        bool over;
        int winner;
    };
    for (const Case& c : {Case{false, false, false, 0, false, 1}, Case{false, true, false, 0, true, 1},
                          Case{false, false, true, 1, false, 1}, Case{false, false, true, 0, true, 0},
                          Case{true, true, false, 0, false, 1}, Case{true, false, true, 0, true, 0}}) {
        SCOPED_TRACE(testing::Message() << "come back " << c.comeBack << ", human dead " << c.humanDead
                                        << ", snake dead " << c.snakeDead << ", still to come " << c.stillToCome);
        gameOptions.snakeHunterRespawn = c.comeBack;
        human->dead = c.humanDead;
        snake->dead = c.snakeDead;
        round.game().aiSnakesLeft = c.stillToCome;
        EXPECT_EQ(round.isOver(), c.over);
        EXPECT_EQ(round.winners(), Numbers{c.winner});
    }
}

TEST(RoundEnd, TheHighestScoreWinsAndNobodyWithoutOne) {
    ModeRound round(GameMode::KingOfTheHill, 3);
    for (const auto& [scores, winners] : std::vector<std::pair<Numbers, Numbers>>{
             {{0, 0, 0}, {}}, {{3, 1, 3}, {0, 2}}, {{-2, 0, -1}, {}}, {{0, 1, 0}, {1}}}) {
        for (std::size_t i = 0; i < 3; ++i) {
            teams[i].score = scores[i];
        }
        EXPECT_EQ(round.winners(), winners);
    }
}

TEST(RoundEnd, DeathmatchTiesShareTheWinUnlessEverybodyTies) {
    ModeRound round(GameMode::Deathmatch);
    for (const auto& [kills, winners] : std::vector<std::pair<Numbers, Numbers>>{
             {{0, 0, 0}, {}}, {{2, 0, 2}, {0, 2}}, {{2, 3, 2}, {1}}, {{0, -1, -1}, {0}}}) {
        for (std::size_t i = 0; i < 3; ++i) {
            const auto player = players.size() == i ? round.addPlayer({1, 1}) : players[i];
            player->kills = kills[i];
        }
        EXPECT_EQ(round.winners(), winners);
    }
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
    const ModeRound round(GameMode::Everything);
    const std::vector<std::pair<bool GameOptions::*, GameMode>> switches{
        {&GameOptions::everythingCTF, GameMode::CaptureTheFlag},
        {&GameOptions::everythingBattleRoyale, GameMode::BattleRoyale},
        {&GameOptions::everythingKotH, GameMode::KingOfTheHill},
        {&GameOptions::everythingSnakeHunter, GameMode::SnakeHunter},
        {&GameOptions::everythingDeathmatch, GameMode::Deathmatch}};
    for (const auto& on : switches) {
        for (const auto& [field, mode] : switches) {
            gameOptions.*field = mode == on.second;
        }
        for (const auto& [field, mode] : switches) {
            EXPECT_EQ(isModeActive(mode), mode == on.second);
        }
    }
    EXPECT_FALSE(isModeActive(GameMode::Classic));
    EXPECT_FALSE(isModeActive(GameMode::Everything));
}

}  // namespace
}  // namespace vandrel
