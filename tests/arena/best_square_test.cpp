#include <gtest/gtest.h>

#include <vector>

#include "arena/square_score.h"
#include "base/random.h"
#include "support/round_fixture.h"

namespace vandrel {
namespace {

constexpr auto equal = [](Square /*square*/) { return 1.0f; };

TEST(FindBestSquare, TakesTheFirstOfEqualsRowByRowAndPassesOverPillarsAndEdgeWalls) {
    const TestRound round({.size = {9, 7}, .pillars = true});
    std::vector<Square> visited;
    const auto best = findBestSquare({0, 1}, {4, 2}, [&](Square square) {
        visited.push_back(square);
        return square.x == 1 ? 0.0f : 5.0f;
    });
    EXPECT_EQ(visited, (std::vector<Square>{{1, 1}, {2, 1}, {3, 1}, {4, 1}, {1, 2}, {3, 2}}));
    EXPECT_EQ(best, (Square{2, 1}));
    EXPECT_EQ(findBestSquare({0, 0}, {8, 0}, equal), std::nullopt);
    EXPECT_EQ(findBestSquare({2, 2}, {2, 2}, equal), std::nullopt);
}

// What is drawn, and in which order, is told by the golden rounds.
TEST(SampleBestSquare, GivesUpAtThePairAfterTheThousandthAndWhatWasDrawnStaysDrawn) {
    TestRound round({.size = {9, 7}});
    std::mt19937 expected;
    EXPECT_EQ(round.game().sampleBestSquare({1, 1}, {7, 5}, equal, 0), std::nullopt);
    EXPECT_EQ(round.game().spawnRng, expected) << "without samples";
    EXPECT_EQ(round.game().sampleBestSquare({0, 0}, {8, 0}, equal, 3), std::nullopt);
    for (int i = 0; i < 1001; ++i) {
        uniformInt(expected, 0, 8);  // one row: y takes no output
    }
    EXPECT_EQ(round.game().spawnRng, expected);
}

TEST(ClearAround, OpensAPlusAndSparesWhatCannotBreak) {
    TestRound round(
        {.rows = {"#########", "#wwwwwww#", "#wwXwwww#", "#wwwwwww#", "#wwwwwww#", "#wwwwwww#", "#########"}});
    clearAround({3, 3}, 2, false);
    for (const Square square : {Square{3, 3}, Square{1, 3}, Square{5, 3}, Square{3, 1}, Square{3, 5}}) {
        EXPECT_EQ(squareGrid.at(square), SquareKind::Empty);
    }
    EXPECT_EQ(squareGrid.at(3, 2), SquareKind::GridBlock);
    EXPECT_EQ(squareGrid.at(2, 2), SquareKind::Wall);
    EXPECT_EQ(squareGrid.at(6, 3), SquareKind::Wall);
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
