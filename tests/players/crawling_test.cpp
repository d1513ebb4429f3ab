// Crawling in Battle Royale: how it begins, rescue by a team-mate, and the end of a team of which nobody can rescue.
#include <gtest/gtest.h>

#include "support/round_fixture.h"

namespace vandrel {
namespace {

class Rescue : public testing::Test {
  protected:
    Rescue() : round({.mode = GameMode::BattleRoyale}) {
        round.addTeam({1, 5});
        round.addTeam({13, 5});
        mate = round.addPlayer({6, 5}, 0);
        fallen = round.addPlayer({5, 5}, 0);
        rival = round.addPlayer({5, 5}, 1);
        fallen->crawling = true;
    }

    TestRound round;
    std::shared_ptr<Player> mate;
    std::shared_ptr<Player> fallen;
    std::shared_ptr<Player> rival;
};

TEST(Crawling, FollowsAHitInBattleRoyaleAndASecondHitKills) {
    for (const int rate : {60, 120}) {
        TestRound round({.rate = rate, .mode = GameMode::BattleRoyale});
        round.addTeam({1, 5});
        round.addTeam({13, 5});
        const auto player = round.addPlayer({5, 5}, 0);
        round.addPlayer({9, 9}, 0);
        const auto killer = round.addPlayer({1, 1}, 1);
        player->animFrame = 4;
        player->facing = Facing::Up;
        player->remoteActive = true;
        placeBomb({9, 5}, player, 50);
        bombGrid.edit(9, 5).kind = BombKind::Armed;
        player->hurt(DeathReason::Explosion, round.replay(), killer);
        EXPECT_TRUE(player->crawling && player->shield && !player->dead);
        EXPECT_EQ(player->crawlTimer, 0);
        EXPECT_EQ(player->shieldTimer, 120 * gameOptions.frameMultiplier);
        EXPECT_EQ(player->animFrame, 1);
        EXPECT_EQ(player->facing, Facing::Right);
        EXPECT_FALSE(player->remoteActive);
        EXPECT_EQ(bombGrid.at(9, 5).kind, BombKind::Ticking);
        EXPECT_EQ(killer->kills, 0) << "nobody is credited";
        round.step(120 * gameOptions.frameMultiplier + 1);
        EXPECT_FALSE(player->shield);
        player->hurt(DeathReason::Explosion, round.replay(), killer);
        EXPECT_TRUE(player->dead);
        EXPECT_EQ(killer->kills, 1);
    }
}

TEST_F(Rescue, TakesAHundredAndEightyFramesInARowAndBeginsAnewOnceItIsBrokenOff) {
    round.step(179);
    mate->x += 1;
    round.step();
    EXPECT_EQ(fallen->reviveProgress, 0);
    mate->x -= 1;
    round.step(179);
    EXPECT_TRUE(fallen->crawling);
    round.step();
    EXPECT_FALSE(fallen->crawling);
    EXPECT_EQ(fallen->reviveProgress, 0);
}

TEST_F(Rescue, NeedsALivingUprightTeamMateInReach) {
    struct Row {
        const char* what;
        void (*change)(Player& mate);
        bool helps;
    };
    const Row rows[] = {
        {"on the next square", [](Player&) {}, true},
        {"a pixel farther", [](Player& p) { p.x += 1; }, false},
        {"off the axis by a pixel", [](Player& p) { p.y += 1; }, false},
        {"on the same square", [](Player& p) { p.x = 160; }, true},
        {"dead", [](Player& p) { p.dead = true; }, false},
        {"crawling too",
         [](Player& p) {
             p.crawling = true;
             p.crawlTimer = 500;
         },
         false},
        {"a ghost", [](Player& p) { p.ghost = true; }, true},
        {"of the other team", [](Player& p) { p.x += 64; }, false},
    };
    for (const Row& row : rows) {
        for (const auto& member : {mate, fallen}) {
            member->reset();
        }
        fallen->crawling = true;
        mate->x = 192;
        mate->y = 160;
        row.change(*mate);
        for (int i = 0; i < 3; ++i) {
            fallen->update(round.replay(), &round.game(), false);
        }
        EXPECT_EQ(fallen->reviveProgress, row.helps ? 3 : 0) << row.what;
        EXPECT_TRUE(fallen->crawling && !fallen->dead);
    }
}

TEST_F(Rescue, CountsOncePerFrameHoweverManyHelp) {
    round.addPlayer({4, 5}, 0);
    round.addPlayer({5, 4}, 0);
    round.step(10);
    EXPECT_EQ(fallen->reviveProgress, 10);
}

TEST(Crawling, OfAnEndedSnakeNeedsNoRescueAndGetsNone) {
    TestRound round({.mode = GameMode::Classic});
    const auto player = round.addPlayer({5, 5});
    player->crawling = true;
    player->crawlTimer = 3;
    round.step(2);
    EXPECT_TRUE(player->crawling);
    round.step();
    EXPECT_FALSE(player->crawling);
}

TEST(CrawlingTeams, DieOutWhenNobodyIsLeftToRescue) {
    enum class Is { Up, Crawling, CrawlingForAWhile, Dead };
    struct Row {
        Is first;
        Is second;
        bool diesOut;
    };
    constexpr Row rows[] = {
        {Is::Crawling, Is::Crawling, true},
        {Is::Crawling, Is::Dead, true},
        {Is::Crawling, Is::Up, false},
        {Is::Crawling, Is::CrawlingForAWhile, false},
        {Is::CrawlingForAWhile, Is::Dead, false},
    };
    const auto make = [](Player& player, Is is) {
        player.dead = is == Is::Dead;
        player.crawling = is == Is::Crawling || is == Is::CrawlingForAWhile;
        player.crawlTimer = is == Is::CrawlingForAWhile ? 500 : 0;
    };
    for (const Row& row : rows) {
        TestRound round({.mode = GameMode::BattleRoyale});
        round.addTeam({1, 5});
        round.addTeam({13, 5});
        round.addTeam({7, 1});
        const auto first = round.addPlayer({5, 5}, 0);
        const auto second = round.addPlayer({11, 5}, 0);
        const auto other = round.addPlayer({9, 9}, 1);
        make(*first, row.first);
        make(*second, row.second);
        round.step();
        EXPECT_EQ(first->dead, row.diesOut || row.first == Is::Dead);
        EXPECT_EQ(second->dead, row.diesOut || row.second == Is::Dead);
        EXPECT_FALSE(other->dead);
    }
}

TEST(CrawlingTeams, TwoThatFallInOneFrameDieInThatFrame) {
    TestRound round({.mode = GameMode::BattleRoyale});
    for (int team = 0; team < 2; ++team) {
        round.addTeam({1 + 12 * team, 5});
        round.addPlayer({5 + team, 5}, team);
        squareGrid.set(5 + team, 5, SquareKind::Wall);
    }
    round.step();
    EXPECT_TRUE(players[0]->dead);
    EXPECT_TRUE(players[1]->dead);
}

}  // namespace
}  // namespace vandrel
