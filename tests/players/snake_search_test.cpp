#include "players/snake_search.h"

#include <gtest/gtest.h>

#include <random>
#include <string>
#include <vector>

#include "base/random.h"
#include "players/snake_choice.h"
#include "snake_scene.h"
#include "snake_search_reference.h"

namespace vandrel {

namespace {

using test::SceneSize;
using test::SnakeScene;

// Sanitized code is slow; fewer boards are enough there.
#if defined(__SANITIZE_ADDRESS__) || defined(__SANITIZE_THREAD__)
constexpr int randomBoards = 200;
#else
constexpr int randomBoards = 2000;
#endif

struct RandomBoard {
    SceneSize size;
    int depth;
};

// Every depth from 1 to 12 comes up in every company. Deep in an open arena the plain search is too slow for a crowd.
RandomBoard randomBoard(int index, std::mt19937& generator) {
    const auto upTo = [&](unsigned most) { return static_cast<int>(generator() % (most + 1)); };
    RandomBoard board{.size = {}, .depth = 1 + index % 12};
    board.size.pillars = index % 5 != 0;
    board.size.wallPercent = upTo(60);
    board.size.cursors = upTo(3);
    const bool crowded = board.size.pillars || board.depth <= 6;
    board.size.otherSnakes = upTo(!crowded ? 2 : index % 2 == 0 ? 30 : 4);
    board.size.humans = upTo(crowded ? 100 : 6);
    if (index % 3 == 0) {
        board.size.width = 27;
        board.size.height = 15;
    }
    return board;
}

TEST(SnakeSearch, FindsWhatThePlainSearchFindsOnRandomBoards) {
    std::mt19937 generator(20240229);
    for (int index = 0; index < randomBoards; ++index) {
        const RandomBoard board = randomBoard(index, generator);
        const SnakeScene scene(board.size, generator);
        constexpr int aggressiveness[] = {-1, 0, 1, 2, 5};
        gameOptions.snakeAggressiveness = aggressiveness[generator() % 5];
        const int wallValue = 1 + static_cast<int>(generator() % 2);

        const test::ReferenceDecision expected =
            test::referenceDecision(*scene.game, scene.chooser, board.depth, wallValue);
        const SnakeBoard searched(*scene.game, *scene.chooser, scene.chooser->square(), board.depth, wallValue);
        std::vector<DirectionFound> found;
        for (const auto& [direction, result] : expected.found) {
            found.push_back({direction, searched.checkDirection(direction)});
            ASSERT_EQ(found.back().result.score, result.score) << "board " << index << ", depth " << board.depth;
            ASSERT_EQ(found.back().result.paths, result.paths) << "board " << index << ", depth " << board.depth;
        }
        ASSERT_EQ(chooseDirection(found, false), expected.chosen) << "board " << index;
    }
}

// Worked out by hand. The snake is in a passage one square wide, so that the ends of each path can be counted.
TEST(SnakeSearch, CountsSquaresWallsPeopleAndEnds) {
    struct Passage {
        const char* what;
        std::string row;
        int depth;
        int wallValue;
        int aggressiveness;
        CheckDirectionResult expected;
    };
    const Passage passages[] = {
        {"no depth at all looks at nothing", "#H#..#", 0, 1, 0, {0, 1}},
        {"blocked at once", "#H#..#", 5, 1, 0, {-2, 1}},
        {"a pillar blocks too", "#H%..#", 5, 1, 0, {-2, 1}},
        {"another head", "#Ho..#", 5, 1, 0, {-2, 1}},
        {"a body", "#Hb..#", 5, 1, 0, {-2, 1}},
        {"a closing wall at once", "#Hc..#", 5, 1, 0, {-1, 1}},
        {"a body under a closing wall", "#HC..#", 5, 1, 0, {-2, 1}},
        {"the way back to the head is no path", "#H...#", 1, 1, 0, {1, 3}},
        {"two squares", "#H...#", 2, 1, 0, {2, 6}},
        {"meeting itself costs nothing", "#H...#", 3, 1, 0, {3, 9}},
        {"a dead end within the depth", "#H.#.#", 4, 1, 0, {0, 3}},
        {"two squares and the end", "#H..##", 5, 1, 0, {2, 6}},
        {"a closing wall behind one square", "#H.c.#", 4, 1, 0, {0, 3}},
        {"a wall", "#Hw..#", 3, 2, 0, {4, 9}},
        {"a hard wall", "#Hv..#", 3, 2, 0, {4, 9}},
        {"a crumbling wall is floor", "#H~..#", 3, 2, 0, {3, 9}},
        {"a wall at the target length", "#Hw..#", 3, 1, 0, {3, 9}},
        {"a human, by the steps left", "#H.p.#", 3, 1, 3, {9, 9}},
        {"a human sooner", "#Hp..#", 3, 1, 3, {12, 9}},
        {"a human as the last square", "#H..p#", 3, 1, 3, {6, 9}},
        {"a human to be shunned", "#H.p.#", 3, 1, -1, {1, 9}},
        {"rockets", "#H.r.#", 3, 1, -1, {23, 9}},
        {"ultrabomb", "#H.u.#", 3, 1, 0, {23, 9}},
        {"top speed", "#H.s.#", 3, 1, 1, {23, 9}},
        {"a ghost", "#H.g.#", 3, 1, 3, {3, 9}},
        {"the dead", "#H.D.#", 3, 1, 3, {3, 9}},
        {"a ghost hides who stands behind", "#H.2.#", 3, 1, 3, {3, 9}},
        {"a ghost behind hides nobody", "#H.3.#", 3, 1, 3, {9, 9}},
    };
    for (const Passage& passage : passages) {
        const std::string wall(passage.row.size(), '#');
        const SnakeScene scene({wall, passage.row, wall});
        gameOptions.snakeAggressiveness = passage.aggressiveness;
        const SnakeBoard board(*scene.game, *scene.chooser, {1, 1}, passage.depth, passage.wallValue);
        const auto [score, paths] = board.checkDirection({1, 0});
        EXPECT_EQ(score, passage.expected.score) << passage.what;
        EXPECT_EQ(paths, passage.expected.paths) << passage.what;
    }
}

// An arena whose ring is broken is a fault of the program, and is told.
TEST(SnakeSearch, APathOffTheGridThrows) {
    const SnakeScene scene({"#####", "#H...", "#####"});
    for (const int depth : {4, 5, 6, 9}) {
        const SnakeBoard board(*scene.game, *scene.chooser, {1, 1}, depth, 1);
        EXPECT_THROW(board.checkDirection({1, 0}), std::out_of_range) << depth;
    }
    EXPECT_EQ(SnakeBoard(*scene.game, *scene.chooser, {1, 1}, 3, 1).checkDirection({1, 0}),
              (CheckDirectionResult{3, 9}));
}

constexpr Square down{0, 1};
constexpr Square up{0, -1};
constexpr Square left{-1, 0};
constexpr Square right{1, 0};

TEST(SnakeChoice, TakesScoreThenPathsThenTheFirst) {
    struct Case {
        const char* what;
        std::vector<DirectionFound> found;
        Square expected;
    };
    const Case cases[] = {
        {"score", {{down, {3, 900}}, {up, {4, 1}}, {left, {-2, 1}}}, up},
        {"paths", {{down, {4, 10}}, {left, {4, 12}}, {right, {4, 11}}}, left},
        {"the first of equals", {{up, {4, 10}}, {left, {4, 10}}, {right, {4, 10}}}, up},
        {"all blocked", {{down, {-2, 1}}, {up, {-2, 1}}, {right, {-1, 1}}}, right},
        {"a sum of paths that wrapped around", {{down, {4, -7}}, {up, {4, 3}}, {right, {3, 9}}}, up},
    };
    for (const Case& row : cases) {
        EXPECT_EQ(chooseDirection(row.found, false), row.expected) << row.what;
    }
}

// How often the later of two directions of equal score is taken, of a thousand.
int timesTaken(int firstPaths, int laterPaths, int laterScore) {
    const DirectionFound found[] = {{down, {15, firstPaths}}, {up, {laterScore, laterPaths}}};
    int taken = 0;
    for (int i = 0; i < 1000; ++i) {
        taken += chooseDirection(found, true) == up ? 1 : 0;
    }
    return taken;
}

TEST(SnakeChoice, ALaterDirectionNearlyAsGoodMayWinByTheCoin) {
    seedGameRand(7);
    EXPECT_NEAR(timesTaken(20000, 18001, 15), 500, 80);
    EXPECT_NEAR(timesTaken(13000, 12001, 15), 500, 80);
    EXPECT_NEAR(timesTaken(13000, 13000, 15), 500, 80);
    EXPECT_EQ(timesTaken(20000, 18000, 15), 0) << "not above nine tenths";
    EXPECT_EQ(timesTaken(12500, 12000, 15), 0) << "too few paths";
    EXPECT_EQ(timesTaken(20000, 19000, 14), 0) << "a lower score";
    EXPECT_EQ(timesTaken(20000, 20001, 15), 1000) << "better needs no coin";
}

std::string logged;

TEST(SnakeChoice, TheDepthFollowsTheTimeOfADecision) {
    struct Case {
        long long milliseconds;
        bool pillars;
        int before;
        int after;
        const char* line;
    };
    const Case cases[] = {
        {0, true, 21, 22, "DEPTH UP!!! 22\n"},
        {2, true, 22, 22, ""},
        {2, false, 14, 15, "DEPTH UP!!! 15\n"},
        {0, false, 15, 15, ""},
        {2, true, 5, 6, "DEPTH UP!!! 6\n"},
        {3, true, 12, 12, ""},
        {6, true, 12, 12, ""},
        {7, true, 12, 11, "DEPTH DOWN 1 11\n"},
        {8, true, 12, 11, "DEPTH DOWN 1 11\n"},
        {9, true, 12, 10, "DEPTH DOWN 2 10\n"},
        {10, true, 12, 10, "DEPTH DOWN 2 10\n"},
        {11, false, 15, 12, "DEPTH DOWN 3 12\n"},
        {12, false, 15, 12, "DEPTH DOWN 3 12\n"},
        {13, true, 15, 11, "DEPTH DOWN 4 11\n"},
        {16, true, 15, 11, "DEPTH DOWN 4 11\n"},
        {17, true, 20, 12, "DEPTH DOWN 8 12\n"},
        {900, true, 22, 14, "DEPTH DOWN 8 14\n"},
        {17, true, 10, 8, "DEPTH DOWN 8 8\n"},
        {7, true, 9, 8, "DEPTH DOWN 1 8\n"},
        {900, true, 8, 8, ""},
        {900, false, 5, 5, ""},
    };
    const DebugOutput before =
        setDebugOutput([](const char* line, std::size_t length) { logged.append(line, length); });
    for (const Case& row : cases) {
        logged.clear();
        gameOptions.aiSearchDepth = row.before;
        gameOptions.gridBlocksResolved = row.pillars;
        adaptSearchDepth(row.milliseconds);
        EXPECT_EQ(gameOptions.aiSearchDepth, row.after) << row.milliseconds << " ms at " << row.before;
        EXPECT_EQ(logged.empty() ? "" : logged.substr(logged.find(": ") + 2), row.line);
    }
    setDebugOutput(before);
    gameOptions = GameOptions{};
}

// The whole way: a snake of the computer that is updated turns to where its search finds the best, never back.
TEST(SnakeChoice, ASnakeOfTheComputerTurnsToTheBestWay) {
    struct Case {
        const char* what;
        std::vector<std::string> rows;
        Facing expected;
    };
    const Case cases[] = {
        {"the only way", {"#####", "#.###", "#.###", "#H###", "#.###", "##.##", "#####"}, Facing::Up},
        {"bricks for a short snake",
         {"#######", "##.####", "##.####", "#.H..##", "##w####", "##w####", "#######"},
         Facing::Down},
        {"a human to eat", {"#######", "##p####", "##.####", "#.H..##", "##w####", "##w####", "#######"}, Facing::Up},
        {"on into the open", {"#######", "##.####", "##.####", "..H...#", "##.####", "#######"}, Facing::Right},
    };
    for (const Case& row : cases) {
        const SnakeScene scene(row.rows);
        gameOptions.snakeAggressiveness = 5;
        gameOptions.aiSearchDepth = 6;
        scene.chooser->setSnakeLength(2);
        scene.chooser->update(PackagedReplayData{}, scene.game.get(), false);
        EXPECT_EQ(scene.chooser->facing, row.expected) << row.what;
        EXPECT_NE(scene.chooser->position(), squareToPixel(Square{2, 3})) << row.what;
    }
}

}  // namespace

}  // namespace vandrel
