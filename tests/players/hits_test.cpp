// Hits: what hurts whom in the hit pass, what a shield makes of it, and who is credited.
#include <gtest/gtest.h>

#include <cstdlib>

#include "support/round_fixture.h"

namespace vandrel {
namespace {

// A single flame of the owner that burns on the square for as long as its timer runs.
void lightFlame(TestRound& round, Square square, const std::shared_ptr<Player>& owner, bool flamethrower = false) {
    Explosion flame;
    flame.owner = owner;
    flame.x = square.x;
    flame.y = square.y;
    flame.timer = 1000;
    flame.isFlamethrower = flamethrower;
    round.game().explosions.push_back(flame);
}

void shieldForGood(Player& player) {
    player.shield = true;
    player.shieldTimer = Player::lastingShield();
}

TEST(Hits, AFlameHurtsWhoeverHasTheMiddleOnItsSquare) {
    struct Row {
        int offset;
        bool dies;
    };
    for (const Row& row : {Row{0, true}, Row{15, true}, Row{16, false}, Row{-16, true}, Row{-17, false}}) {
        TestRound round;
        const auto owner = round.addPlayer({1, 1});
        const auto player = round.addPlayer({5, 5});
        player->y += row.offset;
        lightFlame(round, {5, 5}, owner);
        round.game().checkPlayerHits();
        EXPECT_EQ(player->dead, row.dies) << row.offset;
        EXPECT_EQ(owner->kills, row.dies ? 1 : 0);
    }
}

TEST(Hits, PassOverGhostsTheDeadAndOnesOwnFlamethrower) {
    struct Row {
        const char* who;
        void (*make)(Player& player);
        bool ownThrower;
        bool otherThrower;
        bool dies;
    };
    const Row rows[] = {
        {"a walker in its own flame", [](Player&) {}, false, false, true},
        {"a ghost", [](Player& p) { p.ghost = true; }, false, false, false},
        {"who sprays", [](Player&) {}, true, false, false},
        {"who is sprayed", [](Player&) {}, false, true, true},
    };
    for (const Row& row : rows) {
        TestRound round;
        const auto player = round.addPlayer({5, 5});
        const auto other = round.addPlayer({1, 1});
        row.make(*player);
        lightFlame(round, {5, 5}, row.otherThrower ? other : player, row.ownThrower || row.otherThrower);
        round.game().checkPlayerHits();
        EXPECT_EQ(player->dead, row.dies) << row.who;
    }
}

TEST(Hits, OnlyTheFirstFlameOnTheSquareIsCredited) {
    TestRound round;
    const auto first = round.addPlayer({1, 1});
    const auto second = round.addPlayer({1, 3});
    const auto player = round.addPlayer({5, 5});
    lightFlame(round, {5, 5}, first);
    lightFlame(round, {5, 5}, second);
    round.game().checkPlayerHits();
    EXPECT_TRUE(player->dead);
    EXPECT_EQ(first->kills, 1);
    EXPECT_EQ(second->kills, 0);
}

TEST(Hits, AWallOnTheSquareKillsWithoutCredit) {
    for (const int kind : {SquareKind::GridBlock, SquareKind::EdgeWall, SquareKind::Wall, SquareKind::HardWallHitTwice,
                           SquareKind::WallCrumbling + 5}) {
        TestRound round;
        const auto player = round.addPlayer({5, 5});
        const auto ghost = round.addPlayer({5, 5});
        ghost->ghost = true;
        squareGrid.set(5, 5, kind);
        round.game().checkPlayerHits();
        EXPECT_TRUE(player->dead) << kind;
        EXPECT_EQ(player->kills, 0);
        EXPECT_FALSE(ghost->dead);
        EXPECT_EQ(player->particles.size(), 1U);
    }
}

TEST(Hits, AGhostWhoseTimeEndsInsideAWallDies) {
    TestRound round;
    const auto ghost = round.addPlayer({5, 5});
    ghost->ghost = true;
    ghost->shieldTimer = 3;
    squareGrid.set(5, 5, SquareKind::Wall);
    EXPECT_EQ(round.stepUntil([&] { return ghost->dead; }), 4) << "the timer passes 0 first";
}

TEST(Hits, ASnakesHeadEatsAllButGhostsSnakesAndTheShielded) {
    struct Row {
        const char* who;
        void (*make)(Player& player);
        bool eaten;
    };
    const Row rows[] = {
        {"a walker", [](Player&) {}, true},
        {"a crawler", [](Player& p) { p.crawling = true; }, true},
        {"a ghost", [](Player& p) { p.ghost = true; }, false},
        {"a shielded one", [](Player& p) { p.shield = true; }, false},
    };
    for (const Row& row : rows) {
        TestRound round;
        const auto player = round.addPlayer({5, 5});
        const auto snake = round.addSnake({5, 5}, Facing::Up, 4, true);
        row.make(*player);
        round.game().checkPlayerHits();
        EXPECT_EQ(player->dead, row.eaten) << row.who;
        EXPECT_EQ(snake->kills, row.eaten ? 1 : 0) << row.who;
        EXPECT_FALSE(snake->dead);
    }
}

TEST(Hits, TwoHeadsOnASquareAreBothHurtWithoutCredit) {
    TestRound round;
    const auto ai = round.addSnake({5, 5}, Facing::Up, 12, true);
    const auto human = round.addSnake({5, 5}, Facing::Down, 12);
    const auto far = round.addSnake({9, 5}, Facing::Down, 12);
    round.game().checkPlayerHits();
    EXPECT_TRUE(ai->dead);
    EXPECT_TRUE(human->crawling);
    EXPECT_TRUE(far->isSnake());
    EXPECT_EQ(ai->kills + human->kills, 0);
}

// Flames on a part hurt from the first part on, walls from the second on, and only as far as the snake is long.
TEST(Hits, OnTheBodyHalveTheSnake) {
    struct Row {
        bool flame;
        int kind;
        std::size_t part;
        bool halves;
    };
    constexpr Row rows[] = {
        {true, 0, 0, true},
        {true, 0, 11, true},
        {false, SquareKind::Wall, 0, false},
        {false, SquareKind::Wall, 1, true},
        {false, SquareKind::EdgeWall, 11, true},
        {false, SquareKind::HardWallHitTwice, 5, true},
        {false, SquareKind::GridBlock, 5, true},
        {false, SquareKind::WallCrumbling, 5, false},
        {false, SquareKind::Wall, 12, false},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(testing::Message() << (row.flame ? "flame" : "wall ") << row.kind << " on part " << row.part);
        TestRound round;
        const auto owner = round.addPlayer({1, 1});
        const auto snake = round.addSnake({8, 8}, Facing::Up, 12, true);
        snake->snakeParts.emplace_back(256, 256, Facing::Up);  // one more than it is long, as after a halving
        snake->snakeParts[row.part] = {5 * 32, 5 * 32, Facing::Up};
        if (row.flame) {
            lightFlame(round, {5, 5}, owner);
        } else {
            squareGrid.set(5, 5, row.kind);
        }
        round.game().checkPlayerHits();
        EXPECT_EQ(snake->snakeLengthNow(), row.halves ? 6 : 12);
        EXPECT_EQ(snake->shield, row.halves);
        EXPECT_EQ(owner->kills, row.flame ? 1 : 0) << "a flame that halves a computer's snake earns a credit";
    }
}

TEST(Shield, OfLastingKindTakesAHitAndThenRunsForTwoSeconds) {
    for (const int rate : {60, 120}) {
        TestRound round({.rate = rate});
        const auto owner = round.addPlayer({1, 1});
        const auto player = round.addPlayer({5, 5});
        shieldForGood(*player);
        round.step(1000);
        EXPECT_TRUE(player->shield);
        EXPECT_EQ(player->shieldTimer, Player::lastingShield());
        player->hurt(DeathReason::Explosion, round.replay(), owner);
        EXPECT_EQ(player->shieldTimer, 120 * gameOptions.frameMultiplier);
        player->hurt(DeathReason::Explosion, round.replay(), owner);
        EXPECT_EQ(player->shieldTimer, 120 * gameOptions.frameMultiplier) << "a second hit changes nothing";
        EXPECT_EQ(round.stepUntil([&] { return !player->shield; }), 120 * gameOptions.frameMultiplier + 1);
        EXPECT_FALSE(player->dead);
        player->hurt(DeathReason::Explosion, round.replay(), owner);
        EXPECT_TRUE(player->dead);
        EXPECT_EQ(owner->kills, 1);
    }
}

TEST(Shield, RunsOnForTheStoppedAndTheDead) {
    TestRound round;
    const auto stopped = round.addPlayer({5, 5});
    const auto dead = round.addPlayer({7, 5});
    stopped->stopTimer = 1000;
    dead->dead = true;
    for (const auto& player : {stopped, dead}) {
        player->shield = true;
        player->shieldTimer = 20;
    }
    round.step(20);
    EXPECT_TRUE(stopped->shield && dead->shield);
    round.step();
    EXPECT_FALSE(stopped->shield || dead->shield);
}

TEST(Death, LeavesASpriteASoundAndNoSecondDeath) {
    TestRound round;
    const auto killer = round.addPlayer({1, 1});
    const auto player = round.addPlayer({5, 5});
    player->x += 3;
    player->animFrame = 5;
    player->hurt(DeathReason::Explosion, round.replay(), killer);
    player->hurt(DeathReason::Explosion, round.replay(), killer);
    EXPECT_EQ(killer->kills, 1);
    EXPECT_EQ(round.takeHeard(), (std::vector<HeardSample>{{SampleIds::Wimbaah}}));
    ASSERT_EQ(player->particles.size(), 1U);
    const PlayerParticle& sprite = player->particles.front();
    EXPECT_EQ(sprite.x, 163);
    EXPECT_EQ(sprite.y, 160);
    EXPECT_EQ(sprite.sprite.frame, 1);
    EXPECT_EQ(sprite.delay, 0);
    EXPECT_GE(sprite.scaleVelocity, 0.2f);
    EXPECT_LE(std::abs(sprite.spinVelocity), 45.0f);
}

// One victim of each sort, in the modes that count kills and in the one that counts points.
TEST(Credit, IsAKillLessForOnesOwnDeathAndAKillForAnyOther) {
    TestRound round;
    const auto killer = round.addPlayer({1, 1});
    const auto other = round.addPlayer({3, 3});
    const auto snake = round.addSnake({5, 5}, Facing::Up, 12, true);
    killer->creditKill(other, false);
    killer->creditKill(snake, true);
    killer->creditKill(snake, false);
    EXPECT_EQ(killer->kills, 3);
    killer->creditKill(killer, false);
    EXPECT_EQ(killer->kills, 2);
}

TEST(Credit, InEverythingIsPointsForTheTeam) {
    struct Row {
        const char* what;
        int killerTeam;
        int victim;  // place in `players`
        bool survived;
        int points;
    };
    // 0 the killer, 1 its team-mate, 2 a rival, 3 a computer's snake.
    constexpr Row rows[] = {
        {"itself", 0, 0, false, -7},     {"a team-mate", 0, 1, false, -7},   {"a rival", 0, 2, false, 7},
        {"a snake hurt", 0, 3, true, 2}, {"a snake killed", 0, 3, false, 5}, {"a rival, teamless", -1, 2, false, 0},
    };
    for (const bool deathmatch : {true, false}) {
        for (const Row& row : rows) {
            TestRound round({.mode = GameMode::Everything});
            gameOptions.everythingDeathmatch = deathmatch;
            gameOptions.playerKillPoints = 7;
            gameOptions.snakeHurtPoints = 2;
            gameOptions.snakeKillPoints = 5;
            round.addTeam({1, 5});
            round.addTeam({13, 5});
            const auto killer = round.addPlayer({1, 1}, row.killerTeam);
            round.addPlayer({3, 3}, 0);
            round.addPlayer({5, 5}, 1);
            round.addSnake({7, 7}, Facing::Up, 12, true);
            killer->creditKill(players[static_cast<std::size_t>(row.victim)], row.survived);
            EXPECT_EQ(teams[0].score, deathmatch ? row.points : 0) << row.what;
            EXPECT_EQ(killer->kills, deathmatch ? 0 : (row.victim == 0 ? -1 : 1)) << row.what;
            EXPECT_EQ(round.toastTexts().size(), deathmatch && row.killerTeam == 0 ? 1U : 0U) << row.what;
        }
    }
}

}  // namespace
}  // namespace vandrel
