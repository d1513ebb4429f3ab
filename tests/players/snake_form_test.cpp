// Snake form: the head's path, turns, what blocks it and what it eats, its body, its way out.
#include <gtest/gtest.h>

#include "players/in_words.h"

namespace vandrel {
namespace {

constexpr Square ahead{6, 5};
constexpr Square farOff{20, 8};

// A human's snake in the middle of the arena that looks right, and room before it.
struct SnakeRound : TestRound {
    SnakeRound() : TestRound({.size = {30, 11}}), snake(addSnake({5, 5}, Facing::Right, 4)) {}

    // Another that stands still, with all of its body on one square.
    void addResting(Square head, Square body) {
        const auto other = addSnake(head, Facing::Up, 2);
        other->stopTimer = 1000;
        layParts(*other, body, 0, body);
    }

    std::shared_ptr<Player> snake;
};

class SnakeForm : public testing::Test {
  protected:
    void expectAt(Pixel place, const char* why = "") { EXPECT_EQ(snake->position(), place) << why; }
    std::vector<Pixel> partPlaces() const {
        std::vector<Pixel> places;
        for (const auto& [x, y, facing] : snake->snakeParts) {
            places.push_back({x, y});
        }
        return places;
    }

    SnakeRound round;
    std::shared_ptr<Player> snake = round.snake;
};

TEST_F(SnakeForm, MovesByItselfAndTurnsOnGridLinesOnly) {
    round.step(5);
    expectAt({175, 160});
    act(round, *snake, {.down = true}, 5);
    expectAt({190, 160}, "not yet");
    round.step();
    expectAt({192, 161}, "two pixels on, one down, in one frame");
    EXPECT_EQ(snake->facing, Facing::Down);
}

TEST_F(SnakeForm, ForwardAndBackwardAreNoTurnAndABlockedSideIsNone) {
    struct Row {
        HeldKeys keys;
        int kindAbove;
        Facing facing;
    };
    const Row rows[] = {
        {{.left = true}, 0, Facing::Right},
        {{.right = true}, 0, Facing::Right},
        {{.up = true}, 0, Facing::Up},
        {{.up = true}, SquareKind::Wall, Facing::Up},
        {{.up = true}, SquareKind::WallCrumbling, Facing::Up},
        {{.up = true}, SquareKind::GridBlock, Facing::Right},
        {{.up = true}, SquareKind::EdgeWall, Facing::Right},
        {{.up = true, .left = true}, 0, Facing::Right},
        {{.up = true, .down = true}, 0, Facing::Up},
    };
    for (const Row& row : rows) {
        snake->x = snake->y = 160;
        snake->facing = Facing::Right;
        snake->snakeParts.clear();
        squareGrid.set(5, 4, row.kindAbove);
        act(round, *snake, row.keys);
        EXPECT_EQ(snake->facing, row.facing) << "row " << &row - rows;
    }
}

// On the line the head asks before it enters; between the lines it goes on to the next.
TEST(SnakeBeforeAThing, StandsStillOnTheLineUntilItIsTurned) {
    struct Row {
        const char* what;
        void (*put)(SnakeRound& round);
    };
    const Row rows[] = {
        {"a pillar", [](SnakeRound&) { squareGrid.set(ahead, SquareKind::GridBlock); }},
        {"an edge", [](SnakeRound&) { squareGrid.set(ahead, SquareKind::EdgeWall); }},
        {"a head", [](SnakeRound& round) { round.addResting(ahead, farOff); }},
        {"a body", [](SnakeRound& round) { round.addResting(farOff, ahead); }},
    };
    for (const Row& row : rows) {
        SnakeRound round;
        round.snake->x -= 32;
        row.put(round);
        round.step(30);
        EXPECT_EQ(round.snake->position(), (Pixel{160, 160})) << row.what;
        EXPECT_TRUE(round.snake->isSnake()) << row.what;
        act(round, *round.snake, {.down = true});
        EXPECT_EQ(round.snake->position(), (Pixel{160, 163})) << row.what;
    }
}

TEST_F(SnakeForm, BetweenTheLinesABodyAheadDoesNotStopIt) {
    snake->x += 5;
    round.addResting(farOff, ahead);
    round.step();
    expectAt({168, 160});
}

TEST_F(SnakeForm, AHeadThatAWallSurprisesBetweenTheLinesGoesBackToItsSquare) {
    snake->x += 10;
    squareGrid.set(6, 5, SquareKind::EdgeWall);
    round.step(2);
    expectAt({164, 160});
    round.step(5);
    expectAt({160, 160});
}

TEST_F(SnakeForm, EatsAWallOnceItStandsOnItsSquareWithWhatItHides) {
    int length = 4;
    for (const int kind : {SquareKind::Wall, SquareKind::HardWall, SquareKind::HardWallHitTwice}) {
        snake->x = 160;
        snake->snakeHistory.clear();
        snake->snakeParts.clear();
        squareGrid.set(6, 5, kind);
        bonusGrid.at(6, 5) = Bonus::Stop;
        round.step(10);
        expectAt({190, 160});
        EXPECT_EQ(squareGrid.at(6, 5), kind);
        round.step();
        EXPECT_EQ(markOf(round.game(), {6, 5}), '.');
        EXPECT_EQ(snake->snakeLengthNow(), ++length);
        EXPECT_EQ(snake->snakeParts.size(), static_cast<std::size_t>(length));
    }
}

TEST_F(SnakeForm, EatsPowerupsOfAnySortForTheirLengthOnly) {
    const auto other = round.addPlayer({1, 1});
    bonusGrid.at(6, 5) = Bonus::Stop;
    bonusGrid.at(7, 5) = Bonus::Death;
    round.step(30);
    EXPECT_EQ(formOf(*snake), "snake of 6");
    EXPECT_EQ(other->stopTimer, 0);
    EXPECT_EQ(rowOf(round.game(), 5), "#............................#");
    EXPECT_TRUE(round.toastTexts().empty());
}

TEST_F(SnakeForm, PassesCrumblingWallsAndBombsAndLaysNone) {
    squareGrid.set(6, 5, SquareKind::WallCrumbling);
    placeBomb({7, 5}, round.addPlayer({1, 1}), 5000);
    act(round, *snake, {.fire = true}, 32);
    expectAt({160 + 96, 160});
    EXPECT_EQ(snake->bombsPlaced, 0);
    EXPECT_EQ(formOf(*snake), "snake of 4");
}

TEST_F(SnakeForm, UnfoldsFromOneSpotWithSixteenPixelsOfPathBetweenParts) {
    snake->setSnakeLength(3);
    round.step(4);
    EXPECT_EQ(partPlaces(), std::vector<Pixel>(3, {171, 160}))
        << "before there is any history to stand on, on the entry of the last step";
    round.step(2);
    EXPECT_EQ(partPlaces(), std::vector<Pixel>(3, {161, 160}));
    act(round, *snake, {.down = true}, 10);
    // 32 pixels right, then 16 down: the last entry is a pixel behind the head.
    expectAt({192, 176});
    EXPECT_EQ(partPlaces(), (std::vector<Pixel>{{191, 160}, {175, 160}, {175, 160}}));
    round.step();
    EXPECT_EQ(partPlaces(), (std::vector<Pixel>{{192, 162}, {178, 160}, {162, 160}}));
    EXPECT_EQ(std::get<2>(snake->snakeParts[0]), Facing::Down);
    EXPECT_EQ(std::get<2>(snake->snakeParts[1]), Facing::Right);
}

constexpr Square behind{1, 3};
constexpr Square below{2, 4};

// The head looks at a pillar, and what is below it is all that may be open; its body is where it came from.
TEST(SnakeInANook, EndsWhereThereIsNoWayOutEvenUnderAShield) {
    struct Row {
        const char* what;
        void (*put)(const std::shared_ptr<Player>& snake);
        bool trapped;
    };
    const Row rows[] = {
        {"a pillar", [](auto&) { squareGrid.set(below, SquareKind::GridBlock); }, true},
        {"a wall", [](auto&) { squareGrid.set(below, SquareKind::Wall); }, false},
        {"a bomb", [](auto& snake) { placeBomb(below, snake, 5000); }, false},
        {"its own body", [](auto& snake) { layParts(*snake, behind, 5, below); }, true},
    };
    for (const Row& row : rows) {
        for (const bool ai : {false, true}) {
            TestRound round({.rows = {"########", "#......#", "#.XX...#", "#..XX..#", "#......#", "########"},
                             .version = replayOutputVersion});
            const auto snake = round.addSnake({2, 3}, Facing::Right, 6, ai);
            layParts(*snake, behind, 0, behind);
            row.put(snake);
            snake->shield = true;
            snake->shieldTimer = 100;
            round.step();
            const char* end = ai ? "dead, shielded" : "crawling, shielded";
            EXPECT_EQ(formOf(*snake), row.trapped ? end : "snake of 6, shielded") << row.what;
        }
    }
}

TEST_F(SnakeForm, IsNotTrappedBetweenTheLines) {
    snake->x += 5;
    for (const Square wall : {Square{6, 5}, Square{5, 4}, Square{5, 6}}) {
        squareGrid.set(wall, SquareKind::GridBlock);
    }
    round.step();
    EXPECT_TRUE(snake->isSnake());
    expectAt({162, 160});
    round.step();
    EXPECT_TRUE(snake->crawling) << "once it is back on the line it is";
}

}  // namespace
}  // namespace vandrel
