#include <gtest/gtest.h>

#include <algorithm>
#include <set>
#include <utility>
#include <vector>

#include "support/round_fixture.h"

namespace vandrel {
namespace {

using Squares = std::vector<Square>;

// People in an empty arena, dealt to the teams by turns.
class Crowd {
  public:
    Crowd(GameMode mode, int people, int teamCount, Square arena, bool pillars = false)
        : round_({.size = arena, .pillars = pillars, .mode = mode}) {
        gameOptions.numPlayers = people;
        for (int team = 0; team < teamCount; ++team) {
            round_.addTeam({});
        }
        for (int i = 0; i < people; ++i) {
            round_.addPlayer({1, 1}, teamCount == 0 ? -1 : i % teamCount);
        }
    }

    static Squares starts() { return Game::getInitialPlayerPositions(); }

  private:
    TestRound round_;
};

// `begin` is what the starts of each team, or of all where there are no teams, begin with.
void expectStarts(const char* what, GameMode mode, int people, int teamCount, Square arena,
                  const std::vector<Squares>& begin, bool pillars = false) {
    SCOPED_TRACE(what);
    const Crowd crowd(mode, people, teamCount, arena, pillars);
    const Squares found = Crowd::starts();
    std::set<std::pair<int, int>> different;
    for (int i = 0; i < people; ++i) {
        const Square start = found.at(static_cast<std::size_t>(i));
        EXPECT_TRUE(different.emplace(start.x, start.y).second) << "player " << i;
    }
    const std::size_t stride = std::max(begin.size(), teams.size());
    for (std::size_t team = 0; team < begin.size(); ++team) {
        for (std::size_t i = 0; i < begin[team].size(); ++i) {
            EXPECT_EQ(found[team + i * stride], begin[team][i]) << "team " << team << ", member " << i;
        }
    }
}

TEST(Placement, FollowsTheListOrTheWalkOfItsMode) {
    expectStarts("corners, the middle, the edges", GameMode::Classic, 9, 0, {27, 15},
                 {{{1, 1}, {25, 13}, {1, 13}, {25, 1}, {13, 7}, {13, 1}, {13, 13}, {1, 7}, {25, 7}}});
    expectStarts("two teams walk inward from opposite ends, and go on in the next column", GameMode::CaptureTheFlag, 14,
                 2, {19, 11},
                 {{{1, 1}, {1, 9}, {1, 3}, {1, 7}, {1, 5}, {3, 1}, {3, 9}},
                  {{17, 9}, {17, 1}, {17, 7}, {17, 3}, {17, 5}, {15, 9}, {15, 1}}});
    expectStarts("four teams spread along their edges from their bases", GameMode::KingOfTheHill, 16, 4, {27, 15},
                 {{{1, 7}, {1, 9}, {1, 5}, {3, 7}},
                  {{25, 7}, {25, 9}, {25, 5}, {23, 7}},
                  {{13, 1}, {15, 1}, {11, 1}, {9, 1}},
                  {{13, 13}, {15, 13}, {11, 13}, {9, 13}}});
    expectStarts("three teams use the first three bases", GameMode::Everything, 3, 3, {27, 15},
                 {{{1, 7}}, {{25, 7}}, {{13, 1}}});
    expectStarts("more teams than bases stand far apart, the first anywhere", GameMode::Everything, 6, 6, {27, 15},
                 {{{1, 1}}, {{25, 13}}});
    const std::vector<Squares> royale{
        {{1, 1}, {3, 1}, {1, 3}}, {{29, 17}}, {{1, 17}}, {{29, 1}}, {{15, 1}}, {{15, 17}}, {{1, 9}}, {{29, 9}}};
    expectStarts("royale teams in corners and edges, mates two steps off, never outside or on a pillar",
                 GameMode::BattleRoyale, 24, 8, {31, 19}, royale, true);
    expectStarts("the ninth royale team: nine from an edge base, more from the rest", GameMode::BattleRoyale, 9, 9,
                 {31, 19}, {{}, {}, {}, {}, {}, {}, {}, {}, {{10, 9}}});
}

TEST(Placement, TheInnerStartsOfTheListDependOnTheArenaSize) {
    struct Case {
        int arenaSize;
        Square size;
        Square tenth;       // middle less (a, b)
        Square fourteenth;  // (c + 1, c + 1)
        Square seventeenth;
    };
    for (const Case& c : {Case{3, {27, 15}, {9, 5}, {3, 3}, {3, 11}}, Case{4, {31, 19}, {9, 5}, {5, 5}, {5, 13}},
                          Case{6, {59, 35}, {19, 11}, {7, 7}, {7, 27}}, Case{7, {75, 43}, {21, 11}, {15, 15}, {15, 27}},
                          Case{8, {119, 67}, {55, 31}, {3, 3}, {3, 63}}}) {
        SCOPED_TRACE(c.arenaSize);
        const Crowd crowd(GameMode::Deathmatch, 17, 0, c.size);
        gameOptions.arenaSizeResolved = c.arenaSize;
        const Squares found = Crowd::starts();
        EXPECT_EQ((Squares{found.at(9), found.at(13), found.at(16)}), (Squares{c.tenth, c.fourteenth, c.seventeenth}));
    }
}

TEST(Placement, TheEighteenthStartIsFarthestFromAllOthersAndWallsDoNotMatter) {
    const Crowd crowd(GameMode::Classic, 18, 0, {27, 15}, true);
    const Squares found = Crowd::starts();
    ASSERT_EQ(found.size(), 18U);
    // Row by row, the first with the greatest distance.
    Square best{};
    int bestDistance = 0;
    for (int y = 1; y < 14; ++y) {
        for (int x = 1; x < 26; ++x) {
            int least = 1'000'000;
            for (std::size_t i = 0; i < 17; ++i) {
                const Square d = Square{x, y} - found[i];
                least = std::min(least, d.x * d.x + d.y * d.y);
            }
            if (squareGrid.at(x, y) == SquareKind::Empty && least > bestDistance) {
                best = {x, y};
                bestDistance = least;
            }
        }
    }
    EXPECT_EQ(found[17], best);
    squareGrid.set(best, SquareKind::Wall);
    EXPECT_EQ(Crowd::starts()[17], best);
}

TEST(Placement, ARoyaleTeamBehindAnEmptyOneFindsItsStart) {
    const Crowd crowd(GameMode::BattleRoyale, 10, 10, {31, 19});
    teams[9].members = {players[8], players[9]};
    teams[8].members.clear();
    const Squares found = Crowd::starts();
    EXPECT_EQ(found[8], (Square{10, 9})) << "where the ninth would have been";
    EXPECT_EQ(found[9], (Square{12, 9})) << "beside its mate";
}

TEST(Placement, OfACrowdThatFindsNoRoomIsAnError) {
    for (const GameMode mode : {GameMode::CaptureTheFlag, GameMode::BattleRoyale}) {
        const Crowd crowd(mode, 80, 2, {19, 11});
        EXPECT_THROW(Crowd::starts(), Game::PlayerPositionSetupError) << static_cast<int>(mode);
    }
    const TestRound round({.rows = {"#####", "#####", "#####", "#####", "#####"}, .mode = GameMode::Classic});
    gameOptions.numPlayers = 18;  // one more than the list has
    try {
        Crowd::starts();
        FAIL() << "somebody was placed";
    } catch (const std::runtime_error& error) {
        EXPECT_STREQ(error.what(), "Not enough space for players");
    }
}

}  // namespace
}  // namespace vandrel
