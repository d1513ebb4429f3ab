// Bombs: when the fire control lays one, how long each kind of fuse burns, chains, and the count of bombs out.
#include <gtest/gtest.h>

#include "support/round_fixture.h"

namespace vandrel {
namespace {

// The player gets an armoury in which every kind of bomb can be laid at once.
std::shared_ptr<Player> addArmed(TestRound& round, BombType type) {
    const auto player = round.addPlayer({5, 5});
    player->bombType = type;
    player->framesSinceRocket = 1000;
    player->facing = Facing::Right;
    return player;
}

TEST(Bombs, BurnTheirFuseToTheFrame) {
    struct Row {
        BombType type;
        bool fast;
        bool delays;  // whether rockets and steered bombs have their short fuse
        int frames;   // from the update of the press to the explosion, at 60 Hz
    };
    // A rocket that is fired at a wall finds out in its third update; its fuse then runs from the next.
    constexpr Row rows[] = {
        {BombType::Normal, false, true, 90},          {BombType::Normal, true, true, 40},
        {BombType::RemoteControl, false, true, 3},    {BombType::RemoteControl, false, false, 90},
        {BombType::RemoteControl, true, false, 40},   {BombType::Detonator, false, true, 3},
        {BombType::Detonator, true, false, 3},        {BombType::RocketLauncher, false, true, 6},
        {BombType::RocketLauncher, false, false, 93}, {BombType::RocketLauncher, true, false, 43},
    };
    for (const Row& row : rows) {
        for (const int rate : {30, 60, 120, 144}) {
            SCOPED_TRACE(testing::Message() << "type " << static_cast<int>(row.type) << (row.fast ? " fast" : "")
                                            << (row.delays ? "" : " without delays") << " at " << rate);
            TestRound round({.rate = rate});
            gameOptions.rocketExplosionDelay = row.delays;
            gameOptions.remoteExplosionDelay = row.delays;
            const auto player = addArmed(round, row.type);
            player->fastIgnition = row.fast;
            squareGrid.set(6, 5, SquareKind::GridBlock);
            if (row.type == BombType::RemoteControl || row.type == BombType::Detonator) {
                round.press(*player, {.fire = true});
                round.step(500);
                EXPECT_TRUE(hasBomb({5, 5})) << "it waits";
            }
            round.hold(*player, {.fire = true});
            round.step();
            ASSERT_TRUE(hasBomb({5, 5}));
            round.release(*player);
            player->ghost = true;  // out of the flames
            EXPECT_EQ(round.stepUntil([] { return !hasBomb({5, 5}); }), row.frames * gameOptions.frameMultiplier);
            EXPECT_TRUE(isFlame(round.game(), {4, 5}));
            EXPECT_EQ(player->bombsPlaced, 0);
        }
    }
}

TEST(Bombs, ExplodeWithTheirSound) {
    TestRound round;
    placeBomb({5, 5}, round.addPlayer({1, 1}), 0);
    round.step();
    EXPECT_EQ(round.takeHeard(), (std::vector<HeardSample>{{SampleIds::Explosion1, 255}}));
}

TEST(Bombs, AHeldControlLaysOneOnEachNewSquareForAsLongAsThereAreAny) {
    TestRound round;
    const auto player = round.addPlayer({2, 5});
    player->maxBombs = 3;
    player->speed = 4;
    round.hold(*player, {.right = true, .fire = true});
    round.step(50);
    EXPECT_EQ(player->bombsPlaced, 3);
    for (const int x : {2, 3, 4}) {
        EXPECT_TRUE(hasBomb({x, 5}));
    }
    EXPECT_FALSE(hasBomb({5, 5}));
}

TEST(Bombs, AreNotLaidWhereSomethingForbidsIt) {
    struct Row {
        const char* why;
        void (*forbid)(Player& player);
    };
    const Row rows[] = {
        {"a bomb lies there", [](Player& player) { placeBomb(player.square(), players[1], 500); }},
        {"none is left", [](Player& player) { player.bombsPlaced = player.maxBombs; }},
        {"a steered bomb waits", [](Player& player) { player.remoteActive = true; }},
        {"the round has just begun", [](Player& player) { player.fireLocked = true; }},
        {"it crawls",
         [](Player& player) {
             player.crawling = true;
             player.crawlTimer = 100;
         }},
        {"it is a snake", [](Player& player) { player.setSnakeLength(4); }},
        {"it is stopped", [](Player& player) { player.stopTimer = 5; }},
        {"it is dead", [](Player& player) { player.dead = true; }},
    };
    for (const Row& row : rows) {
        TestRound round;
        const auto player = round.addPlayer({5, 5});
        round.addPlayer({1, 1});
        row.forbid(*player);
        round.hold(*player, {.fire = true});
        round.step(3);
        EXPECT_EQ(countBombs(*player), 0) << row.why;
    }
}

// A ghost takes no powerups, and the press that ends its form lays no bomb: only the next one may, and the square then
// holds a powerup. A player in normal form picks it up behind its fire control.
TEST(Bombs, AreNotLaidOnAPowerup) {
    TestRound round;
    const auto player = round.addPlayer({5, 5});
    bonusGrid.at(5, 5) = Bonus::Range;
    round.hold(*player, {.fire = true});
    round.step();
    EXPECT_FALSE(hasBomb({5, 5}));
    EXPECT_EQ(bonusGrid.at(5, 5), 0) << "taken behind the fire control";
    round.step();
    EXPECT_TRUE(hasBomb({5, 5}));
}

TEST(Bombs, AreNotLaidInTheFirstPressOfARoundUntilItIsReleased) {
    TestRound round;
    const auto player = round.addPlayer({5, 5});
    player->startRound();
    round.hold(*player, {.fire = true});
    round.step(5);
    EXPECT_EQ(player->bombsPlaced, 0);
    round.release(*player);
    round.step();
    round.hold(*player, {.fire = true});
    round.step();
    EXPECT_EQ(player->bombsPlaced, 1);
}

// The flame sets the fuse behind that frame's bomb pass, and the fuse must be taken at 0.
TEST(Bombs, ExplodeOneUpdateMoreThanTheShortFuseAfterAFlameReachedThem) {
    for (const int rate : {60, 120}) {
        for (const BombKind kind : {BombKind::Ticking, BombKind::Steered, BombKind::Armed, BombKind::Rocket}) {
            TestRound round({.rate = rate});
            const auto owner = round.addPlayer({1, 1});
            const auto other = round.addPlayer({1, 9});
            placeBomb({5, 5}, owner, 0);
            placeBomb({6, 5}, other, 5000);
            bombGrid.edit(6, 5).kind = kind;
            bombGrid.edit(6, 5).rocketStep = -5000;
            other->remoteActive = true;
            round.step();  // the flame of the first bomb burns on the second at once
            EXPECT_EQ(bombGrid.at(6, 5).kind, BombKind::Ticking);
            EXPECT_FALSE(other->remoteActive);
            EXPECT_EQ(round.stepUntil([] { return !hasBomb({6, 5}); }), 3 * gameOptions.frameMultiplier + 1);
            EXPECT_EQ(other->bombsPlaced, 0);
        }
    }
}

TEST(Bombs, AChainCreditsTheOwnerOfItsLastBomb) {
    TestRound round;
    const auto first = round.addPlayer({1, 1});
    const auto last = round.addPlayer({1, 9});
    const auto victim = round.addPlayer({9, 5});
    placeBomb({5, 5}, first, 0);
    placeBomb({7, 5}, last, 5000);
    round.step(30);
    EXPECT_TRUE(victim->dead);
    EXPECT_EQ(first->kills, 0);
    EXPECT_EQ(last->kills, 1);
}

TEST(Bombs, OfTheDeadStillExplodeAndThoseOfWhoHasLeftAreGone) {
    TestRound round;
    const auto dying = round.addPlayer({1, 1});
    auto leaving = round.addPlayer({1, 9});
    placeBomb({5, 3}, dying, 2);
    placeBomb({9, 7}, leaving, 2);
    dying->die();
    players.pop_back();
    leaving.reset();
    EXPECT_FALSE(hasBomb({9, 7}));
    round.step(3);
    EXPECT_TRUE(isFlame(round.game(), {6, 3}));
    EXPECT_FALSE(isFlame(round.game(), {10, 7}));
}

TEST(Bombs, UnderAClosingWallExplodeInThatPass) {
    for (const BombKind kind : {BombKind::Ticking, BombKind::Steered, BombKind::Armed, BombKind::Rocket}) {
        TestRound round;
        const auto owner = round.addPlayer({1, 1});
        owner->remoteActive = true;
        placeBomb({5, 5}, owner, 500);
        bombGrid.edit(5, 5).kind = kind;
        squareGrid.set(5, 5, SquareKind::EdgeWall);
        round.step();
        EXPECT_FALSE(hasBomb({5, 5}));
        EXPECT_FALSE(owner->remoteActive);
        EXPECT_EQ(owner->bombsPlaced, 0);
        EXPECT_TRUE(isFlame(round.game(), {6, 5}));
    }
}

TEST(Bombs, AreCountedFromTheReleaseToTheBangAlsoOverADeath) {
    TestRound round;
    const auto player = round.addPlayer({5, 5});
    player->maxBombs = 4;
    placeBomb({9, 7}, player, 3);
    EXPECT_EQ(player->bombsPlaced, 1);
    player->reset();
    EXPECT_EQ(player->bombsPlaced, 0);
    round.step(4);
    EXPECT_EQ(player->bombsPlaced, -1) << "the bomb of an earlier life gives one more";
}

TEST(ReleaseBombs, HasAllKindsOfOnesOwnTickAndOnRequestAfresh) {
    for (const bool restart : {false, true}) {
        TestRound round({.rate = 120});
        const auto player = round.addPlayer({1, 1});
        const auto other = round.addPlayer({1, 9});
        int x = 3;
        for (const BombKind kind : {BombKind::Ticking, BombKind::Steered, BombKind::Armed, BombKind::Rocket}) {
            placeBomb({x, 5}, player, 7);
            bombGrid.edit(x, 5).kind = kind;
            placeBomb({x, 7}, other, 7);
            bombGrid.edit(x, 7).kind = kind;
            ++x;
        }
        player->releaseBombs(restart);
        for (x = 3; x < 7; ++x) {
            EXPECT_EQ(bombGrid.at(x, 5).kind, BombKind::Ticking);
            EXPECT_EQ(bombGrid.at(x, 5).fuse, restart ? 180 : 7);
            EXPECT_EQ(bombGrid.at(x, 7).kind, static_cast<BombKind>(x - 3));
            EXPECT_EQ(bombGrid.at(x, 7).fuse, 7);
        }
    }
}

TEST(GhostAndFire, APressEndsTheFormOnFreeGroundAndMustBeReleased) {
    TestRound round;
    const auto player = round.addPlayer({5, 5});
    player->ghost = true;
    player->shieldTimer = Player::lastingShield();
    squareGrid.set(5, 5, SquareKind::Wall);
    round.hold(*player, {.fire = true});
    round.step(3);
    EXPECT_TRUE(player->ghost) << "not inside a wall";
    EXPECT_FALSE(player->dead);
    squareGrid.set(5, 5, SquareKind::Empty);
    round.step();
    EXPECT_FALSE(player->ghost);
    round.step(5);
    EXPECT_EQ(player->bombsPlaced, 0);
    round.release(*player);
    round.step();
    round.hold(*player, {.fire = true});
    round.step();
    EXPECT_EQ(player->bombsPlaced, 1);
}

}  // namespace
}  // namespace vandrel
