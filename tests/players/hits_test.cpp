// Hits: what hurts whom in the hit pass, what a shield makes of it, and who is credited.
#include <gtest/gtest.h>

#include <cstdlib>

#include "players/in_words.h"

namespace vandrel {
namespace {

// A killer far off and a player in the middle of it all.
class Hits : public testing::Test {
  protected:
    // A single flame of the owner that burns on the player's square for as long as a test looks.
    void lightFlame(const std::shared_ptr<Player>& owner, bool flamethrower = false) {
        Explosion flame;
        flame.owner = owner;
        flame.x = flame.y = 5;
        flame.timer = 1000;
        flame.isFlamethrower = flamethrower;
        round.game().explosions.push_back(flame);
    }
    void hit() { player->hurt(DeathReason::Explosion, round.replay(), killer); }

    TestRound round;
    std::shared_ptr<Player> killer = round.addPlayer({1, 1});
    std::shared_ptr<Player> player = round.addPlayer({5, 5});
};

TEST_F(Hits, OfAFlameAreForWhoeverHasTheMiddleOnItsSquareAndForNoGhost) {
    struct Row {
        int offset;
        bool ghost;
        bool dies;
    };
    lightFlame(killer);
    for (const Row& row : {Row{0, false, true}, Row{15, false, true}, Row{16, false, false}, Row{-16, false, true},
                           Row{-17, false, false}, Row{0, true, false}}) {
        player->reset();
        player->y = 160 + row.offset;
        player->ghost = row.ghost;
        killer->kills = 0;
        round.game().checkPlayerHits();
        EXPECT_EQ(player->dead, row.dies) << row.offset << (row.ghost ? ", a ghost" : "");
        EXPECT_EQ(killer->kills, row.dies ? 1 : 0) << row.offset;
    }
}

TEST_F(Hits, PassOverOnesOwnFlamethrowerOnly) {
    lightFlame(player, true);
    round.game().checkPlayerHits();
    EXPECT_EQ(formOf(*player), "walking");
    lightFlame(player);
    round.game().checkPlayerHits();
    EXPECT_EQ(player->kills, -1) << "its own other flame";
    player->reset();
    round.game().explosions.clear();
    lightFlame(killer, true);
    round.game().checkPlayerHits();
    EXPECT_EQ(formOf(*player), "dead");
}

TEST_F(Hits, OnlyTheFirstFlameOnTheSquareIsCredited) {
    lightFlame(killer);
    lightFlame(round.addPlayer({1, 3}));
    round.game().checkPlayerHits();
    EXPECT_TRUE(player->dead);
    EXPECT_EQ(killer->kills, 1);
    EXPECT_EQ(players[2]->kills, 0);
}

TEST_F(Hits, AWallOnTheSquareKillsWithoutCredit) {
    const auto ghost = round.addPlayer({5, 5});
    ghost->ghost = true;
    for (const int kind : {SquareKind::GridBlock, SquareKind::EdgeWall, SquareKind::Wall, SquareKind::HardWallHitTwice,
                           SquareKind::WallCrumbling + 5}) {
        player->startRound();
        squareGrid.set(5, 5, kind);
        round.game().checkPlayerHits();
        EXPECT_TRUE(player->dead) << kind;
        EXPECT_EQ(player->kills, 0);
        EXPECT_FALSE(ghost->dead);
        EXPECT_EQ(player->particles.size(), 1U);
    }
}

TEST_F(Hits, AGhostWhoseTimeEndsInsideAWallDies) {
    player->ghost = true;
    player->shieldTimer = 3;
    squareGrid.set(5, 5, SquareKind::Wall);
    EXPECT_EQ(round.stepUntil([&] { return player->dead; }), 4) << "the timer passes 0 first";
}

TEST_F(Hits, ASnakesHeadEatsAllButGhostsSnakesAndTheShielded) {
    const auto snake = round.addSnake({5, 5}, Facing::Up, 4, true);
    struct Row : Who {
        bool eaten;
    };
    for (const Row& row : {Row{{"a walker", asItIs}, true}, Row{{"a crawler", asCrawler}, true},
                           Row{{"a ghost", asGhost}, false}, Row{{"a shielded one", asShielded}, false}}) {
        player->reset();
        snake->kills = 0;
        row.make(*player);
        round.game().checkPlayerHits();
        EXPECT_EQ(player->dead, row.eaten) << row.who;
        EXPECT_EQ(snake->kills, row.eaten ? 1 : 0) << row.who;
        EXPECT_FALSE(snake->dead);
    }
}

// Flames on a part hurt from the first part on, walls from the second on, and only as far as the snake is long.
TEST_F(Hits, OnTheBodyHalveTheSnake) {
    constexpr int flame = -1;
    struct Row {
        int kind;
        std::size_t part;
        bool halves;
    };
    constexpr Row rows[] = {
        {flame, 0, true},
        {flame, 11, true},
        {SquareKind::Wall, 0, false},
        {SquareKind::Wall, 1, true},
        {SquareKind::EdgeWall, 11, true},
        {SquareKind::HardWallHitTwice, 5, true},
        {SquareKind::GridBlock, 5, true},
        {SquareKind::WallCrumbling, 5, false},
        {SquareKind::Wall, 12, false},
    };
    player->x = 0;
    for (const Row& row : rows) {
        SCOPED_TRACE(testing::Message() << "kind " << row.kind << " on part " << row.part);
        const auto snake = round.addSnake({8, 8}, Facing::Up, 12, true);
        snake->snakeParts.emplace_back(256, 256, Facing::Up);  // one more than it is long, as after a halving
        snake->snakeParts[row.part] = {5 * 32, 5 * 32, Facing::Up};
        killer->kills = 0;
        round.game().explosions.clear();
        squareGrid.set(5, 5, row.kind == flame ? SquareKind::Empty : row.kind);
        if (row.kind == flame) {
            lightFlame(killer);
        }
        round.game().checkPlayerHits();
        EXPECT_EQ(formOf(*snake), row.halves ? "snake of 6, shielded" : "snake of 12");
        EXPECT_EQ(killer->kills, row.kind == flame ? 1 : 0) << "half a snake of the computer by a flame earns a credit";
        players.pop_back();
    }
}

TEST(Shield, OfLastingKindTakesAHitAndThenRunsForTwoSeconds) {
    for (const int rate : {60, 120}) {
        TestRound round({.rate = rate});
        const auto owner = round.addPlayer({1, 1});
        const auto player = round.addPlayer({5, 5});
        const int twoSeconds = 120 * gameOptions.frameMultiplier;
        asShielded(*player);
        round.step(1000);
        EXPECT_TRUE(player->shield);
        EXPECT_EQ(player->shieldTimer, Player::lastingShield());
        for (int hit = 1; hit <= 2; ++hit) {
            player->hurt(DeathReason::Explosion, round.replay(), owner);
            EXPECT_EQ(player->shieldTimer, twoSeconds) << "a second hit changes nothing";
        }
        EXPECT_EQ(round.stepUntil([&] { return !player->shield; }), twoSeconds + 1);
        EXPECT_FALSE(player->dead);
        player->hurt(DeathReason::Explosion, round.replay(), owner);
        EXPECT_TRUE(player->dead);
        EXPECT_EQ(owner->kills, 1);
    }
}

TEST_F(Hits, LeaveTheDeadTheirShieldForAsLongAsItRunsOnly) {
    player->shield = player->dead = true;
    player->shieldTimer = 20;
    round.step(20);
    EXPECT_TRUE(player->shield);
    round.step();
    EXPECT_FALSE(player->shield);
}

TEST_F(Hits, ThatKillLeaveASpriteASoundAndNoSecondDeath) {
    player->x += 3;
    player->animFrame = 5;
    hit();
    hit();
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

TEST(Credit, InEverythingIsPointsForTheTeam) {
    struct Row {
        const char* what;
        int killerTeam;
        int victim;  // place in `players`: 0 the killer, 1 its team-mate, 2 a rival, 3 a computer's snake
        bool survived;
        int points;
    };
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
