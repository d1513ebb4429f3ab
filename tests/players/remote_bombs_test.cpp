// Remote Control and Detonator: laying, waiting, steering, the second press or the release, and the count of bombs.
#include <gtest/gtest.h>

#include "players/in_words.h"

namespace vandrel {
namespace {

constexpr Square ahead{4, 5};
constexpr BombType remoteTypes[] = {BombType::RemoteControl, BombType::Detonator};

// The owner of a kind of bomb that waits, at the left of row 5.
struct RemoteRound : TestRound {
    explicit RemoteRound(BombType type = BombType::RemoteControl, const RoundSetup& setup = {})
        : TestRound(setup), player(addPlayer({3, 5})) {
        player->bombType = type;
    }

    void lay() { press(*player, {.fire = true}); }
    void layAndSteerRight(int updates) {
        lay();
        act(*this, *player, {.right = true}, updates);
    }
    std::string row() { return rowOf(game(), 5); }

    std::shared_ptr<Player> player;
};

class RemoteBombs : public testing::Test {
  protected:
    RemoteRound round;
    std::shared_ptr<Player> player = round.player;
};

TEST(RemoteBombsOfBothTypes, WaitForTheSecondPress) {
    for (const BombType type : remoteTypes) {
        RemoteRound round(type);
        const auto& player = *round.player;
        const auto waiting = type == BombType::Detonator ? "#..a..........#" : "#..s..........#";
        act(round, player, {.fire = true}, 200);
        EXPECT_TRUE(player.remoteActive) << "holding on does nothing more";
        EXPECT_EQ(round.row(), waiting);
        act(round, player, {}, 200);
        EXPECT_EQ(round.row(), waiting);
        act(round, player, {.fire = true});
        EXPECT_FALSE(player.remoteActive);
        EXPECT_EQ(round.row(), "#..o..........#");
        EXPECT_EQ(round.stepUntil([] { return !hasBomb({3, 5}); }), 3);
    }
}

TEST(RemoteBombsOfBothTypes, GoOffAtTheReleaseWhereTheyAreHeldToArm) {
    for (const BombType type : remoteTypes) {
        RemoteRound round(type, {.tune = [](GameOptions& o) { o.remoteHoldToArm = true; }});
        act(round, *round.player, {.fire = true}, 200);
        EXPECT_TRUE(hasBomb({3, 5}));
        act(round, *round.player, {});
        EXPECT_FALSE(round.player->remoteActive);
        EXPECT_EQ(round.stepUntil([] { return !hasBomb({3, 5}); }), 3);
    }
}

TEST(RemoteBombsAtBothRates, AreSteeredASquareEachTenFramesWhileThePlayerStands) {
    for (const int rate : {60, 120}) {
        RemoteRound round(BombType::RemoteControl, {.rate = rate});
        const auto& player = *round.player;
        round.lay();
        round.takeHeard();
        round.hold(player, {.right = true});
        const int pause = 10 * gameOptions.frameMultiplier;
        for (int x = 4; x < 8; ++x) {
            EXPECT_EQ(round.stepUntil([&] { return hasBomb({x, 5}); }), pause);
            EXPECT_FALSE(hasBomb({x - 1, 5}));
            EXPECT_EQ(round.takeHeard(), (std::vector<HeardSample>{{SampleIds::Slide}}));
        }
        round.hold(player, {.down = true});
        EXPECT_EQ(round.stepUntil([] { return hasBomb({7, 6}); }), pause);
        EXPECT_EQ(player.position(), (Pixel{96, 160}));
        EXPECT_EQ(player.bombsPlaced, 1);
        EXPECT_EQ(player.remoteBombX, 7);
        EXPECT_EQ(player.remoteBombY, 6);
    }
}

TEST_F(RemoteBombs, AreSteeredAtOnceOnceThePauseIsOver) {
    round.layAndSteerRight(10);
    squareGrid.set(5, 5, SquareKind::Wall);
    round.step(30);
    EXPECT_EQ(round.row(), "#...sw........#");
    round.takeHeard();
    squareGrid.set(5, 5, SquareKind::Empty);
    round.step();
    EXPECT_EQ(round.row(), "#....s........#");
    EXPECT_EQ(round.takeHeard().size(), 1U);
}

TEST(RemoteBombsBeforeAThing, AreStoppedByWallsPowerupsAndBombs) {
    struct Row {
        const char* what;
        void (*put)();
        bool stops;
    };
    const Row rows[] = {
        {"nothing", [] {}, false},
        {"a wall", [] { squareGrid.set(ahead, SquareKind::Wall); }, true},
        {"the ring", [] { squareGrid.set(ahead, SquareKind::EdgeWall); }, true},
        {"a crumbling wall", [] { squareGrid.set(ahead, SquareKind::WallCrumbling); }, true},
        {"a powerup", [] { bonusGrid.at(ahead) = Bonus::Cash; }, true},
        {"a bomb", [] { placeBomb(ahead, players[1], 500); }, true},
        {"a player", [] { players[1]->x = ahead.x * 32; }, false},
    };
    for (const Row& row : rows) {
        RemoteRound round;
        round.addPlayer({9, 5});
        row.put();
        round.layAndSteerRight(15);
        EXPECT_EQ(hasBomb({3, 5}), row.stops) << row.what;
    }
}

TEST_F(RemoteBombs, GetAFreshFuseWithEachStep) {
    gameOptions.remoteExplosionDelay = false;
    round.lay();
    bombGrid.edit(3, 5).fuse = 12;
    act(round, *player, {.right = true}, 10);
    EXPECT_EQ(bombGrid.at(4, 5).fuse, 90);
}

TEST(RemoteBombsThatNobodySteers, LetThePlayerWalk) {
    const Who rows[] = {
        {"a flame has reached it", [](Player&) { bombGrid.edit(3, 5).kind = BombKind::Ticking; }},
        {"it belongs to another", [](Player&) { bombGrid.edit(3, 5).owner = players[1]; }},
        {"it was armed by a detonator", [](Player& p) { p.bombType = BombType::Detonator; }},
        {"nothing waits", [](Player& p) { p.remoteActive = false; }},
    };
    for (const Who& row : rows) {
        RemoteRound round;
        round.addPlayer({9, 5})->remoteActive = true;
        round.lay();
        row.make(*round.player);
        act(round, *round.player, {.right = true});
        EXPECT_EQ(round.player->x, 98) << row.who;
    }
}

TEST(RemoteBombsOnOtherThings, AreLaidWithoutALimitInPlaceOfWhatLayThere) {
    for (const bool own : {false, true}) {
        RemoteRound round;
        const auto other = round.addPlayer({9, 5});
        placeBomb({3, 5}, own ? round.player : other, 500);
        bonusGrid.at(3, 5) = Bonus::Cash;
        ++round.player->bombsPlaced;  // all that it may have
        round.lay();
        EXPECT_EQ(bombGrid.at(3, 5).owner.lock(), round.player);
        EXPECT_EQ(round.player->bombsPlaced, 2);
        EXPECT_EQ(other->bombsPlaced, 0) << "its bomb is gone";
        round.lay();
        round.player->ghost = true;
        round.step(5);
        EXPECT_EQ(round.player->bombsPlaced, 1);
    }
}

TEST_F(RemoteBombs, TickFromTheDeathOfTheirOwnerWhoseFlagStays) {
    round.lay();
    player->die();
    EXPECT_EQ(round.row(), "#..o..........#");
    EXPECT_TRUE(player->remoteActive);
    EXPECT_EQ(round.stepUntil([] { return !hasBomb({3, 5}); }), 4);
}

}  // namespace
}  // namespace vandrel
