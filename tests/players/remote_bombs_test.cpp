// Remote Control and Detonator: laying, waiting, steering, the second press or the release, and the count of bombs.
#include <gtest/gtest.h>

#include "support/round_fixture.h"

namespace vandrel {
namespace {

class RemoteBombs : public testing::Test {
  protected:
    explicit RemoteBombs(const RoundSetup& setup = {}) : round(setup), player(round.addPlayer({3, 5})) {
        player->bombType = BombType::RemoteControl;
    }

    void lay() { round.press(*player, {.fire = true}); }

    TestRound round;
    std::shared_ptr<Player> player;
};

TEST(RemoteBombsInFreshRounds, WaitForTheSecondPress) {
    for (const BombType type : {BombType::RemoteControl, BombType::Detonator}) {
        TestRound round;
        const auto owner = round.addPlayer({3, 5});
        owner->bombType = type;
        round.hold(*owner, {.fire = true});
        round.step(200);
        EXPECT_TRUE(owner->remoteActive) << "holding on does nothing more";
        ASSERT_TRUE(hasBomb({3, 5}));
        EXPECT_EQ(bombGrid.at(3, 5).kind, type == BombType::Detonator ? BombKind::Armed : BombKind::Steered);
        round.release(*owner);
        round.step(200);
        EXPECT_TRUE(hasBomb({3, 5}));
        round.hold(*owner, {.fire = true});
        round.step();
        EXPECT_FALSE(owner->remoteActive);
        EXPECT_EQ(bombGrid.at(3, 5).kind, BombKind::Ticking);
        EXPECT_EQ(round.stepUntil([] { return !hasBomb({3, 5}); }), 3);
    }
}

TEST(RemoteBombsInFreshRounds, GoOffAtTheReleaseWhereTheyAreHeldToArm) {
    for (const BombType type : {BombType::RemoteControl, BombType::Detonator}) {
        TestRound round({.tune = [](GameOptions& o) { o.remoteHoldToArm = true; }});
        const auto owner = round.addPlayer({3, 5});
        owner->bombType = type;
        round.hold(*owner, {.fire = true});
        round.step(200);
        EXPECT_TRUE(hasBomb({3, 5}));
        round.release(*owner);
        round.step();
        EXPECT_FALSE(owner->remoteActive);
        EXPECT_EQ(round.stepUntil([] { return !hasBomb({3, 5}); }), 3);
    }
}

TEST(RemoteBombsInFreshRounds, AreSteeredASquareEachTenFramesWhileThePlayerStands) {
    for (const int rate : {60, 120}) {
        TestRound round({.rate = rate});
        const auto owner = round.addPlayer({3, 5});
        owner->bombType = BombType::RemoteControl;
        round.press(*owner, {.fire = true});
        round.takeHeard();
        round.hold(*owner, {.right = true});
        const int pause = 10 * gameOptions.frameMultiplier;
        for (int x = 4; x < 8; ++x) {
            EXPECT_EQ(round.stepUntil([&] { return hasBomb({x, 5}); }), pause);
            EXPECT_FALSE(hasBomb({x - 1, 5}));
            EXPECT_EQ(round.takeHeard(), (std::vector<HeardSample>{{SampleIds::Slide}}));
        }
        round.hold(*owner, {.down = true});
        EXPECT_EQ(round.stepUntil([] { return hasBomb({7, 6}); }), pause);
        EXPECT_EQ(owner->position(), (Pixel{96, 160}));
        EXPECT_EQ(owner->bombsPlaced, 1);
        EXPECT_EQ(owner->remoteBombX, 7);
        EXPECT_EQ(owner->remoteBombY, 6);
    }
}

TEST_F(RemoteBombs, AreSteeredAtOnceOnceThePauseIsOver) {
    lay();
    round.hold(*player, {.right = true});
    round.step(10);
    ASSERT_TRUE(hasBomb({4, 5}));
    squareGrid.set(5, 5, SquareKind::Wall);
    round.step(30);
    EXPECT_TRUE(hasBomb({4, 5}));
    round.takeHeard();
    squareGrid.set(5, 5, SquareKind::Empty);
    round.step();
    EXPECT_TRUE(hasBomb({5, 5}));
    EXPECT_EQ(round.takeHeard().size(), 1U);
}

TEST(RemoteBombsInFreshRounds, AreStoppedByWallsPowerupsAndBombs) {
    struct Row {
        const char* what;
        void (*put)(Square square);
        bool stops;
    };
    const Row rows[] = {
        {"nothing", [](Square) {}, false},
        {"a wall", [](Square at) { squareGrid.set(at, SquareKind::Wall); }, true},
        {"the ring", [](Square at) { squareGrid.set(at, SquareKind::EdgeWall); }, true},
        {"a crumbling wall", [](Square at) { squareGrid.set(at, SquareKind::WallCrumbling); }, true},
        {"a powerup", [](Square at) { bonusGrid.at(at) = Bonus::Cash; }, true},
        {"a bomb", [](Square at) { placeBomb(at, players[1], 500); }, true},
        {"a player", [](Square at) { players[1]->x = at.x * 32; }, false},
    };
    for (const Row& row : rows) {
        TestRound round;
        const auto owner = round.addPlayer({3, 5});
        round.addPlayer({9, 5});
        owner->bombType = BombType::RemoteControl;
        round.press(*owner, {.fire = true});
        row.put({4, 5});
        round.hold(*owner, {.right = true});
        round.step(15);
        EXPECT_EQ(hasBomb({3, 5}), row.stops) << row.what;
    }
}

TEST_F(RemoteBombs, GetAFreshFuseWithEachStep) {
    gameOptions.remoteExplosionDelay = false;
    lay();
    bombGrid.edit(3, 5).fuse = 12;
    round.hold(*player, {.right = true});
    round.step(10);
    EXPECT_EQ(bombGrid.at(4, 5).fuse, 90);
}

TEST(RemoteBombsInFreshRounds, LetThePlayerWalkOnceTheyTickOrAreGoneOrTheBombTypeChanged) {
    struct Row {
        const char* why;
        void (*change)(Player& player);
    };
    const Row rows[] = {
        {"a flame has reached it",
         [](Player& p) {
             bombGrid.edit(3, 5).kind = BombKind::Ticking;
             p.remoteActive = true;
         }},
        {"it belongs to another", [](Player&) { bombGrid.edit(3, 5).owner = players[1]; }},
        {"it was armed by a detonator", [](Player& p) { p.bombType = BombType::Detonator; }},
        {"nothing waits", [](Player& p) { p.remoteActive = false; }},
    };
    for (const Row& row : rows) {
        TestRound round;
        const auto owner = round.addPlayer({3, 5});
        round.addPlayer({9, 5})->remoteActive = true;
        owner->bombType = BombType::RemoteControl;
        round.press(*owner, {.fire = true});
        row.change(*owner);
        round.hold(*owner, {.right = true});
        round.step();
        EXPECT_EQ(owner->x, 98) << row.why;
    }
}

TEST_F(RemoteBombs, AreLaidAnywhereAndWithoutALimitInPlaceOfWhatLayThere) {
    const auto other = round.addPlayer({9, 5});
    placeBomb({3, 5}, other, 500);
    bonusGrid.at(3, 5) = Bonus::Cash;
    squareGrid.set(3, 5, SquareKind::Empty);
    player->maxBombs = 1;
    player->bombsPlaced = 1;
    lay();
    EXPECT_EQ(bombGrid.at(3, 5).owner.lock(), player);
    EXPECT_EQ(player->bombsPlaced, 2);
    EXPECT_EQ(other->bombsPlaced, 0) << "its bomb is gone";
    round.press(*player, {.fire = true});
    player->ghost = true;
    round.step(5);
    EXPECT_EQ(player->bombsPlaced, 1);
}

TEST_F(RemoteBombs, InPlaceOfOnesOwnLeaveTheCount) {
    placeBomb({3, 5}, player, 500);
    lay();
    EXPECT_EQ(player->bombsPlaced, 1);
    EXPECT_EQ(countBombs(*player), 1);
}

TEST_F(RemoteBombs, KeepOrdinaryBombsFromBeingLaidWhileOneWaits) {
    lay();
    player->bombType = BombType::Normal;
    player->maxBombs = 5;
    player->x += 64;
    round.press(*player, {.fire = true});
    EXPECT_EQ(player->bombsPlaced, 1);
    EXPECT_TRUE(player->remoteActive);
}

TEST_F(RemoteBombs, TickFromTheDeathOfTheirOwnerWhoseFlagStays) {
    lay();
    player->die();
    EXPECT_EQ(bombGrid.at(3, 5).kind, BombKind::Ticking);
    EXPECT_TRUE(player->remoteActive);
    EXPECT_EQ(round.stepUntil([] { return !hasBomb({3, 5}); }), 4);
}

TEST_F(RemoteBombs, OneSecondPressReleasesRocketsInFlightToo) {
    lay();
    placeBomb({8, 3}, player, 30);
    bombGrid.edit(8, 3).kind = BombKind::Rocket;
    bombGrid.edit(8, 3).rocketStep = -100;
    round.hold(*player, {.fire = true});
    round.step();
    EXPECT_EQ(bombGrid.at(8, 3).kind, BombKind::Ticking);
    EXPECT_EQ(bombGrid.at(8, 3).fuse, 29);
}

}  // namespace
}  // namespace vandrel
