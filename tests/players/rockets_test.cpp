// Rockets: when one may be fired, how it flies, what ends the flight.
#include <gtest/gtest.h>

#include <algorithm>

#include "support/round_fixture.h"

namespace vandrel {
namespace {

class Rockets : public testing::Test {
  protected:
    explicit Rockets(const RoundSetup& setup = {}) : round(setup), player(round.addPlayer({3, 5})) {
        player->bombType = BombType::RocketLauncher;
        player->facing = Facing::Right;
        player->framesSinceRocket = 1000;
    }

    void fire() { round.press(*player, {.fire = true}); }

    // Where the one rocket or landed rocket is.
    Square place() const {
        for (int x = 0; x < grid_squares_x; ++x) {
            for (int y = 0; y < grid_squares_y; ++y) {
                if (hasBomb({x, y})) {
                    return {x, y};
                }
            }
        }
        return {};
    }

    TestRound round;
    std::shared_ptr<Player> player;
};

TEST(RocketsInFreshRounds, FlyOneSquareInThreeFramesAtSixtyHertz) {
    for (const int rate : {60, 120}) {
        TestRound round({.rate = rate});
        const auto shooter = round.addPlayer({3, 5});
        shooter->bombType = BombType::RocketLauncher;
        shooter->framesSinceRocket = 1000;
        for (const Facing facing : {Facing::Right, Facing::Down}) {
            shooter->facing = facing;
            shooter->maxBombs = 5;
            round.release(*shooter);
            round.step(100);
            round.hold(*shooter, {.fire = true});
            round.step();
            round.release(*shooter);
            const Square way = directionOf(facing);
            const int perStep = 3 * gameOptions.frameMultiplier;
            round.step(perStep - 2);
            EXPECT_TRUE(hasBomb({3, 5}));
            for (int squares = 1; squares <= 3; ++squares) {
                round.step(squares == 1 ? 1 : perStep);
                EXPECT_TRUE(hasBomb({3 + squares * way.x, 5 + squares * way.y})) << squares << " at " << rate;
                EXPECT_FALSE(hasBomb({3 + (squares - 1) * way.x, 5 + (squares - 1) * way.y}));
            }
            shooter->releaseBombs(false);
            round.step(200);
            EXPECT_EQ(shooter->bombsPlaced, 0);
            shooter->dead = false;
            shooter->reset();
            shooter->bombType = BombType::RocketLauncher;
            shooter->framesSinceRocket = 1000;
        }
    }
}

// A rocket that goes right or down comes to a square that the pass has yet to visit; it takes one step a pass all the
// same.
TEST(RocketsInFreshRounds, TakeOneStepAPassInEveryDirection) {
    for (const Facing facing : facingOrder) {
        TestRound round;
        const auto owner = round.addPlayer({1, 1});
        placeRocket({7, 5}, owner, facing);
        round.step();
        const Square way = directionOf(facing);
        const Square next{7 + way.x, 5 + way.y};
        ASSERT_TRUE(hasBomb(next)) << facing;
        EXPECT_EQ(bombGrid.at(next).rocketStep, 0);
        EXPECT_EQ(bombGrid.at(next).fuse, 500) << "the fuse waits";
        EXPECT_FALSE(hasBomb({7, 5}));
    }
}

TEST(RocketsInFreshRounds, LandBeforeWhateverIsInTheWay) {
    struct Row {
        const char* what;
        void (*put)(TestRound& round, Square square);
        bool lands;
    };
    const Row rows[] = {
        {"nothing", [](TestRound&, Square) {}, false},
        {"a wall", [](TestRound&, Square at) { squareGrid.set(at, SquareKind::Wall); }, true},
        {"a pillar", [](TestRound&, Square at) { squareGrid.set(at, SquareKind::GridBlock); }, true},
        {"a crumbling wall", [](TestRound&, Square at) { squareGrid.set(at, SquareKind::HardWallCrumbling); }, true},
        {"a powerup", [](TestRound&, Square at) { bonusGrid.at(at) = Bonus::Cash; }, true},
        {"a bomb", [](TestRound&, Square at) { placeBomb(at, players[1], 500); }, true},
        {"a player", [](TestRound& round, Square at) { round.addPlayer(at); }, true},
        {"a player whose corner is there",
         [](TestRound& round, Square at) {
             const auto player = round.addPlayer(at);
             player->x += 31;
             player->y += 31;
         },
         true},
        {"a player whose middle only is there", [](TestRound& round, Square at) { round.addPlayer(at)->y -= 10; },
         false},
        {"a ghost",
         [](TestRound& round, Square at) {
             const auto ghost = round.addPlayer(at);
             ghost->ghost = true;
             ghost->shieldTimer = Player::lastingShield();
         },
         false},
        {"a dead player", [](TestRound& round, Square at) { round.addPlayer(at)->dead = true; }, false},
        {"a snake's head", [](TestRound& round, Square at) { round.addSnake(at, Facing::Up, 4); }, true},
        {"a snake's body",
         [](TestRound& round, Square at) {
             round.addSnake({12, 8}, Facing::Up, 4)->snakeParts.back() = {at.x * 32, at.y * 32, Facing::Up};
         },
         true},
        {"its owner", [](TestRound&, Square at) { players[0]->x = at.x * 32; }, false},
    };
    for (const Row& row : rows) {
        TestRound round;
        const auto owner = round.addPlayer({2, 5});
        round.addPlayer({1, 1});
        placeRocket({6, 5}, owner, Facing::Right);
        row.put(round, {7, 5});
        round.game().updateBombs();
        EXPECT_EQ(bombGrid.at(6, 5).isLive(), row.lands) << row.what;
        EXPECT_EQ(bombGrid.at(6, 5).kind == BombKind::Ticking, row.lands) << row.what;
        if (!row.lands) {
            EXPECT_EQ(bombGrid.at(7, 5).owner.lock(), owner) << row.what;
        }
    }
}

TEST_F(Rockets, OnesOwnBodyAsASnakeIsInTheWay) {
    const auto snake = round.addSnake({10, 8}, Facing::Up, 4);
    snake->snakeParts.back() = {7 * 32, 5 * 32, Facing::Up};
    placeRocket({6, 5}, snake, Facing::Right);
    round.game().updateBombs();
    EXPECT_EQ(bombGrid.at(6, 5).kind, BombKind::Ticking);
}

TEST_F(Rockets, FiredAtAWallCountDownUnderTheShooter) {
    squareGrid.set(4, 5, SquareKind::GridBlock);
    fire();
    round.step(4);
    EXPECT_EQ(place(), (Square{3, 5}));
    round.step();
    EXPECT_EQ(place(), (Square{}));
    EXPECT_TRUE(player->dead);
    EXPECT_EQ(player->kills, -1);
}

TEST_F(Rockets, KeepTheDirectionInWhichTheyWereFired) {
    fire();
    round.hold(*player, {.up = true});
    round.step(10);
    EXPECT_EQ(place().y, 5);
    EXPECT_GT(place().x, 5);
}

// The pause between two rockets is 47 frames less 3 for each bomb that may be out; the count rises before it is looked
// at.
TEST(RocketsInFreshRounds, ComeAtThePaceThatTheBombsAllow) {
    for (const int maxBombs : {2, 5, 15, 16}) {
        TestRound round({.size = {60, 9}, .rate = maxBombs == 5 ? 120 : 60});
        const auto shooter = round.addPlayer({1, 5});
        shooter->bombType = BombType::RocketLauncher;
        shooter->facing = Facing::Right;
        shooter->maxBombs = maxBombs;
        shooter->framesSinceRocket = 1000;
        round.hold(*shooter, {.fire = true});
        round.step();
        ASSERT_EQ(shooter->bombsPlaced, 1);
        const int wait = round.stepUntil([&] { return shooter->bombsPlaced == 2; });
        // With 15 and more a rocket is still on the square when the next is due.
        EXPECT_EQ(wait, std::max(48 - 3 * maxBombs, 3)) << maxBombs;
    }
}

TEST_F(Rockets, NeedABombPlace) {
    player->bombsPlaced = 1;
    fire();
    EXPECT_EQ(countBombs(*player), 0);
    player->maxBombs = 2;
    fire();
    EXPECT_EQ(countBombs(*player), 1);
    EXPECT_EQ(player->bombsPlaced, 2);
}

TEST_F(Rockets, StopInTheAirAtTheDeathOfTheShooter) {
    fire();
    round.step(4);
    const Square before = place();
    EXPECT_EQ(before, (Square{5, 5}));
    player->die();
    EXPECT_EQ(bombGrid.at(before).kind, BombKind::Ticking);
    EXPECT_EQ(round.stepUntil([&] { return !hasBomb(before); }), 4);
    EXPECT_TRUE(isFlame(round.game(), {before.x + 1, before.y}));
}

}  // namespace
}  // namespace vandrel
