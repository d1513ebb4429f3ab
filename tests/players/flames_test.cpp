// Flames: where they burn and for how long, what they do to walls and powerups, what stops a wave and what is left of
// it.
#include <gtest/gtest.h>

#include <algorithm>

#include "support/round_fixture.h"

namespace vandrel {
namespace {

constexpr Square middle{7, 6};

// A bomb that explodes in the first update, its owner far off.
class Flames : public testing::Test {
  protected:
    explicit Flames(const RoundSetup& setup = {.size = {21, 13}}) : round(setup), owner(round.addPlayer({19, 11})) {
        placeBomb(middle, owner, 0);
    }

    bool burns(int dx, int dy = 0) { return isFlame(round.game(), {middle.x + dx, middle.y + dy}); }

    TestRound round;
    std::shared_ptr<Player> owner;
};

TEST(FlamesInFreshRounds, OfRangeTwoBurnOnEachSquareToTheFrame) {
    struct Window {
        int distance;
        int from;
        int until;  // the first frame without a flame
    };
    for (const int rate : {60, 120}) {
        TestRound round({.size = {21, 13}, .rate = rate});
        placeBomb(middle, round.addPlayer({19, 11}), 0);
        const int unit = 4 * gameOptions.frameMultiplier;
        const Window windows[] = {{0, 0, 2 * unit - 1}, {1, 0, 3 * unit - 1}, {2, unit - 1, 4 * unit - 1}, {3, 0, 0}};
        for (int frame = 0; frame < 5 * unit; ++frame) {
            round.step();
            for (const Window& window : windows) {
                for (const Facing way : facingOrder) {
                    const Square direction = directionOf(way);
                    const Square square{middle.x + direction.x * window.distance,
                                        middle.y + direction.y * window.distance};
                    EXPECT_EQ(isFlame(round.game(), square), frame >= window.from && frame < window.until)
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
    round.step(15);
    EXPECT_TRUE(burns(5));
    round.step(4);
    EXPECT_FALSE(burns(6));
}

TEST(FlamesInFreshRounds, RunDiagonallyWithAnUltrabombOnly) {
    for (const bool ultra : {false, true}) {
        TestRound round({.size = {21, 13}});
        const auto player = round.addPlayer({19, 11});
        player->ultraBomb = ultra;
        placeBomb(middle, player, 0);
        round.step(4);
        for (const int dx : {-1, 1}) {
            for (const int dy : {-1, 1}) {
                EXPECT_EQ(isFlame(round.game(), {middle.x + dx, middle.y + dy}), ultra);
                EXPECT_EQ(isFlame(round.game(), {middle.x + 2 * dx, middle.y + 2 * dy}), ultra);
            }
        }
        EXPECT_TRUE(isFlame(round.game(), {middle.x + 2, middle.y}));
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

TEST(FlamesInFreshRounds, NeverStandOnTheRing) {
    TestRound round;
    placeBomb({1, 1}, round.addPlayer({13, 9}), 0);
    round.step();
    EXPECT_FALSE(isFlame(round.game(), {0, 1}));
    EXPECT_FALSE(isFlame(round.game(), {1, 0}));
    EXPECT_TRUE(isFlame(round.game(), {2, 1}));
    EXPECT_EQ(squareGrid.at(0, 1), SquareKind::EdgeWall);
}

// The tail of a wave whose head met a wall burns on where it is until it would step again.
TEST_F(Flames, AWallEndsTheHeadAndLetsTheTailBurnOut) {
    owner->range = 6;
    squareGrid.set(middle.x + 2, middle.y, SquareKind::Wall);
    round.step(3);
    EXPECT_EQ(squareGrid.at(middle.x + 2, middle.y), SquareKind::Wall);
    round.step();
    EXPECT_EQ(squareGrid.at(middle.x + 2, middle.y), SquareKind::WallCrumbling);
    EXPECT_FALSE(burns(2));
    for (int frame = 3; frame < 7; ++frame) {
        EXPECT_TRUE(burns(1)) << "frame " << frame;
        round.step();
    }
    EXPECT_FALSE(burns(1)) << "frame 7";
    EXPECT_TRUE(burns(-1)) << "the other waves go on";
    round.step(40);
    EXPECT_FALSE(burns(3));
}

TEST_F(Flames, ABombTakesTheWholeWaveOut) {
    placeBomb({middle.x + 2, middle.y}, owner, 500);
    round.step(3);
    EXPECT_TRUE(burns(1));
    round.step();
    EXPECT_FALSE(burns(1));
    EXPECT_FALSE(burns(2));
    EXPECT_TRUE(burns(-1));
    EXPECT_EQ(bombGrid.at(middle.x + 2, middle.y).fuse, 3);
}

TEST(FlamesInFreshRounds, DamageAWallByItsKind) {
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
        TestRound round({.size = {21, 13}});
        placeBomb(middle, round.addPlayer({19, 11}), 0);
        squareGrid.set(middle.x + 1, middle.y, row.before);
        bonusGrid.at(middle.x + 1, middle.y) = Bonus::Cash;
        round.step();
        EXPECT_EQ(squareGrid.at(middle.x + 1, middle.y), row.after) << "kind " << row.before;
        EXPECT_EQ(bonusGrid.at(middle.x + 1, middle.y), Bonus::Cash) << "what a wall hides is safe";
        round.step(3);
        EXPECT_FALSE(isFlame(round.game(), {middle.x + 2, middle.y}));
    }
}

TEST_F(Flames, AHardWallTakesThreeBombs) {
    const Square wall{middle.x + 1, middle.y};
    squareGrid.set(wall, SquareKind::HardWall);
    bombGrid.edit(middle) = Bomb{};
    for (const int kind : {SquareKind::HardWallHitOnce, SquareKind::HardWallHitTwice, SquareKind::HardWallCrumbling}) {
        placeBomb(middle, owner, 0);
        round.step();
        EXPECT_EQ(squareGrid.at(wall), kind);
        if (kind != SquareKind::HardWallCrumbling) {
            round.step(40);
        }
    }
    EXPECT_EQ(round.stepUntil([&] { return squareGrid.at(wall) == SquareKind::Empty; }), 20);
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
    round.step(4);
    EXPECT_EQ(bonusGrid.at(middle.x + 1, middle.y), 0);
    EXPECT_TRUE(burns(2));
}

TEST_F(Flames, OfTheAnnihilatorPassWhatBreaksAndSparePowerups) {
    owner->annihilator = true;
    owner->range = 4;
    squareGrid.set(middle.x + 1, middle.y, SquareKind::Wall);
    squareGrid.set(middle.x + 2, middle.y, SquareKind::HardWall);
    bonusGrid.at(middle.x + 3, middle.y) = Bonus::Cash;
    squareGrid.set(middle.x - 1, middle.y, SquareKind::GridBlock);
    squareGrid.set(middle.x, middle.y - 1, SquareKind::EdgeWall);
    round.step();
    EXPECT_EQ(squareGrid.at(middle.x + 1, middle.y), SquareKind::WallCrumbling);
    EXPECT_FALSE(burns(-1));
    EXPECT_FALSE(burns(0, -1));
    round.step(11);
    EXPECT_EQ(squareGrid.at(middle.x + 2, middle.y), SquareKind::HardWallHitOnce) << "one hit a wave, by its head";
    EXPECT_TRUE(burns(4));
    EXPECT_EQ(bonusGrid.at(middle.x + 3, middle.y), Bonus::Cash);
    EXPECT_EQ(squareGrid.at(middle.x - 1, middle.y), SquareKind::GridBlock);
    EXPECT_FALSE(burns(-2));
    EXPECT_FALSE(burns(0, -2));
}

TEST_F(Flames, GoOutWithTheirOwner) {
    round.step();
    EXPECT_TRUE(burns(1));
    players.clear();
    owner.reset();
    EXPECT_FALSE(burns(1));
    round.step(8);
    EXPECT_TRUE(round.game().explosions.empty());
}

class Flamethrower : public testing::Test {
  protected:
    Flamethrower() : player(round.addPlayer({5, 5})) {
        player->bombType = BombType::Flamethrower;
        player->facing = Facing::Right;
        player->maxBombs = 0;
    }

    TestRound round;
    std::shared_ptr<Player> player;
};

TEST_F(Flamethrower, SpitsAheadAtOnceWithoutABombAndDoesNotBurnItsOwner) {
    round.hold(*player, {.fire = true});
    round.step();
    EXPECT_TRUE(isFlame(round.game(), {5, 5}));
    EXPECT_TRUE(isFlame(round.game(), {6, 5}));
    EXPECT_FALSE(isFlame(round.game(), {4, 5}));
    round.step(30);
    EXPECT_FALSE(player->dead);
    EXPECT_EQ(player->bombsPlaced, 0);
    EXPECT_TRUE(isFlame(round.game(), {7, 5}));
    EXPECT_FALSE(isFlame(round.game(), {8, 5})) << "range 2";
}

TEST_F(Flamethrower, BurnsWhoeverElseSharesItsSquare) {
    const auto other = round.addPlayer({5, 5});
    round.hold(*player, {.fire = true});
    round.step();
    EXPECT_TRUE(other->dead);
    EXPECT_EQ(player->kills, 1);
}

TEST(FlamethrowerInFreshRounds, LayersLeaveTheSquareAfterFoursOfFramesAtEveryRate) {
    for (const int rate : {60, 120}) {
        TestRound round({.rate = rate});
        const auto spitter = round.addPlayer({5, 5});
        round.game().fireFlame({5, 5}, {1, 0}, spitter);
        ASSERT_EQ(round.game().explosions.size(), 3U);
        for (int frame = 0; frame < 10; ++frame) {
            round.game().updateExplosions();
            const auto left = std::count_if(round.game().explosions.begin(), round.game().explosions.end(),
                                            [](const Explosion& flame) { return flame.steps == 0; });
            EXPECT_EQ(left, frame < 3 ? 2 : (frame < 7 ? 1 : 0)) << "frame " << frame << " at " << rate;
        }
    }
}

TEST_F(Flamethrower, SoundsOncePerTenFramesAndAnewAtEachPress) {
    round.hold(*player, {.fire = true});
    round.step(21);
    EXPECT_EQ(round.takeHeard(), (std::vector<HeardSample>(3, {SampleIds::Fire, 200, 128, 3000})));
    round.release(*player);
    round.step();
    round.hold(*player, {.fire = true});
    round.step();
    EXPECT_EQ(round.takeHeard().size(), 1U);
}

}  // namespace
}  // namespace vandrel
