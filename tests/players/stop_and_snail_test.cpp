// Stop and Snail: whom they hit, for how long, and what a stopped player still does.
#include <gtest/gtest.h>

#include "players/in_words.h"

namespace vandrel {
namespace {

TEST(StopAndSnail, HitAllOthersWhateverTheirStateAndReplaceWhatIsLeft) {
    for (const int rate : {60, 120}) {
        TestRound round({.rate = rate});
        const auto taker = round.addPlayer({5, 5});
        const auto dead = round.addPlayer({3, 3});
        const auto shielded = round.addPlayer({7, 3});
        const auto snake = round.addSnake({9, 7}, Facing::Up, 4, true);
        dead->dead = true;
        shielded->shield = true;
        shielded->stopTimer = 7;
        shielded->slowTimer = 1000;
        taker->givePowerup(Bonus::QuestionStop);
        taker->givePowerup(Bonus::Snail);
        for (const auto& victim : {dead, shielded, snake}) {
            EXPECT_EQ(victim->stopTimer, 150 * gameOptions.frameMultiplier);
            EXPECT_EQ(victim->slowTimer, 480) << "the seconds count sixty frames at any rate";
        }
        EXPECT_EQ(taker->stopTimer + taker->slowTimer, 0);
    }
}

TEST(Stop, FreezesItsVictimWhoSpinsAndWhoseShieldAndBombsGoOn) {
    for (const int rate : {60, 120}) {
        TestRound round({.rate = rate});
        const auto player = round.addPlayer({5, 5});
        player->stopTimer = 40;
        player->shield = true;
        player->shieldTimer = 30;
        player->animFrame = 4;
        placeBomb({10, 8}, player, 5);
        round.hold(*player, {.right = true, .fire = true, .button2 = true});
        const int each = 5 * gameOptions.frameMultiplier;
        const Facing order[] = {Facing::Left, Facing::Up, Facing::Right, Facing::Down};
        for (int frame = 0; frame < 40; ++frame) {
            round.step();
            EXPECT_EQ(player->facing, order[(frame / each) % 4]) << "frame " << frame << " at " << rate;
        }
        EXPECT_EQ(player->animFrame, 1);
        EXPECT_EQ(player->position(), (Pixel{160, 160}));
        EXPECT_EQ(player->pingTimer, 0);
        EXPECT_FALSE(player->shield);
        EXPECT_FALSE(hasBomb({10, 8}));
        round.step();
        EXPECT_GT(player->x, 160) << "then it walks";
    }
}

TEST(Stop, DoesNotSpinSnakesAndCrawlers) {
    TestRound round({.version = replayOutputVersion});
    const auto crawler = round.addPlayer({3, 3});
    asCrawler(*crawler);
    crawler->facing = Facing::Right;
    const auto snake = round.addSnake({9, 7}, Facing::Up, 4);
    crawler->stopTimer = snake->stopTimer = 20;
    round.step(20);
    EXPECT_EQ(crawler->facing, Facing::Right);
    EXPECT_EQ(crawler->crawlTimer, 500) << "a stopped crawler waits";
    EXPECT_EQ(snake->facing, Facing::Up);
    EXPECT_EQ(snake->position(), (Pixel{9 * 32, 7 * 32}));
}

}  // namespace
}  // namespace vandrel
