// The making of a snake of the computer: its speed against the humans', its first heading, what else it starts with.
#include <gtest/gtest.h>

#include <array>
#include <sstream>

#include "players/in_words.h"

namespace vandrel {
namespace {

TEST(NewAISnake, StandsOnItsSquareWithItsLengthAndNoShield) {
    TestRound round;
    gameOptions.snakeStartLength = 9;
    squareGrid.set(5, 5, SquareKind::Wall);
    const auto snake = createAISnake(123, {5, 5}, std::nullopt);
    EXPECT_EQ(squareGrid.at(5, 5), SquareKind::Empty);
    EXPECT_EQ(snake->position(), (Pixel{160, 160}));
    EXPECT_EQ(formOf(*snake), "snake of 9");
    EXPECT_TRUE(snake->isAI);
    EXPECT_EQ(snake->num, 123);
    EXPECT_EQ(snake->team, -1);
    EXPECT_EQ(snake->cash, 0);
    EXPECT_EQ(round.takeHeard(), (std::vector<HeardSample>{{SampleIds::Snake, 255}}));
}

TEST(NewAISnake, IsAsFastAsTheOptionOrTheHumansSay) {
    struct Human {
        int speed;
        bool dead = false;
    };
    struct Row {
        int option;
        int initialSpeed;
        std::vector<Human> humans;
        int speed;
    };
    const Row rows[] = {
        {0, 2, {}, 3},
        {0, 2, {{4}, {4}}, 3},
        {0, 2, {{5}, {5}}, 4},
        {0, 2, {{5}, {4}}, 3},        // 4.5
        {0, 2, {{4}, {5}, {6}}, 4},   // the cap, and a mean of 5
        {0, 2, {{1}, {6}}, 4},        // the cap alone
        {0, 2, {{1}, {7}}, 3},        // past the cap, as no powerup goes
        {0, 2, {{5}, {5, true}}, 3},  // the dead one counts 2
        {0, 2, {{2}, {6, true}}, 3},
        {0, 6, {{1}, {1, true}}, 4},  // the dead one counts 6, which is the cap
        {5, 2, {{1}}, 5},
        {1, 2, {{6}}, 1},
    };
    for (const Row& row : rows) {
        TestRound round;
        gameOptions.snakeSpeed = row.option;
        gameOptions.initialSpeed = row.initialSpeed;
        for (const Human& human : row.humans) {
            const auto player = round.addPlayer({3, 3});
            player->speed = human.speed;
            player->dead = human.dead;
        }
        round.addSnake({9, 7}, Facing::Up, 12, true)->speed = 6;  // other snakes do not count
        EXPECT_EQ(createAISnake(120, {5, 5}, std::nullopt)->speed, row.speed) << "row " << &row - rows;
    }
}

TEST(NewAISnake, LooksTheFirstOpenWayIfItsOwnIsBlocked) {
    constexpr int pillar = SquareKind::GridBlock;
    constexpr int edge = SquareKind::EdgeWall;
    struct Row {
        std::array<int, 4> around;  // down, up, left, right
        Facing facing;
    };
    constexpr Row rows[] = {
        {{}, Facing::Down},
        {{SquareKind::Wall}, Facing::Down},
        {{pillar}, Facing::Up},
        {{edge, SquareKind::HardWall}, Facing::Up},
        {{pillar, edge}, Facing::Left},
        {{pillar, pillar, pillar}, Facing::Right},
        {{pillar, pillar, pillar, edge}, Facing::Down},
    };
    for (const Row& row : rows) {
        TestRound round;
        for (std::size_t i = 0; i < 4; ++i) {
            squareGrid.set(Square{5, 5} + directionOf(facingOrder[i]), row.around[i]);
        }
        EXPECT_EQ(createAISnake(120, {5, 5}, std::nullopt)->facing, row.facing) << "row " << &row - rows;
    }
}

TEST(AISnake, ChoosesOnLinesAndRecordsOneInputAFrame) {
    TestRound round({.rows = {"##########", "#........#", "#.XXXXXX.#", "#........#", "##########"}});
    gameOptions.aiSearchDepth = 4;
    std::ostringstream recorded;
    round.game().replay.output = &recorded;
    round.game().replay.recording = true;
    const auto snake = round.addSnake({7, 1}, Facing::Right, 2, true);
    snake->speed = 6;
    for (unsigned frame = 1; frame <= 60; ++frame) {
        round.step();
        EXPECT_EQ(recorded.str().size(), 2U * frame);
    }
    const std::string bytes = recorded.str();
    EXPECT_EQ(bytes[0], static_cast<char>(snake->num));
    EXPECT_EQ(bytes[1], 1) << "right, chosen on the line";
    EXPECT_EQ(bytes[3], 0) << "between the lines";
    // The frame that comes to the end of the row, where down is the one way on, ends beyond the line.
    EXPECT_EQ(bytes[11], 1 << 2) << "down";
    EXPECT_FALSE(snake->dead);
}

}  // namespace
}  // namespace vandrel
