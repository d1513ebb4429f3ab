#include <gtest/gtest.h>

#include <set>
#include <string>
#include <vector>

#include "support/round_fixture.h"

namespace vandrel {
namespace {

// The way of the closing walls as one would draw it with a pencil: on an arena of 19 x 11 four closed rings around a
// row of nine squares. A side of a ring is walked clockwise and ends before its last corner, which belongs to the next
// side, or to whichever cursor came there first.
using Path = std::vector<Square>;

constexpr Square arena{19, 11};
constexpr int rings = 4;  // counted from 1, the outermost
constexpr Square middle{9, 5};

Path line(Square from, Square step, int squares) {
    Path path;
    for (int i = 0; i < squares; ++i) {
        path.emplace_back(from.x + i * step.x, from.y + i * step.y);
    }
    return path;
}

Path side(int ring, char name) {
    const int right = arena.x - 1 - ring;
    const int bottom = arena.y - 1 - ring;
    switch (name) {
        case 't':
            return line({ring, ring}, {1, 0}, right - ring);
        case 'r':
            return line({right, ring}, {0, 1}, bottom - ring);
        case 'b':
            return line({right, bottom}, {-1, 0}, right - ring);
        default:
            return line({ring, bottom}, {0, -1}, bottom - ring);
    }
}

// A cursor's way: the sides that it walks in each ring, outermost first, and then a part of the middle row.
Path wayOf(const std::vector<std::string>& sides, const Path& end) {
    Path way;
    for (int ring = 1; ring <= rings; ++ring) {
        for (const char name : sides[static_cast<std::size_t>(ring - 1)]) {
            const Path next = side(ring, name);
            way.insert(way.end(), next.begin(), next.end());
        }
    }
    way.insert(way.end(), end.begin(), end.end());
    return way;
}

struct Spiral {
    int style;
    std::vector<Path> ways;
};

std::vector<Spiral> spirals() {
    const Path wholeRow = line({5, 5}, {1, 0}, 9);
    const Path fromLeft = line({5, 5}, {1, 0}, 5);
    const Path fromRight = line({13, 5}, {-1, 0}, 5);
    return {
        {1, {wayOf({"trbl", "trbl", "trbl", "trbl"}, wholeRow)}},
        // Each meets the other's start and goes on in the other's half of the next ring.
        {2, {wayOf({"tr", "bl", "tr", "bl"}, fromLeft), wayOf({"bl", "tr", "bl", "tr"}, fromRight)}},
        // Pairs end on one half of the middle row, side by side.
        {3,
         {wayOf({"t", "r", "b", "l"}, fromLeft), wayOf({"r", "b", "l", "t"}, fromRight),
          wayOf({"b", "l", "t", "r"}, fromRight), wayOf({"l", "t", "r", "b"}, fromLeft)}},
    };
}

std::set<std::pair<int, int>> laidSquares() {
    std::set<std::pair<int, int>> laid;
    for (int x = 1; x < arena.x - 1; ++x) {
        for (int y = 1; y < arena.y - 1; ++y) {
            if (squareGrid.at(x, y) == SquareKind::EdgeWall) {
                laid.emplace(x, y);
            }
        }
    }
    return laid;
}

// Pillars, as in most rounds, are walled over and turn no cursor.
RoundSetup closingSoon() {
    RoundSetup setup;
    setup.size = arena;
    setup.mode = GameMode::Deathmatch;
    setup.pillars = true;
    setup.tune = [](GameOptions& options) {
        options.shrinkingOn = true;
        options.shrinkSpeedFrames = 1;
    };
    return setup;
}

void startClosing(Game& game) {
    game.shrinkState = ShrinkState::Warning;
    game.shrinkCountdown = -499;
    game.updateShrink();
}

TEST(Spiral, LaysSquareBySquareToTheCloseInEachStyle) {
    for (const Spiral& spiral : spirals()) {
        SCOPED_TRACE(spiral.style);
        TestRound round(closingSoon());
        gameOptions.shrinkStyleResolved = spiral.style;
        startClosing(round.game());
        ASSERT_EQ(round.game().shrinkState, ShrinkState::Shrinking);
        std::set<std::pair<int, int>> expected;
        const std::size_t steps = spiral.ways.front().size();
        for (std::size_t step = 0; step < steps; ++step) {
            EXPECT_EQ(round.game().shrinkState, ShrinkState::Shrinking) << "not closed before step " << step + 1;
            for (const Path& way : spiral.ways) {
                ASSERT_EQ(way.size(), steps) << "all come to the end together";
                expected.emplace(way[step].x, way[step].y);
            }
            round.step();
            ASSERT_EQ(laidSquares(), expected) << "after step " << step + 1;
        }
        EXPECT_EQ(expected.size(), 17U * 9U);
        EXPECT_EQ(round.game().shrinkState, ShrinkState::Finished);
        round.step(20);
        EXPECT_EQ(laidSquares(), expected);
        for (const ShrinkCursor& cursor : round.game().shrinkCursors) {
            EXPECT_EQ(cursor.y, middle.y) << "is left in the arena's middle row";
        }
    }
}

// Whoever waits to come back asks this: the first cursor stands in the middle row, with walls above and below it. It
// passes that row in the sides of each ring before, with the square ahead of it still open.
TEST(Spiral, IsAlmostClosedFromTheMiddleRowOn) {
    struct Row {
        int style;
        int steps;
        Square cursor;
    };
    constexpr Row rows[] = {
        {1, 143, {4, 5}},  // the last square of the innermost ring's left side
        {2, 71, {14, 5}},  // of its right side: the first cursor is the one from the bottom right
        {3, 36, {5, 5}},   // the middle row itself, which it enters from below
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.style);
        TestRound round(closingSoon());
        gameOptions.shrinkStyleResolved = row.style;
        startClosing(round.game());
        EXPECT_EQ(round.stepUntil([&] { return round.game().isArenaAlmostClosed(); }), row.steps);
        EXPECT_EQ(round.game().shrinkCursors.front().square(), row.cursor);
        while (round.game().shrinkState != ShrinkState::Finished) {
            round.step();
            EXPECT_TRUE(round.game().isArenaAlmostClosed());
        }
    }
}

}  // namespace
}  // namespace vandrel
