// Flames: where they burn and for how long, what they do to walls and powerups, what stops a wave and what is left of
// it.
#include <gtest/gtest.h>

#include <algorithm>

#include "players/in_words.h"

namespace vandrel {
namespace {

constexpr Square middle{7, 6};

// A bomb that explodes in the first update, its owner far off.
struct Blast : TestRound {
    explicit Blast(int rate = 60) : TestRound({.size = {21, 13}, .rate = rate}), owner(addPlayer({19, 11})) {
        placeBomb(middle, owner, 0);
    }

    bool burns(int dx, int dy = 0) { return isFlame(game(), {middle.x + dx, middle.y + dy}); }
    // The row of the bomb after so many updates more.
    std::string rowAfter(int updates) {
        step(updates);
        return rowOf(game(), middle.y);
    }

    std::shared_ptr<Player> owner;
};

class Flames : public testing::Test {
  protected:
    static void setAt(int dx, int kind) { squareGrid.set(middle.x + dx, middle.y, kind); }

    Blast round;
    std::shared_ptr<Player> owner = round.owner;
};

TEST(Blast, OfRangeTwoBurnsOnEachSquareToTheFrame) {
    struct Window {
        int distance;
        int from;
        int until;  // the first frame without a flame
    };
    for (const int rate : {60, 120}) {
        Blast round(rate);
        const int unit = 4 * gameOptions.frameMultiplier;
        const Window windows[] = {{0, 0, 2 * unit - 1}, {1, 0, 3 * unit - 1}, {2, unit - 1, 4 * unit - 1}, {3, 0, 0}};
        for (int frame = 0; frame < 5 * unit; ++frame) {
            round.step();
            for (const Window& window : windows) {
                for (const Facing way : facingOrder) {
                    const Square direction = directionOf(way);
                    EXPECT_EQ(round.burns(direction.x * window.distance, direction.y * window.distance),
                              frame >= window.from && frame < window.until)
                        << "distance " << window.distance << ", frame " << frame << " at " << rate;
                }
            }
        }
        EXPECT_TRUE(round.game().explosions.empty());
    }
}

TEST_F(Flames, ReachAsFarAsTheRangeThatTheOwnerHasMeanwhile) {
    round.step(2);
    owner->range = 5;
    EXPECT_EQ(round.rowAfter(15), "#.***.....***.......#");
    EXPECT_EQ(round.rowAfter(4), "#.**.......**.......#");
}

TEST(Blast, RunsDiagonallyWithAnUltrabombOnly) {
    for (const bool ultra : {false, true}) {
        Blast round;
        round.owner->ultraBomb = ultra;
        EXPECT_EQ(round.rowAfter(4), "#....*****..........#");
        EXPECT_EQ(rowOf(round.game(), middle.y - 1), ultra ? "#.....***...........#" : "#......*............#");
        EXPECT_EQ(rowOf(round.game(), middle.y + 2), ultra ? "#....*.*.*..........#" : "#......*............#");
        EXPECT_EQ(round.game().nextWaveId, ultra ? 8 : 4);
    }
}

TEST_F(Flames, StartInTheOrderOfColumnsWithThreeLayersEach) {
    round.game().updateBombs();
    const auto& flames = round.game().explosions;
    ASSERT_EQ(flames.size(), 12U);
    const Square order[] = {{-1, 0}, {0, -1}, {0, 1}, {1, 0}};
    for (std::size_t i = 0; i < flames.size(); ++i) {
        EXPECT_EQ((Square{flames[i].dx, flames[i].dy}), order[i / 3]);
        EXPECT_EQ(flames[i].layer, static_cast<int>(i % 3) + 1);
        EXPECT_EQ(flames[i].waveId, static_cast<int>(i / 3));
        EXPECT_FALSE(flames[i].isFlamethrower);
    }
}

TEST(FlamesOfACorner, NeverStandOnTheRing) {
    TestRound round;
    placeBomb({1, 1}, round.addPlayer({13, 9}), 0);
    round.step();
    EXPECT_EQ(rowOf(round.game(), 0), "###############");
    EXPECT_EQ(rowOf(round.game(), 1), "#**...........#");
}

// The tail of a wave whose head met a wall burns on where it is until it would step again.
TEST_F(Flames, AWallEndsTheHeadAndLetsTheTailBurnOut) {
    owner->range = 6;
    setAt(2, SquareKind::Wall);
    EXPECT_EQ(round.rowAfter(3), "#.....***w..........#");
    EXPECT_EQ(round.rowAfter(1), "#....****~..........#");
    EXPECT_EQ(round.rowAfter(3), "#....****~..........#");
    EXPECT_EQ(round.rowAfter(1), "#...***..~..........#") << "and the other wave goes on";
    EXPECT_EQ(round.rowAfter(40), "#...................#");
}

TEST_F(Flames, ABombTakesTheWholeWaveOut) {
    placeBomb({middle.x + 2, middle.y}, owner, 500);
    EXPECT_EQ(round.rowAfter(3), "#.....***o..........#");
    EXPECT_EQ(round.rowAfter(1), "#....***.o..........#");
    EXPECT_EQ(bombGrid.at(middle.x + 2, middle.y).fuse, 3);
}

TEST(Blast, DamagesAWallByItsKind) {
    struct Row {
        int before;
        int after;
    };
    constexpr Row rows[] = {
        {SquareKind::Wall, SquareKind::WallCrumbling},
        {SquareKind::HardWall, SquareKind::HardWallHitOnce},
        {SquareKind::HardWallHitOnce, SquareKind::HardWallHitTwice},
        {SquareKind::HardWallHitTwice, SquareKind::HardWallCrumbling},
        {SquareKind::WallCrumbling + 12, SquareKind::WallCrumbling},
        {SquareKind::HardWallCrumbling + 12, SquareKind::HardWallCrumbling},
        {SquareKind::GridBlock, SquareKind::GridBlock},
        {SquareKind::EdgeWall, SquareKind::EdgeWall},
    };
    for (const Row& row : rows) {
        Blast round;
        const Square wall{middle.x + 1, middle.y};
        squareGrid.set(wall, row.before);
        bonusGrid.at(wall) = Bonus::Cash;
        round.step();
        EXPECT_EQ(squareGrid.at(wall), row.after) << "kind " << row.before;
        EXPECT_EQ(bonusGrid.at(wall), Bonus::Cash) << "what a wall hides is safe";
        round.step(3);
        EXPECT_FALSE(round.burns(2)) << "kind " << row.before;
    }
}

TEST(Crumbling, TakesTwentyUpdatesAtEveryRate) {
    for (const int rate : {30, 60, 120, 144}) {
        for (const int kind : {SquareKind::WallCrumbling, SquareKind::HardWallCrumbling}) {
            TestRound round({.rate = rate});
            squareGrid.set(5, 5, kind);
            for (int i = 1; i < 20; ++i) {
                round.step();
                EXPECT_EQ(squareGrid.at(5, 5), kind + i);
            }
            round.step();
            EXPECT_EQ(squareGrid.at(5, 5), SquareKind::Empty);
        }
    }
}

TEST_F(Flames, BurnPowerupsAndGoOn) {
    bonusGrid.at(middle.x + 1, middle.y) = Bonus::Cash;
    EXPECT_EQ(round.rowAfter(4), "#....*****..........#");
    EXPECT_EQ(bonusGrid.at(middle.x + 1, middle.y), 0);
}

TEST_F(Flames, OfTheAnnihilatorPassWhatBreaksAndSparePowerups) {
    owner->annihilator = true;
    owner->range = 4;
    setAt(1, SquareKind::Wall);
    setAt(2, SquareKind::HardWall);
    bonusGrid.at(middle.x + 3, middle.y) = Bonus::Cash;
    setAt(-1, SquareKind::GridBlock);
    squareGrid.set(middle.x, middle.y - 1, SquareKind::EdgeWall);
    round.step();
    EXPECT_EQ(squareGrid.at(middle.x + 1, middle.y), SquareKind::WallCrumbling);
    EXPECT_FALSE(round.burns(-1) || round.burns(0, -1));
    EXPECT_EQ(round.rowAfter(11), "#.....X.~***........#");
    EXPECT_EQ(squareGrid.at(middle.x + 2, middle.y), SquareKind::HardWallHitOnce) << "one hit a wave, by its head";
    EXPECT_EQ(bonusGrid.at(middle.x + 3, middle.y), Bonus::Cash);
    EXPECT_FALSE(round.burns(0, -2));
}

TEST(Blast, GoesOutWithItsOwnerAndSoDoTheBombsThatWereStillToExplode) {
    Blast round;
    placeBomb({3, 3}, round.owner, 5);
    round.step();
    EXPECT_TRUE(round.burns(1));
    players.clear();
    round.owner.reset();
    EXPECT_FALSE(round.burns(1));
    EXPECT_FALSE(hasBomb({3, 3}));
    round.step(8);
    EXPECT_TRUE(round.game().explosions.empty());
}

class Flamethrower : public testing::Test {
  protected:
    Flamethrower() {
        player->bombType = BombType::Flamethrower;
        player->facing = Facing::Right;
        player->maxBombs = 0;
    }

    TestRound round;
    std::shared_ptr<Player> player = round.addPlayer({5, 5});
};

TEST_F(Flamethrower, SpitsAheadAtOnceWithoutABombAndDoesNotBurnItsOwner) {
    act(round, *player, {.fire = true});
    EXPECT_EQ(rowOf(round.game(), 5), "#....**.......#");
    round.step(30);
    EXPECT_EQ(rowOf(round.game(), 5), "#....***......#");
    EXPECT_FALSE(player->dead);
    EXPECT_EQ(player->bombsPlaced, 0);
}

TEST_F(Flamethrower, LayersLeaveTheSquareAfterFoursOfFramesAtEveryRate) {
    for (const int multiplier : {1, 2}) {
        gameOptions.frameMultiplier = multiplier;
        round.game().explosions.clear();
        round.game().fireFlame({5, 5}, {1, 0}, player);
        ASSERT_EQ(round.game().explosions.size(), 3U);
        for (int frame = 0; frame < 10; ++frame) {
            round.game().updateExplosions();
            const auto left = std::count_if(round.game().explosions.begin(), round.game().explosions.end(),
                                            [](const Explosion& flame) { return flame.steps == 0; });
            EXPECT_EQ(left, frame < 3 ? 2 : (frame < 7 ? 1 : 0)) << "frame " << frame << " times " << multiplier;
        }
    }
}

TEST_F(Flamethrower, SoundsOncePerTenFramesAndAnewAtEachPress) {
    act(round, *player, {.fire = true}, 21);
    EXPECT_EQ(round.takeHeard(), (std::vector<HeardSample>(3, {SampleIds::Fire, 200, 128, 3000})));
    act(round, *player, {});
    act(round, *player, {.fire = true});
    EXPECT_EQ(round.takeHeard().size(), 1U);
}

}  // namespace
}  // namespace vandrel
