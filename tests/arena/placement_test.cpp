#include <gtest/gtest.h>

#include <memory>
#include <set>
#include <vector>

#include "arena/game.h"
#include "match/options/game_options.h"
#include "players/player.h"
#include "shell/log.h"

namespace vandrel {
namespace {

using Squares = std::vector<Square>;

// Players in an empty arena, dealt to the teams by turns.
class PlacementTest : public testing::Test {
  protected:
    void SetUp() override {
        setDebugOutput([](const char* /*line*/, std::size_t /*length*/) {});
        gameOptions = GameOptions{};
        gameOptions.arenaSizeResolved = 3;
        players.clear();
        teams.clear();
    }
    void TearDown() override {
        players.clear();
        teams.clear();
        gameOptions = GameOptions{};
    }

    static void arena(int width, int height, bool pillars = false) {
        resizeArena({width, height});
        for (int x = 0; x < width; ++x) {
            for (int y = 0; y < height; ++y) {
                if (!isInnerSquare({x, y})) {
                    squareGrid.set(x, y, SquareKind::EdgeWall);
                } else if (pillars && x % 2 == 0 && y % 2 == 0) {
                    squareGrid.set(x, y, SquareKind::GridBlock);
                }
            }
        }
    }

    static void people(GameMode mode, int count, int teamCount = 0) {
        gameOptions.gameMode = mode;
        gameOptions.numPlayers = count;
        teams.assign(static_cast<std::size_t>(teamCount), Team{});
        for (int i = 0; i < count; ++i) {
            const int team = teamCount == 0 ? -1 : i % teamCount;
            players.push_back(std::make_shared<Player>(i, 0, team, PlayerLook{}, std::make_shared<NoControls>()));
            if (team >= 0) {
                teams[static_cast<std::size_t>(team)].members.push_back(players.back());
            }
        }
    }

    // The squares of one team's members, in their order.
    static Squares ofTeam(const Squares& all, std::size_t team) {
        Squares squares;
        for (std::size_t i = team; i < players.size(); i += teams.size()) {
            squares.push_back(all[i]);
        }
        return squares;
    }

    static bool allDifferent(const Squares& squares, std::size_t count) {
        std::set<std::pair<int, int>> seen;
        for (std::size_t i = 0; i < count; ++i) {
            seen.emplace(squares[i].x, squares[i].y);
        }
        return seen.size() == count;
    }
};

TEST_F(PlacementTest, ClassicStartsWithTheCornersThenTheMiddleThenTheEdges) {
    arena(27, 15);
    people(GameMode::Classic, 9);
    const Squares expected{{1, 1}, {25, 13}, {1, 13}, {25, 1}, {13, 7}, {13, 1}, {13, 13}, {1, 7}, {25, 7}};
    Squares found = Game::getInitialPlayerPositions();
    found.resize(expected.size());
    EXPECT_EQ(found, expected);
}

TEST_F(PlacementTest, TheInnerStartsOfTheListDependOnTheArenaSize) {
    struct Case {
        int arenaSize;
        Square size;
        Square tenth;       // middle less (a, b)
        Square fourteenth;  // (c + 1, c + 1)
        Square seventeenth;
    };
    const std::vector<Case> cases{{3, {27, 15}, {9, 5}, {3, 3}, {3, 11}},
                                  {4, {31, 19}, {9, 5}, {5, 5}, {5, 13}},
                                  {6, {59, 35}, {19, 11}, {7, 7}, {7, 27}},
                                  {7, {75, 43}, {21, 11}, {15, 15}, {15, 27}},
                                  {8, {119, 67}, {55, 31}, {3, 3}, {3, 63}}};
    people(GameMode::Deathmatch, 17);
    for (const Case& c : cases) {
        arena(c.size.x, c.size.y);
        gameOptions.arenaSizeResolved = c.arenaSize;
        const Squares found = Game::getInitialPlayerPositions();
        ASSERT_EQ(found.size(), 17U);
        EXPECT_EQ(found[9], c.tenth) << c.arenaSize;
        EXPECT_EQ(found[13], c.fourteenth) << c.arenaSize;
        EXPECT_EQ(found[16], c.seventeenth) << c.arenaSize;
    }
}

TEST_F(PlacementTest, TheEighteenthStartIsFarthestFromAllOthersAndWallsDoNotMatter) {
    arena(27, 15, true);
    people(GameMode::Classic, 18);
    const Squares found = Game::getInitialPlayerPositions();
    ASSERT_EQ(found.size(), 18U);
    const auto leastDistance = [&](Square square) {
        int least = 1'000'000;
        for (std::size_t i = 0; i < 17; ++i) {
            const Square d = square - found[i];
            least = std::min(least, d.x * d.x + d.y * d.y);
        }
        return least;
    };
    // Row by row, the first with the greatest distance.
    Square best{};
    for (int y = 1; y < 14; ++y) {
        for (int x = 1; x < 26; ++x) {
            if (squareGrid.at(x, y) == SquareKind::Empty &&
                (best == Square{} || leastDistance({x, y}) > leastDistance(best))) {
                best = {x, y};
            }
        }
    }
    EXPECT_EQ(found[17], best);
    squareGrid.set(best, SquareKind::Wall);
    EXPECT_EQ(Game::getInitialPlayerPositions()[17], best);
}

TEST_F(PlacementTest, TwoTeamsOfFiveWalkInwardFromOppositeEnds) {
    arena(19, 11);
    people(GameMode::CaptureTheFlag, 10, 2);
    const Squares found = Game::getInitialPlayerPositions();
    EXPECT_EQ(ofTeam(found, 0), (Squares{{1, 1}, {1, 9}, {1, 3}, {1, 7}, {1, 5}}));
    EXPECT_EQ(ofTeam(found, 1), (Squares{{17, 9}, {17, 1}, {17, 7}, {17, 3}, {17, 5}}));
}

TEST_F(PlacementTest, ATeamWhoseColumnIsFullGoesOnInTheNext) {
    arena(19, 11);
    people(GameMode::CaptureTheFlag, 14, 2);
    const Squares found = Game::getInitialPlayerPositions();
    const Squares first = ofTeam(found, 0);
    ASSERT_EQ(first.size(), 7U);
    EXPECT_EQ(first[5], (Square{3, 1}));
    EXPECT_EQ(first[6], (Square{3, 9}));
    EXPECT_TRUE(allDifferent(found, 14));
}

TEST_F(PlacementTest, TwoTeamsThatMeetInTheMiddleColumnAreAnError) {
    arena(19, 11);
    people(GameMode::CaptureTheFlag, 60, 2);
    try {
        Game::getInitialPlayerPositions();
        FAIL() << "sixty players fit";
    } catch (const Game::PlayerPositionSetupError& error) {
        EXPECT_STREQ(error.what(),
                     "Error while generating player positions.\nLevel may be too small for this number of players\n"
                     "Press ENTER or button 1");
    }
}

TEST_F(PlacementTest, FourTeamsSpreadAlongTheirEdgesFromTheirBases) {
    arena(27, 15);
    people(GameMode::KingOfTheHill, 16, 4);
    const Squares found = Game::getInitialPlayerPositions();
    EXPECT_EQ(ofTeam(found, 0), (Squares{{1, 7}, {1, 9}, {1, 5}, {3, 7}}));
    EXPECT_EQ(ofTeam(found, 1), (Squares{{25, 7}, {25, 9}, {25, 5}, {23, 7}}));
    EXPECT_EQ(ofTeam(found, 2), (Squares{{13, 1}, {15, 1}, {11, 1}, {9, 1}}));
    EXPECT_EQ(ofTeam(found, 3), (Squares{{13, 13}, {15, 13}, {11, 13}, {9, 13}}));
}

TEST_F(PlacementTest, ThreeTeamsUseTheFirstThreeBases) {
    arena(27, 15);
    people(GameMode::Everything, 3, 3);
    Squares found = Game::getInitialPlayerPositions();
    found.resize(3);
    EXPECT_EQ(found, (Squares{{1, 7}, {25, 7}, {13, 1}}));
}

TEST_F(PlacementTest, OtherNumbersOfTeamsArePlacedFarApart) {
    arena(27, 15);
    people(GameMode::Everything, 6, 6);
    const Squares found = Game::getInitialPlayerPositions();
    EXPECT_EQ(found[0], (Square{1, 1})) << "with nobody placed every square is as good as the first";
    EXPECT_EQ(found[1], (Square{25, 13}));
    EXPECT_TRUE(allDifferent(found, 6));
}

TEST_F(PlacementTest, RoyaleTeamsStartInCornersAndEdgesWithTheirMatesAround) {
    arena(31, 19, true);
    people(GameMode::BattleRoyale, 24, 8);
    const Squares found = Game::getInitialPlayerPositions();
    const Squares starts{{1, 1}, {29, 17}, {1, 17}, {29, 1}, {15, 1}, {15, 17}, {1, 9}, {29, 9}};
    for (std::size_t team = 0; team < starts.size(); ++team) {
        EXPECT_EQ(ofTeam(found, team)[0], starts[team]);
    }
    EXPECT_EQ(ofTeam(found, 0), (Squares{{1, 1}, {3, 1}, {1, 3}})) << "two steps off, never outside or on a pillar";
    EXPECT_TRUE(allDifferent(found, 24));
}

TEST_F(PlacementTest, TheNinthRoyaleTeamStartsFarthestFromTheOthers) {
    arena(31, 19);
    people(GameMode::BattleRoyale, 9, 9);
    EXPECT_EQ(Game::getInitialPlayerPositions()[8], (Square{10, 9})) << "nine from an edge base, more from the rest";
}

TEST_F(PlacementTest, ARoyaleTeamBehindAnEmptyOneFindsItsStart) {
    arena(31, 19);
    people(GameMode::BattleRoyale, 10, 10);
    players[8]->team = 9;
    teams[9].members = {players[8], players[9]};
    teams[8].members.clear();
    const Squares found = Game::getInitialPlayerPositions();
    EXPECT_EQ(found[8], (Square{10, 9})) << "where the ninth would have been";
    EXPECT_EQ(found[9], (Square{12, 9})) << "beside its mate";
}

TEST_F(PlacementTest, ARoyaleMateWithoutASquareIsAnError) {
    arena(19, 11);
    people(GameMode::BattleRoyale, 80, 2);
    EXPECT_THROW(Game::getInitialPlayerPositions(), Game::PlayerPositionSetupError);
}

TEST_F(PlacementTest, AnArenaWithoutAnyFreeSquareIsFatal) {
    arena(5, 5);
    for (int x = 1; x < 4; ++x) {
        for (int y = 1; y < 4; ++y) {
            squareGrid.set(x, y, SquareKind::GridBlock);
        }
    }
    people(GameMode::Everything, 1, 1);
    try {
        Game::getInitialPlayerPositions();
        FAIL() << "somebody was placed";
    } catch (const std::runtime_error& error) {
        EXPECT_STREQ(error.what(), "Not enough space for players");
    }
}

}  // namespace
}  // namespace vandrel
