// A snake that is hurt: which hits halve it, stun it or end it, what a shield is worth, and who is credited.
#include <gtest/gtest.h>

#include "support/round_fixture.h"

namespace vandrel {
namespace {

enum class Then { Nothing, Halved, Ended };

struct ReasonRow {
    DeathReason reason;
    Then human;
    Then ai;
    Then shielded;
};

constexpr ReasonRow reasonRows[] = {
    {DeathReason::Explosion, Then::Ended, Then::Halved, Then::Nothing},
    {DeathReason::PushedWall, Then::Ended, Then::Ended, Then::Nothing},
    {DeathReason::Wall, Then::Ended, Then::Ended, Then::Nothing},
    {DeathReason::Eaten, Then::Ended, Then::Ended, Then::Nothing},
    {DeathReason::SnakeHeadCollision, Then::Ended, Then::Ended, Then::Nothing},
    {DeathReason::SnakeBodyHitByExplosion, Then::Halved, Then::Halved, Then::Nothing},
    {DeathReason::SnakeBodyHitByAppearingWall, Then::Halved, Then::Halved, Then::Halved},
    {DeathReason::SnakeHeadPushedWall, Then::Ended, Then::Ended, Then::Halved},
    {DeathReason::SnakeBodyPushedWall, Then::Halved, Then::Halved, Then::Halved},
};

Then outcome(const Player& snake, int lengthBefore) {
    if (!snake.isSnake()) {
        EXPECT_TRUE(snake.isAI ? snake.dead : snake.crawling);
        return Then::Ended;
    }
    EXPECT_EQ(snake.snakeLengthNow() == lengthBefore / 2, snake.snakeLengthNow() != lengthBefore);
    return snake.snakeLengthNow() == lengthBefore ? Then::Nothing : Then::Halved;
}

TEST(SnakeHits, HalveOrEndItByTheirReason) {
    for (const ReasonRow& row : reasonRows) {
        for (const bool ai : {false, true}) {
            for (const bool shielded : {false, true}) {
                SCOPED_TRACE(testing::Message() << "reason " << static_cast<int>(row.reason) << (ai ? " ai" : " human")
                                                << (shielded ? " shielded" : ""));
                TestRound round;
                const auto killer = round.addPlayer({1, 1});
                const auto snake = round.addSnake({5, 5}, Facing::Up, 12, ai);
                snake->shield = shielded;
                snake->shieldTimer = 50;
                snake->hurt(row.reason, round.replay(), killer);
                const Then expected = shielded ? row.shielded : (ai ? row.ai : row.human);
                EXPECT_EQ(outcome(*snake, 12), expected);
                EXPECT_EQ(killer->kills, ai && expected != Then::Nothing ? 1 : 0);
                const bool stunned = ai && !shielded && row.reason == DeathReason::Explosion;
                EXPECT_EQ(snake->slowTimer, stunned ? 180 : 0);
                EXPECT_EQ(snake->shieldTimer, expected == Then::Nothing || snake->dead ? 50 : 120);
            }
        }
    }
}

TEST(SnakeHits, HalvingStopsAtFourAndEndsTheSnakeBelow) {
    struct Row {
        int before;
        int after;
    };
    for (const Row& row : {Row{13, 6}, Row{12, 6}, Row{9, 4}, Row{8, 4}, Row{7, 0}, Row{6, 0}, Row{4, 0}}) {
        for (const bool ai : {false, true}) {
            for (const int rate : {60, 120}) {
                TestRound round({.rate = rate});
                const auto killer = round.addPlayer({1, 1});
                const auto snake = round.addSnake({5, 5}, Facing::Up, row.before, ai);
                snake->hurt(DeathReason::SnakeBodyHitByExplosion, round.replay(), killer);
                EXPECT_EQ(snake->snakeLengthNow(), row.after) << row.before;
                EXPECT_EQ(snake->dead, ai && row.after == 0);
                EXPECT_EQ(snake->crawling, !ai && row.after == 0);
                EXPECT_EQ(killer->kills, ai ? 1 : 0);
                EXPECT_TRUE(snake->shield);
                EXPECT_EQ(snake->shieldTimer, 120 * gameOptions.frameMultiplier);
                EXPECT_EQ(snake->minorStunTimer, 120) << "not scaled";
            }
        }
    }
}

TEST(SnakeHits, TheTailThatIsLostFliesOffPartByPart) {
    TestRound round;
    const auto snake = round.addSnake({5, 5}, Facing::Up, 9);
    for (std::size_t i = 0; i < 9; ++i) {
        snake->snakeParts[i] = {160, 160 + 16 * static_cast<int>(i), Facing::Up};
    }
    snake->hurt(DeathReason::SnakeBodyHitByExplosion, round.replay(), nullptr);
    ASSERT_EQ(snake->particles.size(), 5U);
    for (std::size_t i = 0; i < 5; ++i) {
        EXPECT_EQ(snake->particles[i].y, 160 + 16 * (static_cast<int>(i) + 4));
    }
    EXPECT_LT(snake->particles[0].delay, snake->particles[4].delay);
    EXPECT_TRUE(round.takeHeard().empty());
}

TEST(SnakeHits, WithoutMinorStunAHalvedSnakeGoesOnAtItsSpeed) {
    TestRound round({.tune = [](GameOptions& o) { o.minorStunEnabled = false; }});
    const auto snake = round.addSnake({5, 5}, Facing::Up, 12, true);
    snake->hurt(DeathReason::SnakeBodyHitByExplosion, round.replay(), nullptr);
    EXPECT_EQ(snake->minorStunTimer, 0);
}

TEST(SnakeHits, TwoInOneFrameEndAHumanSnakeAndNoMore) {
    TestRound round;
    const auto killer = round.addPlayer({1, 1});
    const auto snake = round.addSnake({5, 5}, Facing::Up, 12);
    snake->hurt(DeathReason::Explosion, round.replay(), killer);
    snake->hurt(DeathReason::Explosion, round.replay(), killer);
    EXPECT_FALSE(snake->dead);
    EXPECT_TRUE(snake->crawling && snake->shield);
    EXPECT_EQ(killer->kills, 0);
}

TEST(SnakeHits, AStunnedSnakeOfTheComputerCrawlsAtOnePixelForTheStun) {
    for (const int rate : {60, 120}) {
        TestRound round({.size = {60, 11}, .rate = rate, .version = replayOutputVersion});
        const auto snake = round.addSnake({3, 5}, Facing::Right, 12, true);
        snake->speed = 6;
        snake->hurt(DeathReason::Explosion, round.replay(), nullptr);
        // The timer falls before the move, so the frame that takes it to 0 is free again.
        for (int frame = 1; frame < 180; ++frame) {
            const int before = snake->x;
            round.step();
            ASSERT_EQ(snake->x - before, 1) << "frame " << frame;
        }
        const int before = snake->x;
        round.step();
        EXPECT_EQ(snake->x - before, 6 / gameOptions.frameMultiplier);
    }
}

TEST(EndOfSnakeForm, AHumanCrawlsForFourSecondsAndWalksOnByItself) {
    for (const int rate : {60, 120}) {
        for (const GameMode mode : {GameMode::Classic, GameMode::BattleRoyale}) {
            TestRound round({.rate = rate, .mode = mode});
            round.addTeam({1, 5});
            round.addTeam({13, 5});
            const auto snake = round.addSnake({5, 5}, Facing::Up, 6);
            snake->team = 0;
            teams[0].members.push_back(snake);
            snake->speed = 5;
            snake->snakeHistory.push_back({160, 161});
            snake->hurt(DeathReason::Explosion, round.replay(), nullptr);
            EXPECT_EQ(round.takeHeard(), (std::vector<HeardSample>{{SampleIds::Wimbaah, 200, 128, 2000}}));
            EXPECT_TRUE(snake->crawling && snake->shield);
            EXPECT_TRUE(snake->snakeParts.empty() && snake->snakeHistory.empty());
            EXPECT_EQ(snake->facing, Facing::Right);
            EXPECT_EQ(snake->particles.size(), 6U);
            const int unit = gameOptions.frameMultiplier;
            EXPECT_EQ(round.stepUntil([&] { return !snake->shield; }), 120 * unit + 1);
            EXPECT_EQ(round.stepUntil([&] { return !snake->crawling; }), 240 * unit - 120 * unit - 1);
            EXPECT_FALSE(snake->dead);
            EXPECT_EQ(snake->getSpeed(round.replay()), 5 / unit) << "its own speed is back";
        }
    }
}

}  // namespace
}  // namespace vandrel
