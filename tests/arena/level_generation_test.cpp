#include "arena/level_generation.h"

#include <gtest/gtest.h>

#include <array>
#include <map>
#include <memory>

#include "arena/bonus.h"
#include "arena/game.h"
#include "base/random.h"
#include "match/options/game_options.h"
#include "players/player.h"
#include "shell/log.h"
#include "shell/switches.h"

namespace vandrel {
namespace {

class LevelGenerationTest : public testing::Test {
  protected:
    void SetUp() override {
        setDebugOutput([](const char* /*line*/, std::size_t /*length*/) {});
        gameOptions = GameOptions{};
        gameOptions.arenaSizeResolved = 3;
        gameOptions.gridBlocksResolved = true;
        gameOptions.wallPercent = 70;
        gameOptions.powerupPercent = 40;
        gameOptions.auctionInterval = 0;
        gameOptions.timeBeforeShrinkingFrames = 5400;
        lootboxesEnabled = true;
        addPlayers(2);
    }
    void TearDown() override {
        game_ = nullptr;
        players.clear();
        teams.clear();
        gameOptions = GameOptions{};
        lootboxesEnabled = true;
    }

    static void addPlayers(int count) {
        players.clear();
        for (int i = 0; i < count; ++i) {
            players.push_back(std::make_shared<Player>(i, 0, -1, PlayerLook{}, std::make_shared<NoControls>()));
        }
        gameOptions.numPlayers = count;
    }
    void generate(bool forJoinScreen = false) {
        game_ = std::make_unique<Game>(PackagedReplayData{});
        setUpRound({27, 15}, {}, *game_, forJoinScreen);
    }
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

    std::unique_ptr<Game> game_;
};

TEST_F(LevelGenerationTest, TheRingIsEdgeWallAndPillarsStandOnEvenSquares) {
    generate();
    forEachSquare([](Square square, int kind, int /*bonus*/) {
        if (!isInnerSquare(square)) {
            EXPECT_EQ(kind, SquareKind::EdgeWall);
        } else if (square.x % 2 == 0 && square.y % 2 == 0) {
            EXPECT_EQ(kind, SquareKind::GridBlock);
        } else {
            EXPECT_TRUE(kind == SquareKind::Empty || isBreakableWall(kind));
        }
    });
}

TEST_F(LevelGenerationTest, PowerupsLieOnlyUnderWalls) {
    generate();
    int bonuses = 0;
    forEachSquare([&](Square /*square*/, int kind, int bonus) {
        bonuses += bonus != 0 ? 1 : 0;
        EXPECT_TRUE(bonus == 0 || isBreakableWall(kind));
    });
    EXPECT_GT(bonuses, 10);
}

TEST_F(LevelGenerationTest, WithoutWallsEachSquareOffThePillarsCostsOneDraw) {
    gameOptions.wallPercent = 0;
    game_ = std::make_unique<Game>(PackagedReplayData{});
    const int inner = 25 * 13;
    const int pillars = 12 * 6;
    EXPECT_EQ(drawsOf([&] { setUpRound({27, 15}, {}, *game_, false); }), inner - pillars);
    forEachSquare([](Square square, int kind, int bonus) {
        EXPECT_TRUE(!isInnerSquare(square) || kind == SquareKind::Empty || kind == SquareKind::GridBlock);
        EXPECT_EQ(bonus, 0);
    });
}

TEST_F(LevelGenerationTest, WallsWithoutPowerupsCostThreeDrawsEach) {
    gameOptions.wallPercent = 100;
    gameOptions.powerupPercent = 0;
    game_ = std::make_unique<Game>(PackagedReplayData{});
    EXPECT_EQ(drawsOf([&] { setUpRound({27, 15}, {}, *game_, false); }), 3 * (25 * 13 - 12 * 6));
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
    EXPECT_EQ(teams[0].base(), (Square{1, 7}));
    EXPECT_EQ(teams[1].base(), (Square{25, 7}));
    EXPECT_EQ(teams[2].base(), (Square{13, 1}));
    EXPECT_EQ(teams[3].base(), (Square{13, 13}));
    EXPECT_EQ((Square{teams[1].pushX, teams[1].pushY}), (Square{-1, 0}));
    EXPECT_EQ((Square{teams[3].pushX, teams[3].pushY}), (Square{0, -1}));
    EXPECT_EQ(teams[1].score, 0);
    EXPECT_EQ(teams[1].displayedScore, 0);
    ASSERT_EQ(game_->flags.size(), 4U);
    EXPECT_EQ(game_->flags[2].position(), (Pixel{13 * 32, 32}));
    EXPECT_TRUE(game_->flags[2].inBase);
    EXPECT_EQ(game_->hillLeft, 10);
    EXPECT_EQ(game_->hillRight, 16);
    EXPECT_EQ(game_->hillTop, 5);
    EXPECT_EQ(game_->hillBottom, 9);
}

TEST_F(LevelGenerationTest, ASingleFlagStandsInTheMiddleAndBelongsToNobody) {
    gameOptions.gameMode = GameMode::CaptureTheFlag;
    gameOptions.singleFlag = true;
    teams.assign(2, Team{});
    generate();
    ASSERT_EQ(game_->flags.size(), 1U);
    EXPECT_EQ(game_->flags[0].team, -1);
    EXPECT_EQ(game_->flags[0].position(), (Pixel{13 * 32, 7 * 32}));
}

// The draw of powerups, against the weights as a player reads them: shares of many draws.
class ChooseBonusTest : public LevelGenerationTest {
  protected:
    static std::array<int, bonusCount> count(bool forAuction, int draws) {
        seedGameRand(4711);
        std::array<int, bonusCount> counts{};
        for (int i = 0; i < draws; ++i) {
            ++counts[static_cast<std::size_t>(chooseBonus(forAuction))];
        }
        return counts;
    }
};

TEST_F(ChooseBonusTest, FollowsTheWeightsOfTheLevel) {
    constexpr int draws = 200'000;
    constexpr double sum = 259.0;
    const auto counts = count(false, draws);
    const std::map<int, int> weights{
        {Bonus::Bomb, 70}, {Bonus::Range, 40},    {Bonus::Speed, 50},         {Bonus::Controller, 5},
        {Bonus::Cash, 20}, {Bonus::Superman, 10}, {Bonus::QuestionShield, 8}, {Bonus::QuestionFastIgnition, 4}};
    for (const auto& [bonus, weight] : weights) {
        EXPECT_NEAR(counts[static_cast<std::size_t>(bonus)], draws * weight / sum, draws * 0.003) << bonus;
    }
    EXPECT_EQ(counts[Bonus::None], 0);
    EXPECT_EQ(counts[Bonus::Death], 0);
}

TEST_F(ChooseBonusTest, NeverAuctionsCashNorMostHiddenPowerups) {
    const auto counts = count(true, 50'000);
    for (const int bonus :
         {Bonus::Cash, Bonus::QuestionShield, Bonus::QuestionGhost, Bonus::QuestionStop, Bonus::Death}) {
        EXPECT_EQ(counts[static_cast<std::size_t>(bonus)], 0) << bonus;
    }
    EXPECT_GT(counts[Bonus::QuestionFastIgnition], 0);
}

TEST_F(ChooseBonusTest, RemoteControlIsRarerInSnakeHunter) {
    gameOptions.gameMode = GameMode::SnakeHunter;
    constexpr int draws = 200'000;
    EXPECT_NEAR(count(false, draws)[Bonus::Controller], draws / 255.0, draws * 0.001);
}

TEST_F(ChooseBonusTest, CashIsLeftOutWhereItWouldBuyNothing) {
    lootboxesEnabled = false;
    EXPECT_EQ(count(false, 20'000)[Bonus::Cash], 0);
    gameOptions.auctionInterval = 1000;
    EXPECT_GT(count(false, 20'000)[Bonus::Cash], 0);
}

TEST_F(ChooseBonusTest, WithEverythingDisabledNothingIsDrawn) {
    gameOptions.powerupDisabled.fill(true);
    EXPECT_EQ(drawsOf([] { EXPECT_EQ(chooseBonus(false), Bonus::None); }), 0);
}

TEST_F(ChooseBonusTest, TheOnlyPowerupLeftIsAlwaysDrawn) {
    gameOptions.powerupDisabled.fill(true);
    gameOptions.powerupDisabled[Bonus::UltraBomb] = false;
    EXPECT_EQ(count(true, 100)[Bonus::UltraBomb], 100);
}

}  // namespace
}  // namespace vandrel
