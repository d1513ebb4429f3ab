// Crawling in Battle Royale: how it begins, rescue by a team-mate, and the end of a team of which nobody can rescue.
#include <gtest/gtest.h>

#include "players/in_words.h"

namespace vandrel {
namespace {

// Two teams, each with its base.
struct BattleRoyale : TestRound {
    explicit BattleRoyale(int rate = 60) : TestRound({.rate = rate, .mode = GameMode::BattleRoyale}) {
        addTeam({1, 5});
        addTeam({13, 5});
    }
};

class Rescue : public testing::Test {
  protected:
    BattleRoyale round;
    std::shared_ptr<Player> mate = round.addPlayer({6, 5}, 0);
    std::shared_ptr<Player> fallen = round.addPlayer({5, 5}, 0);
    std::shared_ptr<Player> rival = round.addPlayer({5, 5}, 1);
    Rescue() { fallen->crawling = true; }
};

TEST(Crawling, FollowsAHitInBattleRoyaleAndASecondHitKills) {
    for (const int rate : {60, 120}) {
        BattleRoyale round(rate);
        const auto player = round.addPlayer({5, 5}, 0);
        round.addPlayer({9, 9}, 0);
        const auto killer = round.addPlayer({1, 1}, 1);
        player->animFrame = 4;
        player->facing = Facing::Up;
        player->remoteActive = true;
        placeBombOf(BombKind::Armed, {9, 5}, player);
        player->hurt(DeathReason::Explosion, round.replay(), killer);
        EXPECT_EQ(formOf(*player), "crawling, shielded");
        EXPECT_EQ(player->crawlTimer, 0);
        EXPECT_EQ(player->shieldTimer, 120 * gameOptions.frameMultiplier);
        EXPECT_EQ(player->animFrame, 1);
        EXPECT_EQ(player->facing, Facing::Right);
        EXPECT_FALSE(player->remoteActive);
        EXPECT_EQ(bombGrid.at(9, 5).kind, BombKind::Ticking);
        EXPECT_EQ(killer->kills, 0) << "nobody is credited";
        round.step(120 * gameOptions.frameMultiplier + 1);
        EXPECT_EQ(formOf(*player), "crawling");
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
    struct Row : Who {
        bool helps;
    };
    const Row rows[] = {
        {{"on the next square", asItIs}, true},
        {{"a pixel farther", [](Player& p) { p.x += 1; }}, false},
        {{"off the axis by a pixel", [](Player& p) { p.y += 1; }}, false},
        {{"on the same square", [](Player& p) { p.x = 160; }}, true},
        {{"dead", asDead}, false},
        {{"crawling too", asCrawler}, false},
        {{"a ghost", asGhost}, true},
        {{"of the other team", [](Player& p) { p.x += 64; }}, false},
    };
    for (const Row& row : rows) {
        mate->reset();
        mate->x = 192;
        mate->y = 160;
        row.make(*mate);
        fallen->reviveProgress = 0;
        for (int i = 0; i < 3; ++i) {
            fallen->update(round.replay(), &round.game(), false);
        }
        EXPECT_EQ(fallen->reviveProgress, row.helps ? 3 : 0) << row.who;
        EXPECT_EQ(formOf(*fallen), "crawling") << row.who;
    }
}

TEST_F(Rescue, CountsOncePerFrameHoweverManyHelp) {
    round.addPlayer({4, 5}, 0);
    round.addPlayer({5, 4}, 0);
    round.step(10);
    EXPECT_EQ(fallen->reviveProgress, 10);
}

TEST(CrawlingTeams, DieOutWhenNobodyIsLeftToRescue) {
    const auto waitForHelp = [](Player& p) { p.crawling = true; };
    struct Row {
        const char* what;
        void (*first)(Player& player);
        void (*second)(Player& player);
        bool firstDies;
        bool secondDies;
    };
    const Row rows[] = {
        {"both wait", waitForHelp, waitForHelp, true, true},
        {"the other is dead", waitForHelp, asDead, true, true},
        {"the other is up", waitForHelp, asItIs, false, false},
        {"the other gets up by itself", waitForHelp, asCrawler, false, false},
        {"it gets up by itself, the other is dead", asCrawler, asDead, false, true},
    };
    for (const Row& row : rows) {
        BattleRoyale round;
        round.addTeam({7, 1});
        const auto first = round.addPlayer({5, 5}, 0);
        const auto second = round.addPlayer({11, 5}, 0);
        const auto other = round.addPlayer({9, 9}, 1);
        row.first(*first);
        row.second(*second);
        round.step();
        EXPECT_EQ(first->dead, row.firstDies) << row.what;
        EXPECT_EQ(second->dead, row.secondDies) << row.what;
        EXPECT_FALSE(other->dead) << row.what;
    }
}

TEST(CrawlingTeams, TwoThatFallInOneFrameDieInThatFrame) {
    BattleRoyale round;
    for (int team = 0; team < 2; ++team) {
        round.addPlayer({5 + team, 5}, team);
        squareGrid.set(5 + team, 5, SquareKind::Wall);
    }
    round.step();
    EXPECT_TRUE(players[0]->dead && players[1]->dead);
}

}  // namespace
}  // namespace vandrel
