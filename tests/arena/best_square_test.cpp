#include <gtest/gtest.h>

#include <vector>

#include "arena/square_score.h"
#include "base/random.h"
#include "support/round_fixture.h"

namespace vandrel {
namespace {

TEST(FindBestSquare, TakesTheFirstOfEqualsRowByRow) {
    const TestRound round({.size = {9, 7}});
    std::vector<Square> visited;
    const auto best = findBestSquare({1, 1}, {3, 2}, [&](Square square) {
        visited.push_back(square);
        return square.x == 1 ? 0.0f : 5.0f;
    });
    EXPECT_EQ(best, (Square{2, 1}));
    EXPECT_EQ(visited, (std::vector<Square>{{1, 1}, {2, 1}, {3, 1}, {1, 2}, {2, 2}, {3, 2}}));
}

TEST(FindBestSquare, PassesOverPillarsAndEdgeWalls) {
    const TestRound round({.size = {9, 7}, .pillars = true});
    EXPECT_EQ(findBestSquare({0, 0}, {2, 2}, [](Square square) { return static_cast<float>(square.x + square.y); }),
              (Square{2, 1}));
    EXPECT_EQ(findBestSquare({0, 0}, {8, 0}, [](Square) { return 1.0f; }), std::nullopt);
    EXPECT_EQ(findBestSquare({2, 2}, {2, 2}, [](Square) { return 1.0f; }), std::nullopt);
}

// The twister's first outputs are 3499211612, 581869302, 3890346734, 3586334585, 545404204, 4161255391.
TEST(SampleBestSquare, DrawsXThenYFromTheRoundsOwnSource) {
    TestRound round({.size = {12, 12}});
    std::vector<Square> seen;
    const auto best = round.game().sampleBestSquare(
        {1, 1}, {10, 10},
        [&](Square square) {
            seen.push_back(square);
            return 1.0f;
        },
        2);
    const Square first{1 + 3499211612U % 10U, 1 + 581869302U % 10U};
    const Square second{1 + 3890346734U % 10U, 1 + 3586334585U % 10U};
    EXPECT_EQ(seen, (std::vector<Square>{first, second}));
    EXPECT_EQ(best, first) << "an equal score does not replace";
}

TEST(SampleBestSquare, DrawsAgainWhereNothingCanStand) {
    TestRound round({.size = {12, 12}});
    const Square first{1 + 3499211612U % 10U, 1 + 581869302U % 10U};
    squareGrid.set(first, SquareKind::GridBlock);
    const auto best = round.game().sampleBestSquare(
        {1, 1}, {10, 10}, [](Square) { return 1.0f; }, 1);
    EXPECT_EQ(best, (Square{1 + 3890346734U % 10U, 1 + 3586334585U % 10U}));
}

TEST(SampleBestSquare, GivesUpAtThePairAfterTheThousandthAndWhatWasDrawnStaysDrawn) {
    TestRound round({.size = {9, 7}});
    EXPECT_EQ(round.game().sampleBestSquare(
                  {0, 0}, {8, 0}, [](Square) { return 1.0f; }, 3),
              std::nullopt);
    std::mt19937 expected;
    for (int i = 0; i < 1001; ++i) {
        uniformInt(expected, 0, 8);  // one row: y takes no output
    }
    EXPECT_EQ(round.game().spawnRng, expected);
}

TEST(SampleBestSquare, WithoutSamplesIsEmptyAndDrawsNothing) {
    TestRound round({.size = {9, 7}});
    EXPECT_EQ(round.game().sampleBestSquare(
                  {1, 1}, {7, 5}, [](Square) { return 1.0f; }, 0),
              std::nullopt);
    EXPECT_EQ(round.game().spawnRng, std::mt19937{});
}

TEST(ClearAround, OpensAPlusAndSparesWhatCannotBreak) {
    TestRound round(
        {.rows = {"#########", "#wwwwwww#", "#wwXwwww#", "#wwwwwww#", "#wwwwwww#", "#wwwwwww#", "#########"}});
    bonusGrid.at(3, 3) = Bonus::Cash;
    clearAround({3, 3}, 2, false);
    for (const Square square : {Square{3, 3}, Square{1, 3}, Square{5, 3}, Square{3, 1}, Square{3, 5}}) {
        EXPECT_EQ(squareGrid.at(square), SquareKind::Empty);
    }
    EXPECT_EQ(squareGrid.at(3, 2), SquareKind::GridBlock);
    EXPECT_EQ(squareGrid.at(2, 2), SquareKind::Wall);
    EXPECT_EQ(squareGrid.at(6, 3), SquareKind::Wall);
    EXPECT_EQ(bonusGrid.at(3, 3), 0);
    clearAround({3, 3}, 9, true);
    EXPECT_EQ(squareGrid.at(3, 2), SquareKind::Empty);
    EXPECT_EQ(squareGrid.at(0, 3), SquareKind::EdgeWall);
}

TEST(Squares, ThePixelConversionsAreNotInterchangeable) {
    EXPECT_EQ(squareUnder({15, 16}), (Square{0, 1}));
    EXPECT_EQ(squareAtPixel({31, 32}), (Square{0, 1}));
    EXPECT_EQ(squareToPixel({2, 3}), (Pixel{64, 96}));
    EXPECT_EQ(leadingPixel({100, 200}, Facing::Right), (Pixel{131, 216}));
    EXPECT_EQ(leadingPixel({100, 200}, Facing::Up), (Pixel{116, 200}));
    EXPECT_EQ(leadingPixel({100, 200}, Facing::Left), (Pixel{100, 216}));
    EXPECT_EQ(leadingPixel({100, 200}, Facing::Down), (Pixel{116, 231}));
}

}  // namespace
}  // namespace vandrel
