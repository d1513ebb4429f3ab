// A snake that is hurt: which hits halve it, stun it or end it, what a shield is worth, and who is credited.
#include <gtest/gtest.h>

#include "players/in_words.h"

namespace vandrel {
namespace {

// What may become of a snake of twelve. A computer's snake dies of its end; a human crawls on behind a shield.
constexpr const char* nothing = "snake of 12, shielded";
constexpr const char* halved = "snake of 6, shielded";
constexpr const char* crawls = "crawling, shielded";
constexpr const char* dies = "dead";

struct ReasonRow {
    DeathReason reason;
    std::string human;
    std::string ai;
    std::string shielded;
};

const ReasonRow reasonRows[] = {
    {DeathReason::Explosion, crawls, halved, nothing},
    {DeathReason::PushedWall, crawls, dies, nothing},
    {DeathReason::Wall, crawls, dies, nothing},
    {DeathReason::Eaten, crawls, dies, nothing},
    {DeathReason::SnakeHeadCollision, crawls, dies, nothing},
    {DeathReason::SnakeBodyHitByExplosion, halved, halved, nothing},
    {DeathReason::SnakeBodyHitByAppearingWall, halved, halved, halved},
    {DeathReason::SnakeHeadPushedWall, crawls, dies, halved},
    {DeathReason::SnakeBodyPushedWall, halved, halved, halved},
};

// A snake in the middle, and who hurts it.
struct SnakeRound : TestRound {
    SnakeRound(int length, bool ai, const RoundSetup& setup = {})
        : TestRound(setup), killer(addPlayer({1, 1})), snake(addSnake({5, 5}, Facing::Right, length, ai)) {}

    void hit(DeathReason reason) { snake->hurt(reason, replay(), killer); }

    std::shared_ptr<Player> killer;
    std::shared_ptr<Player> snake;
};

TEST(SnakeHits, HalveOrEndItByTheirReason) {
    for (const ReasonRow& row : reasonRows) {
        for (const bool ai : {false, true}) {
            for (const bool shielded : {false, true}) {
                SCOPED_TRACE(fmt::format("reason {}, ai {}, shielded {}", static_cast<int>(row.reason), ai, shielded));
                SnakeRound round(12, ai);
                round.snake->shield = shielded;
                round.snake->shieldTimer = 50;
                round.hit(row.reason);
                const std::string& form = shielded ? row.shielded : (ai ? row.ai : row.human);
                EXPECT_EQ(formOf(*round.snake), form);
                EXPECT_EQ(round.killer->kills, ai && form != nothing ? 1 : 0);
                const bool stunned = ai && !shielded && row.reason == DeathReason::Explosion;
                EXPECT_EQ(round.snake->slowTimer, stunned ? 180 : 0);
                EXPECT_EQ(round.snake->shieldTimer, form == nothing || form == dies ? 50 : 120);
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
                SCOPED_TRACE(fmt::format("length {}, ai {}", row.before, ai));
                SnakeRound round(row.before, ai, {.rate = rate});
                round.hit(DeathReason::SnakeBodyHitByExplosion);
                const std::string end = ai ? "dead, shielded" : "crawling, shielded";
                EXPECT_EQ(formOf(*round.snake), row.after == 0 ? end : fmt::format("snake of {}, shielded", row.after));
                EXPECT_EQ(round.killer->kills, ai ? 1 : 0);
                EXPECT_EQ(round.snake->shieldTimer, 120 * gameOptions.frameMultiplier);
                EXPECT_EQ(round.snake->minorStunTimer, 120) << "not scaled";
            }
        }
    }
}

TEST(SnakeHits, TheTailThatIsLostFliesOffPartByPart) {
    SnakeRound round(9, false);
    for (std::size_t i = 0; i < 9; ++i) {
        round.snake->snakeParts[i] = {160, 160 + 16 * static_cast<int>(i), Facing::Up};
    }
    round.hit(DeathReason::SnakeBodyHitByExplosion);
    const auto& particles = round.snake->particles;
    ASSERT_EQ(particles.size(), 5U);
    for (std::size_t i = 0; i < 5; ++i) {
        EXPECT_EQ(particles[i].y, 160 + 16 * (static_cast<int>(i) + 4));
    }
    EXPECT_LT(particles[0].delay, particles[4].delay);
    EXPECT_TRUE(round.takeHeard().empty());
}

TEST(SnakeHits, WithoutMinorStunAHalvedSnakeGoesOnAtItsSpeed) {
    SnakeRound round(12, true, {.tune = [](GameOptions& o) { o.minorStunEnabled = false; }});
    round.hit(DeathReason::SnakeBodyHitByExplosion);
    EXPECT_EQ(round.snake->minorStunTimer, 0);
    round.snake->speed = 6;
    round.snake->minorStunTimer = 10;
    EXPECT_EQ(round.snake->getSpeed(round.replay()), 6);
}

TEST(SnakeHits, AStunnedSnakeOfTheComputerCrawlsAtOnePixelForTheStun) {
    for (const int rate : {60, 120}) {
        SnakeRound round(12, true, {.size = {60, 11}, .rate = rate, .version = replayOutputVersion});
        round.snake->speed = 6;
        round.hit(DeathReason::Explosion);
        // The timer falls before the move, so the frame that takes it to 0 is free again.
        for (int frame = 1; frame <= 180; ++frame) {
            const int before = round.snake->x;
            round.step();
            ASSERT_EQ(round.snake->x - before, frame < 180 ? 1 : 6 / gameOptions.frameMultiplier) << "frame " << frame;
        }
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
            EXPECT_EQ(formOf(*snake), "crawling, shielded");
            EXPECT_TRUE(snake->snakeParts.empty() && snake->snakeHistory.empty());
            EXPECT_EQ(snake->facing, Facing::Right);
            EXPECT_EQ(snake->particles.size(), 6U);
            const int second = 60 * gameOptions.frameMultiplier;
            EXPECT_EQ(round.stepUntil([&] { return !snake->shield; }), 2 * second + 1);
            EXPECT_EQ(round.stepUntil([&] { return !snake->crawling; }), 2 * second - 1);
            EXPECT_FALSE(snake->dead);
            EXPECT_EQ(snake->getSpeed(round.replay()), 5 / gameOptions.frameMultiplier) << "its own speed is back";
        }
    }
}

}  // namespace
}  // namespace vandrel
