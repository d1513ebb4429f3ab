// Snake form: the head's path, turns, what blocks it and what it eats, its body, its way out.
#include <gtest/gtest.h>

#include "support/round_fixture.h"

namespace vandrel {
namespace {

std::vector<Pixel> partPlaces(const Player& snake) {
    std::vector<Pixel> places;
    for (const auto& [x, y, facing] : snake.snakeParts) {
        places.push_back({x, y});
    }
    return places;
}

TEST(SnakeForm, MovesByItselfAndTurnsOnGridLinesOnly) {
    TestRound round({.size = {30, 11}});
    const auto snake = round.addSnake({5, 5}, Facing::Right, 4);
    round.step(5);
    EXPECT_EQ(snake->position(), (Pixel{175, 160}));
    round.hold(*snake, {.down = true});
    round.step(5);
    EXPECT_EQ(snake->position(), (Pixel{190, 160})) << "not yet";
    round.step();
    EXPECT_EQ(snake->position(), (Pixel{192, 161})) << "two pixels on, one down, in one frame";
    EXPECT_EQ(snake->facing, Facing::Down);
}

TEST(SnakeForm, ForwardAndBackwardAreNoTurnAndABlockedSideIsNone) {
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
        TestRound round;
        const auto snake = round.addSnake({5, 5}, Facing::Right, 4);
        snake->snakeParts.clear();
        squareGrid.set(5, 4, row.kindAbove);
        round.hold(*snake, row.keys);
        round.step();
        EXPECT_EQ(snake->facing, row.facing);
    }
}

// On the line the head asks before it enters; between the lines it goes on to the next.
TEST(SnakeForm, StandsStillOnTheLineBeforeWhatBlocksItUntilItIsTurned) {
    enum class Thing { Pillar, Edge, Head, Body };
    for (const Thing thing : {Thing::Pillar, Thing::Edge, Thing::Head, Thing::Body}) {
        TestRound round({.version = replayOutputVersion});
        const auto snake = round.addSnake({4, 5}, Facing::Right, 4);
        if (thing == Thing::Pillar || thing == Thing::Edge) {
            squareGrid.set(6, 5, thing == Thing::Pillar ? SquareKind::GridBlock : SquareKind::EdgeWall);
        } else {
            const auto other = round.addSnake(thing == Thing::Head ? Square{6, 5} : Square{6, 8}, Facing::Up, 2);
            other->stopTimer = 1000;
            other->snakeParts.assign(2, {6 * 32, (thing == Thing::Head ? 7 : 5) * 32, Facing::Up});
        }
        round.step(30);
        EXPECT_EQ(snake->position(), (Pixel{160, 160})) << static_cast<int>(thing);
        EXPECT_TRUE(snake->isSnake());
        round.hold(*snake, {.down = true});
        round.step();
        EXPECT_EQ(snake->position(), (Pixel{160, 163})) << static_cast<int>(thing);
    }
}

TEST(SnakeForm, BetweenTheLinesABodyAheadDoesNotStopIt) {
    TestRound round;
    const auto snake = round.addSnake({5, 5}, Facing::Right, 4);
    snake->x += 5;
    const auto other = round.addSnake({6, 8}, Facing::Up, 2);
    other->stopTimer = 1000;
    other->snakeParts.assign(2, {6 * 32, 5 * 32, Facing::Up});
    round.step();
    EXPECT_EQ(snake->position(), (Pixel{168, 160}));
}

TEST(SnakeForm, AHeadThatAWallSurprisesBetweenTheLinesGoesBackToItsSquare) {
    TestRound round;
    const auto snake = round.addSnake({5, 5}, Facing::Right, 4);
    snake->x += 10;
    squareGrid.set(6, 5, SquareKind::EdgeWall);
    round.step(2);
    EXPECT_EQ(snake->position(), (Pixel{164, 160}));
    round.step(5);
    EXPECT_EQ(snake->position(), (Pixel{160, 160}));
}

TEST(SnakeForm, TwoThatMeetHeadOnStandBeforeEachOther) {
    TestRound round({.size = {20, 11}});
    const auto left = round.addSnake({3, 5}, Facing::Right, 4);
    const auto right = round.addSnake({12, 5}, Facing::Left, 4);
    round.step(200);
    EXPECT_TRUE(left->isSnake() && right->isSnake());
    EXPECT_EQ(right->square().x - left->square().x, 1);
    EXPECT_EQ(left->x % 32 + right->x % 32, 0);
}

TEST(SnakeForm, EatsAWallOnceItStandsOnItsSquareWithWhatItHides) {
    for (const int kind : {SquareKind::Wall, SquareKind::HardWall, SquareKind::HardWallHitTwice}) {
        TestRound round({.size = {20, 11}});
        const auto snake = round.addSnake({5, 5}, Facing::Right, 4);
        squareGrid.set(6, 5, kind);
        bonusGrid.at(6, 5) = Bonus::Stop;
        round.step(10);
        EXPECT_EQ(snake->position(), (Pixel{190, 160}));
        EXPECT_EQ(squareGrid.at(6, 5), kind);
        round.step();
        EXPECT_EQ(squareGrid.at(6, 5), SquareKind::Empty);
        EXPECT_EQ(bonusGrid.at(6, 5), 0);
        EXPECT_EQ(snake->snakeLengthNow(), 5);
        EXPECT_EQ(snake->snakeParts.size(), 5U);
    }
}

TEST(SnakeForm, EatsPowerupsOfAnySortForTheirLengthOnly) {
    TestRound round({.size = {20, 11}});
    const auto other = round.addPlayer({1, 1});
    const auto snake = round.addSnake({5, 5}, Facing::Right, 4);
    bonusGrid.at(6, 5) = Bonus::Stop;
    bonusGrid.at(7, 5) = Bonus::Death;
    round.step(30);
    EXPECT_EQ(snake->snakeLengthNow(), 6);
    EXPECT_EQ(other->stopTimer, 0);
    EXPECT_EQ(bonusGrid.at(6, 5) + bonusGrid.at(7, 5), 0);
    EXPECT_TRUE(round.toastTexts().empty());
}

TEST(SnakeForm, PassesCrumblingWallsAndBombsAndLaysNone) {
    TestRound round({.size = {20, 11}});
    const auto snake = round.addSnake({5, 5}, Facing::Right, 4);
    squareGrid.set(6, 5, SquareKind::WallCrumbling);
    placeBomb({7, 5}, round.addPlayer({1, 1}), 5000);
    round.hold(*snake, {.fire = true});
    round.step(32);
    EXPECT_EQ(snake->x, 160 + 96);
    EXPECT_EQ(snake->bombsPlaced, 0);
    EXPECT_EQ(snake->snakeLengthNow(), 4);
}

TEST(SnakeBody, UnfoldsFromOneSpotWithSixteenPixelsOfPathBetweenParts) {
    TestRound round({.size = {20, 11}});
    const auto snake = round.addSnake({5, 5}, Facing::Right, 3);
    round.step(4);
    EXPECT_EQ(partPlaces(*snake), (std::vector<Pixel>{{171, 160}, {171, 160}, {171, 160}}))
        << "before there is any history to stand on, on the entry of the last step";
    round.step(2);
    EXPECT_EQ(partPlaces(*snake), (std::vector<Pixel>{{161, 160}, {161, 160}, {161, 160}}));
    round.hold(*snake, {.down = true});
    round.step(10);
    // 32 pixels right, then 16 down: the last entry is a pixel behind the head.
    EXPECT_EQ(snake->position(), (Pixel{192, 176}));
    EXPECT_EQ(partPlaces(*snake), (std::vector<Pixel>{{191, 160}, {175, 160}, {175, 160}}));
    round.step();
    EXPECT_EQ(partPlaces(*snake), (std::vector<Pixel>{{192, 162}, {178, 160}, {162, 160}}));
    EXPECT_EQ(std::get<2>(snake->snakeParts[0]), Facing::Down);
    EXPECT_EQ(std::get<2>(snake->snakeParts[1]), Facing::Right);
}

TEST(SnakeBody, DropsWhatIsBehindANewLengthAtTheNextStep) {
    TestRound round({.size = {30, 11}});
    const auto snake = round.addSnake({5, 5}, Facing::Right, 8);
    round.step(60);
    snake->setSnakeLength(4);
    EXPECT_EQ(snake->snakeParts.size(), 8U);
    round.step();
    EXPECT_EQ(snake->snakeParts.size(), 4U);
}

// The head stands in a nook that is open only behind it.
TEST(SnakeForm, EndsWhereThereIsNoWayOutEvenUnderAShield) {
    enum class Way { None, Wall, Bomb, Body };
    for (const Way way : {Way::None, Way::Wall, Way::Bomb, Way::Body}) {
        for (const bool ai : {false, true}) {
            TestRound round({.rows = {"########", "#......#", "#.XX...#", "#..XX..#", "#......#", "########"},
                             .version = replayOutputVersion});
            // (3, 3) is a pillar: open on row 3 is (2, 3), with pillars right and above.
            squareGrid.set(2, 4, SquareKind::GridBlock);
            if (way == Way::Wall) {
                squareGrid.set(2, 4, SquareKind::Wall);
            } else if (way == Way::Bomb || way == Way::Body) {
                squareGrid.set(2, 4, SquareKind::Empty);
            }
            const auto snake = round.addSnake({2, 3}, Facing::Right, 6, ai);
            snake->snakeParts.assign(6, {1 * 32, 3 * 32, Facing::Right});
            if (way == Way::Bomb) {
                placeBomb({2, 4}, snake, 5000);
            } else if (way == Way::Body) {
                snake->snakeParts.back() = {2 * 32, 4 * 32, Facing::Up};
            }
            snake->shield = true;
            snake->shieldTimer = 100;
            round.step();
            const bool trapped = way == Way::None || way == Way::Body;
            EXPECT_EQ(snake->isSnake(), !trapped) << static_cast<int>(way);
            EXPECT_EQ(snake->dead, trapped && ai);
            EXPECT_EQ(snake->crawling, trapped && !ai);
        }
    }
}

TEST(SnakeForm, IsNotTrappedBetweenTheLines) {
    TestRound round;
    const auto snake = round.addSnake({5, 5}, Facing::Right, 4);
    snake->x += 5;
    for (const Square wall : {Square{6, 5}, Square{5, 4}, Square{5, 6}}) {
        squareGrid.set(wall, SquareKind::GridBlock);
    }
    round.step();
    EXPECT_TRUE(snake->isSnake());
    EXPECT_EQ(snake->x, 162);
    round.step();
    EXPECT_TRUE(snake->crawling) << "once it is back on the line it is";
}

}  // namespace
}  // namespace vandrel
