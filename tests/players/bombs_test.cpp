// Bombs: when the fire control lays one, how long each kind of fuse burns, chains, and the count of bombs out.
#include <gtest/gtest.h>

#include "players/in_words.h"

namespace vandrel {
namespace {

TEST(Bombs, BurnTheirFuseToTheFrame) {
    struct Row {
        const char* what;
        BombType type;
        bool fast;
        bool delays;  // whether rockets and steered bombs have their short fuse
        int frames;   // from the update of the press to the explosion, at 60 Hz
    };
    // A rocket that is fired at a wall finds out in its third update; its fuse then runs from the next.
    constexpr Row rows[] = {
        {"normal", BombType::Normal, false, true, 90},
        {"normal, fast", BombType::Normal, true, true, 40},
        {"remote", BombType::RemoteControl, false, true, 3},
        {"remote without delay", BombType::RemoteControl, false, false, 90},
        {"remote without delay, fast", BombType::RemoteControl, true, false, 40},
        {"detonator", BombType::Detonator, false, true, 3},
        {"detonator without delay, fast", BombType::Detonator, true, false, 3},
        {"rocket", BombType::RocketLauncher, false, true, 6},
        {"rocket without delay", BombType::RocketLauncher, false, false, 93},
        {"rocket without delay, fast", BombType::RocketLauncher, true, false, 43},
    };
    for (const Row& row : rows) {
        for (const int rate : {30, 60, 120, 144}) {
            SCOPED_TRACE(fmt::format("{} at {}", row.what, rate));
            TestRound round({.rate = rate});
            gameOptions.rocketExplosionDelay = gameOptions.remoteExplosionDelay = row.delays;
            const auto player = round.addPlayer({5, 5});
            player->bombType = row.type;
            player->framesSinceRocket = 1000;
            player->facing = Facing::Right;
            player->fastIgnition = row.fast;
            squareGrid.set(6, 5, SquareKind::GridBlock);
            if (row.type == BombType::RemoteControl || row.type == BombType::Detonator) {
                round.press(*player, {.fire = true});
                round.step(500);
                EXPECT_TRUE(hasBomb({5, 5})) << "it waits";
            }
            act(round, *player, {.fire = true});
            ASSERT_TRUE(hasBomb({5, 5}));
            round.release(*player);
            player->ghost = true;  // out of the flames
            EXPECT_EQ(round.stepUntil([] { return !hasBomb({5, 5}); }), row.frames * gameOptions.frameMultiplier);
            EXPECT_TRUE(isFlame(round.game(), {4, 5}));
            EXPECT_EQ(player->bombsPlaced, 0);
        }
    }
}

TEST(Bombs, AHeldControlLaysOneOnEachNewSquareForAsLongAsThereAreAny) {
    TestRound round;
    const auto player = round.addPlayer({2, 5});
    player->maxBombs = 3;
    player->speed = 4;
    act(round, *player, {.right = true, .fire = true}, 50);
    EXPECT_EQ(player->bombsPlaced, 3);
    EXPECT_EQ(rowOf(round.game(), 5), "#.ooo.........#");
}

TEST(Bombs, AreNotLaidWhereSomethingForbidsIt) {
    const Who rows[] = {
        {"a bomb lies there", [](Player& player) { placeBomb(player.square(), players[1], 500); }},
        {"none is left", [](Player& player) { player.bombsPlaced = player.maxBombs; }},
        {"a steered bomb waits", [](Player& player) { player.remoteActive = true; }},
        {"the round has just begun", [](Player& player) { player.fireLocked = true; }},
        {"it crawls", asCrawler},
        {"it is a snake", asSnake},
        {"it is stopped", asStopped},
        {"it is dead", asDead},
    };
    for (const Who& row : rows) {
        TestRound round;
        const auto player = round.addPlayer({5, 5});
        round.addPlayer({1, 1});
        row.make(*player);
        act(round, *player, {.fire = true}, 3);
        EXPECT_EQ(countBombs(*player), 0) << row.who;
    }
}

// A ghost takes no powerups, and the press that ends its form lays no bomb: only the next one may, and the square then
// holds a powerup. A player in normal form picks it up behind its fire control.
TEST(Bombs, AreNotLaidOnAPowerup) {
    TestRound round;
    const auto player = round.addPlayer({5, 5});
    bonusGrid.at(5, 5) = Bonus::Range;
    act(round, *player, {.fire = true});
    EXPECT_EQ(markOf(round.game(), {5, 5}), '.') << "taken behind the fire control";
    round.step();
    EXPECT_TRUE(hasBomb({5, 5}));
}

TEST(Bombs, AreNotLaidInTheFirstPressOfARoundUntilItIsReleased) {
    TestRound round;
    const auto player = round.addPlayer({5, 5});
    player->startRound();
    act(round, *player, {.fire = true}, 5);
    EXPECT_EQ(player->bombsPlaced, 0);
    act(round, *player, {});
    act(round, *player, {.fire = true});
    EXPECT_EQ(player->bombsPlaced, 1);
}

// The flame sets the fuse behind that frame's bomb pass, and the fuse must be taken at 0.
TEST(Bombs, ExplodeOneUpdateMoreThanTheShortFuseAfterAFlameReachedThem) {
    for (const int rate : {60, 120}) {
        for (const BombKind kind : bombKinds) {
            TestRound round({.rate = rate});
            const auto owner = round.addPlayer({1, 1});
            const auto other = round.addPlayer({1, 9});
            placeBomb({5, 5}, owner, 0);
            placeBombOf(kind, {6, 5}, other, 5000);
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

TEST(Bombs, SoundWhenTheyExplodeAndAChainCreditsTheOwnerOfItsLast) {
    TestRound round;
    const auto first = round.addPlayer({1, 1});
    const auto last = round.addPlayer({1, 9});
    const auto victim = round.addPlayer({9, 5});
    placeBomb({5, 5}, first, 0);
    placeBomb({7, 5}, last, 5000);
    round.step();
    EXPECT_EQ(round.takeHeard(), (std::vector<HeardSample>{{SampleIds::Explosion1, 255}}));
    round.step(30);
    EXPECT_TRUE(victim->dead);
    EXPECT_EQ(first->kills, 0);
    EXPECT_EQ(last->kills, 1);
}

TEST(Bombs, UnderAClosingWallExplodeInThatPass) {
    for (const BombKind kind : bombKinds) {
        TestRound round;
        const auto owner = round.addPlayer({1, 1});
        owner->remoteActive = true;
        placeBombOf(kind, {5, 5}, owner);
        squareGrid.set(5, 5, SquareKind::EdgeWall);
        round.step();
        EXPECT_FALSE(hasBomb({5, 5}));
        EXPECT_TRUE(isFlame(round.game(), {6, 5}));
        EXPECT_FALSE(owner->remoteActive);
        EXPECT_EQ(owner->bombsPlaced, 0);
    }
}

TEST(Bombs, AreCountedFromTheReleaseToTheBangAlsoOverADeath) {
    TestRound round;
    const auto player = round.addPlayer({5, 5});
    placeBomb({9, 7}, player, 3);
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
        for (int x = 3; x < 7; ++x) {
            placeBombOf(bombKinds[x - 3], {x, 5}, player, 7);
            placeBombOf(bombKinds[x - 3], {x, 7}, other, 7);
        }
        player->releaseBombs(restart);
        EXPECT_EQ(rowOf(round.game(), 5), "#..oooo.......#");
        EXPECT_EQ(rowOf(round.game(), 7), "#..osar.......#");
        for (int x = 3; x < 7; ++x) {
            EXPECT_EQ(bombGrid.at(x, 5).fuse, restart ? 180 : 7);
            EXPECT_EQ(bombGrid.at(x, 7).fuse, 7);
        }
    }
}

TEST(GhostAndFire, APressEndsTheFormOnFreeGroundAndMustBeReleased) {
    TestRound round;
    const auto player = round.addPlayer({5, 5});
    asGhost(*player);
    squareGrid.set(5, 5, SquareKind::Wall);
    act(round, *player, {.fire = true}, 3);
    EXPECT_EQ(formOf(*player), "ghost") << "not inside a wall";
    squareGrid.set(5, 5, SquareKind::Empty);
    round.step();
    EXPECT_EQ(formOf(*player), "walking");
    round.step(5);
    EXPECT_EQ(player->bombsPlaced, 0);
    act(round, *player, {});
    act(round, *player, {.fire = true});
    EXPECT_EQ(player->bombsPlaced, 1);
}

}  // namespace
}  // namespace vandrel
