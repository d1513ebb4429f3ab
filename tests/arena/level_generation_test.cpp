#include "arena/level_generation.h"

#include <gtest/gtest.h>

#include <array>
#include <map>

#include "base/random.h"
#include "shell/switches.h"
#include "support/round_fixture.h"

namespace vandrel {
namespace {

class LevelGenerationTest : public testing::Test {
  protected:
    LevelGenerationTest() {
        gameOptions.gridBlocksResolved = true;
        gameOptions.wallPercent = 70;
        gameOptions.powerupPercent = 40;
        gameOptions.numPlayers = 2;
        round_.addPlayer({1, 1});
        round_.addPlayer({1, 1});
    }
    ~LevelGenerationTest() override { lootboxesEnabled = true; }

    void generate(bool forJoinScreen = false) { setUpRound({27, 15}, {}, round_.game(), forJoinScreen); }
    template <class Visit>
    static void forEachSquare(Visit visit) {
        for (int x = 0; x < grid_squares_x; ++x) {
            for (int y = 0; y < grid_squares_y; ++y) {
                visit(Square{x, y}, squareGrid.at(x, y), bonusGrid.at(x, y));
            }
        }
    }
    // How many numbers `gameRand` gave while `run` ran.
    template <class Run>
    static int drawsOf(Run run) {
        seedGameRand(7);
        run();
        const int next = gameRand();
        seedGameRand(7);
        for (int draws = 0; draws < 100'000; ++draws) {
            if (gameRand() == next) {
                return draws;
            }
        }
        return -1;
    }

    TestRound round_;
};

TEST_F(LevelGenerationTest, ARingOfEdgeWallPillarsOnEvenSquaresAndPowerupsUnderWallsOnly) {
    generate();
    int bonuses = 0;
    forEachSquare([&](Square square, int kind, int bonus) {
        bonuses += bonus != 0 ? 1 : 0;
        EXPECT_TRUE(bonus == 0 || isBreakableWall(kind));
        if (!isInnerSquare(square)) {
            EXPECT_EQ(kind, SquareKind::EdgeWall);
        } else if (square.x % 2 == 0 && square.y % 2 == 0) {
            EXPECT_EQ(kind, SquareKind::GridBlock);
        } else {
            EXPECT_TRUE(kind == SquareKind::Empty || isBreakableWall(kind));
        }
    });
    EXPECT_GT(bonuses, 10);
}

TEST_F(LevelGenerationTest, ASquareOffThePillarsCostsOneDrawAndAWallTwoMore) {
    constexpr int squares = 25 * 13 - 12 * 6;
    gameOptions.powerupPercent = 0;
    for (const auto& [percent, drawsEach] : std::map<int, int>{{0, 1}, {100, 3}}) {
        gameOptions.wallPercent = percent;
        EXPECT_EQ(drawsOf([&] { generate(); }), drawsEach * squares) << percent;
    }
}

TEST_F(LevelGenerationTest, EachPlayerHasAnOpenPlusOfTwoSquaresRoundTheStart) {
    gameOptions.wallPercent = 100;
    generate();
    for (const auto& player : players) {
        const Square start{player->startX, player->startY};
        EXPECT_EQ(player->position(), squareToPixel(start));
        for (int step = -2; step <= 2; ++step) {
            for (const Square square : {Square{start.x + step, start.y}, Square{start.x, start.y + step}}) {
                if (isInsideGrid(square) && !isIndestructible(squareGrid.at(square))) {
                    EXPECT_EQ(squareGrid.at(square), SquareKind::Empty);
                    EXPECT_EQ(bonusGrid.at(square), 0);
                }
            }
        }
        EXPECT_TRUE(isBreakableWall(squareGrid.at(start.x == 1 ? 4 : 22, start.y)));
    }
}

TEST_F(LevelGenerationTest, TheLobbyHasARingAndNothingElse) {
    gameOptions.gridBlocksResolved.reset();
    gameOptions.wallPercent.reset();
    generate(true);
    forEachSquare([](Square square, int kind, int /*bonus*/) {
        EXPECT_EQ(kind, isInnerSquare(square) ? SquareKind::Empty : SquareKind::EdgeWall);
    });
}

TEST_F(LevelGenerationTest, BasesFlagsAndHillStandWhereTheModeWantsThem) {
    gameOptions.gameMode = GameMode::Everything;
    teams.assign(4, Team{});
    teams[1].score = 5;
    teams[1].displayedScore = 4;
    generate();
    const std::array<std::pair<Square, Square>, 4> basesAndPushes{
        {{{1, 7}, {1, 0}}, {{25, 7}, {-1, 0}}, {{13, 1}, {0, 1}}, {{13, 13}, {0, -1}}}};
    const Game& game = round_.game();
    ASSERT_EQ(game.flags.size(), 4U);
    for (std::size_t team = 0; team < 4; ++team) {
        const auto& [base, push] = basesAndPushes[team];
        EXPECT_EQ(teams[team].base(), base);
        EXPECT_EQ((Square{teams[team].pushX, teams[team].pushY}), push);
        EXPECT_EQ(game.flags[team].position(), squareToPixel(base));
        EXPECT_TRUE(game.flags[team].inBase);
    }
    EXPECT_EQ(teams[1].score, 0);
    EXPECT_EQ(teams[1].displayedScore, 0);
    EXPECT_EQ((Square{game.hillLeft, game.hillTop}), (Square{10, 5}));
    EXPECT_EQ((Square{game.hillRight, game.hillBottom}), (Square{16, 9}));

    gameOptions.singleFlag = true;
    generate();
    ASSERT_EQ(game.flags.size(), 1U);
    EXPECT_EQ(game.flags[0].team, -1) << "belongs to nobody";
    EXPECT_EQ(game.flags[0].position(), squareToPixel({13, 7})) << "in the middle";
}

// The draw of powerups, against the weights as a player reads them: shares of many draws.
class ChooseBonusTest : public LevelGenerationTest {
  protected:
    static void expectShares(bool forAuction, int sum, const std::map<int, int>& weights) {
        constexpr int draws = 200'000;
        seedGameRand(4711);
        std::array<int, bonusCount> counts{};
        for (int i = 0; i < draws; ++i) {
            ++counts[static_cast<std::size_t>(chooseBonus(forAuction))];
        }
        for (const auto& [bonus, weight] : weights) {
            EXPECT_NEAR(counts[static_cast<std::size_t>(bonus)], 1.0 * draws * weight / sum,
                        weight == 0 ? 0.0 : draws * 0.003)
                << bonus;
        }
    }
};

TEST_F(ChooseBonusTest, FollowsTheWeightsOfTheLevelTheAuctionAndTheMode) {
    expectShares(false, 259,
                 {{Bonus::None, 0},
                  {Bonus::Bomb, 70},
                  {Bonus::Range, 40},
                  {Bonus::Speed, 50},
                  {Bonus::Controller, 5},
                  {Bonus::Cash, 20},
                  {Bonus::Superman, 10},
                  {Bonus::QuestionShield, 8},
                  {Bonus::QuestionFastIgnition, 4},
                  {Bonus::Death, 0}});
    expectShares(true, 127,
                 {{Bonus::Bomb, 20},
                  {Bonus::Cash, 0},
                  {Bonus::QuestionShield, 0},
                  {Bonus::QuestionGhost, 0},
                  {Bonus::QuestionStop, 0},
                  {Bonus::QuestionFastIgnition, 4},
                  {Bonus::Death, 0}});
    gameOptions.gameMode = GameMode::SnakeHunter;
    expectShares(false, 255, {{Bonus::Bomb, 70}, {Bonus::Controller, 1}});
}

TEST_F(ChooseBonusTest, CashIsLeftOutWhereItWouldBuyNothing) {
    lootboxesEnabled = false;
    expectShares(false, 239, {{Bonus::Bomb, 70}, {Bonus::Cash, 0}});
    gameOptions.auctionInterval = 1000;
    expectShares(false, 259, {{Bonus::Cash, 20}});
}

TEST_F(ChooseBonusTest, WhatIsDisabledIsNotDrawn) {
    gameOptions.powerupDisabled.fill(true);
    EXPECT_EQ(drawsOf([] { EXPECT_EQ(chooseBonus(false), Bonus::None); }), 0);
    gameOptions.powerupDisabled[Bonus::UltraBomb] = false;
    expectShares(true, 1, {{Bonus::UltraBomb, 1}});
}

}  // namespace
}  // namespace vandrel
