// Rockets: when one may be fired, how it flies, what ends the flight.
#include <gtest/gtest.h>

#include <algorithm>

#include "players/in_words.h"

namespace vandrel {
namespace {

constexpr Square ahead{7, 5};

// Who fires rockets to the right, from the left of row 5.
struct RocketRound : TestRound {
    explicit RocketRound(const RoundSetup& setup = {}) : TestRound(setup), player(addPlayer({3, 5})) {
        player->bombType = BombType::RocketLauncher;
        player->facing = Facing::Right;
        player->framesSinceRocket = 1000;
    }

    void fire() { press(*player, {.fire = true}); }
    std::string row() { return rowOf(game(), 5); }

    std::shared_ptr<Player> player;
};

class Rockets : public testing::Test {
  protected:
    RocketRound round;
    std::shared_ptr<Player> player = round.player;
};

TEST(RocketsAtBothRates, FlyOneSquareInThreeFramesAtSixtyHertz) {
    for (const int rate : {60, 120}) {
        for (const Facing facing : {Facing::Right, Facing::Down}) {
            RocketRound round({.rate = rate});
            round.player->facing = facing;
            bombGrid.edit(3, 5).rocketStep = 50;  // what an earlier rocket has left there
            act(round, *round.player, {.fire = true});
            round.release(*round.player);
            const Square way = directionOf(facing);
            const int perStep = 3 * gameOptions.frameMultiplier;
            round.step(perStep - 2);
            EXPECT_EQ(round.row(), "#..r..........#");
            for (int squares = 1; squares <= 3; ++squares) {
                round.step(squares == 1 ? 1 : perStep);
                EXPECT_TRUE(hasBomb({3 + squares * way.x, 5 + squares * way.y})) << squares << " at " << rate;
                EXPECT_EQ(countBombs(*round.player), 1);
            }
        }
    }
}

TEST(RocketsInTheAir, LandBeforeWhateverIsInTheWay) {
    struct Row {
        const char* what;
        void (*put)(TestRound& round);
        bool lands;
    };
    const Row rows[] = {
        {"nothing", [](auto&) {}, false},
        {"a wall", [](auto&) { squareGrid.set(ahead, SquareKind::Wall); }, true},
        {"a pillar", [](auto&) { squareGrid.set(ahead, SquareKind::GridBlock); }, true},
        {"a crumbling wall", [](auto&) { squareGrid.set(ahead, SquareKind::HardWallCrumbling); }, true},
        {"a powerup", [](auto&) { bonusGrid.at(ahead) = Bonus::Cash; }, true},
        {"a bomb", [](auto&) { placeBomb(ahead, players[1], 500); }, true},
        {"a player", [](auto& round) { round.addPlayer(ahead); }, true},
        {"a player's corner only",
         [](auto& round) {
             const auto player = round.addPlayer(ahead);
             player->x += 31;
             player->y += 31;
         },
         true},
        {"a player's middle only", [](auto& round) { round.addPlayer(ahead)->y -= 10; }, false},
        {"a ghost", [](auto& round) { asGhost(*round.addPlayer(ahead)); }, false},
        {"a dead player", [](auto& round) { asDead(*round.addPlayer(ahead)); }, false},
        {"a snake's head", [](auto& round) { round.addSnake(ahead, Facing::Up, 4); }, true},
        {"a snake's body",
         [](auto& round) {
             layParts(*round.addSnake({12, 8}, Facing::Up, 4), {12, 8}, 3, ahead);
         },
         true},
        {"its owner", [](auto&) { players[0]->x = ahead.x * 32; }, false},
        {"its owner's body as a snake",
         [](auto&) {
             players[0]->setSnakeLength(4);
             layParts(*players[0], {12, 8}, 3, ahead);
         },
         true},
    };
    for (const Row& row : rows) {
        TestRound round;
        const auto owner = round.addPlayer({2, 5});
        round.addPlayer({1, 1});
        placeRocket({6, 5}, owner, Facing::Right);
        row.put(round);
        round.game().updateBombs();
        EXPECT_EQ(markOf(round.game(), {6, 5}), row.lands ? 'o' : '.') << row.what;
        EXPECT_EQ(bombGrid.at(ahead).owner.lock() == owner, !row.lands) << row.what;
    }
}

TEST_F(Rockets, KeepTheDirectionInWhichTheyWereFired) {
    round.fire();
    act(round, *player, {.up = true}, 10);
    EXPECT_EQ(round.row(), "#......r......#");
}

// The pause between two rockets is 47 frames less 3 for each bomb that may be out; the count rises before it is looked
// at.
TEST(RocketsOneAfterAnother, ComeAtThePaceThatTheBombsAllow) {
    for (const int maxBombs : {2, 5, 15, 16}) {
        RocketRound round({.size = {60, 9}, .rate = maxBombs == 5 ? 120 : 60});
        round.player->maxBombs = maxBombs;
        act(round, *round.player, {.fire = true});
        ASSERT_EQ(round.player->bombsPlaced, 1);
        const int wait = round.stepUntil([&] { return round.player->bombsPlaced == 2; });
        // With 15 and more a rocket is still on the square when the next is due.
        EXPECT_EQ(wait, std::max(48 - 3 * maxBombs, 3)) << maxBombs;
    }
}

TEST_F(Rockets, NeedABombPlace) {
    player->bombsPlaced = 1;
    round.fire();
    EXPECT_EQ(countBombs(*player), 0);
    player->maxBombs = 2;
    round.fire();
    EXPECT_EQ(countBombs(*player), 1);
    EXPECT_EQ(player->bombsPlaced, 2);
}

}  // namespace
}  // namespace vandrel
