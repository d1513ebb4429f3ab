#include <fmt/format.h>
#include <gmock/gmock.h>

#include "match/match_stage.h"

namespace vandrel {
namespace {

using testing::Each;
using testing::ElementsAre;

TEST(QuickStartTeams, AreCountedByModeAndPlayers) {
    struct TeamCase {
        GameMode mode;
        int numPlayers;
        std::size_t colours;
        int teamCount;
    };
    const GameOptions before = gameOptions;
    for (const TeamCase& c :
         {TeamCase{GameMode::BattleRoyale, 2, 10, 2}, TeamCase{GameMode::BattleRoyale, 3, 10, 2},
          TeamCase{GameMode::BattleRoyale, 8, 10, 2}, TeamCase{GameMode::BattleRoyale, 9, 10, 3},
          TeamCase{GameMode::BattleRoyale, 30, 10, 10}, TeamCase{GameMode::BattleRoyale, 33, 10, 10},
          TeamCase{GameMode::BattleRoyale, 100, 4, 4}, TeamCase{GameMode::KingOfTheHill, 5, 10, 2},
          TeamCase{GameMode::KingOfTheHill, 9, 10, 3}, TeamCase{GameMode::KingOfTheHill, 12, 10, 4},
          TeamCase{GameMode::KingOfTheHill, 30, 10, 4}, TeamCase{GameMode::CaptureTheFlag, 30, 10, 2},
          TeamCase{GameMode::Everything, 30, 10, 2}}) {
        fillTeamPalettes();
        teamColours.resize(c.colours);
        gameOptions.gameMode = c.mode;
        gameOptions.numPlayers = c.numPlayers;
        clearMatch();
        makeQuickStartTeams();
        EXPECT_EQ(static_cast<int>(teams.size()), c.teamCount)
            << c.numPlayers << " players, mode " << static_cast<int>(c.mode);
        EXPECT_EQ(teams.back().colour.g, toColour(teamColours.at(teams.size() - 1)).g);
    }
    clearMatch();
    fillTeamPalettes();
    gameOptions = before;
}

// The teams of the players of a match that is quit at once.
class MatchPlayersTest : public MatchStage {
  protected:
    std::vector<int> teamsOf(GameMode mode, int playerCount) {
        gameOptions.gameMode = mode;
        gameOptions.arenaSize = 4;
        gameOptions.numPlayers = 2;  // left over by the match before
        gameOptions.quickStartPlayers = playerCount - 1;
        std::vector<int> found;
        onUpdate = [&](int /*round*/) {
            teamCount = teams.size();
            for (const auto& player : players) {
                found.push_back(player->team);
                numbers.push_back(player->num);
                devices.push_back(player->controls.get());
            }
        };
        advanceLimit = 1;
        EXPECT_TRUE(play());
        return found;
    }

    std::size_t teamCount = 0;
    std::vector<int> numbers;
    std::vector<const Controls*> devices;
};

TEST_F(MatchPlayersTest, GoToTheTeamsByTurns) {
    EXPECT_THAT(teamsOf(GameMode::KingOfTheHill, 5), ElementsAre(0, 1, 0, 1, 0));
    EXPECT_THAT(numbers, ElementsAre(0, 1, 2, 3, 4));
    EXPECT_THAT(teamsOf(GameMode::BattleRoyale, 3), ElementsAre(0, 1, 0));
    EXPECT_THAT(teamsOf(GameMode::BattleRoyale, 9), ElementsAre(0, 1, 2, 0, 1, 2, 0, 1, 2));
    EXPECT_EQ(teamCount, 3U);
}

TEST_F(MatchPlayersTest, HuntTogetherAndHaveNoTeamWhereEachFightsAlone) {
    EXPECT_THAT(teamsOf(GameMode::SnakeHunter, 3), Each(0));
    EXPECT_EQ(teamCount, 2U) << "the snakes of the computer are the other";
    EXPECT_THAT(teamsOf(GameMode::Deathmatch, 3), Each(-1));
    EXPECT_THAT(teamsOf(GameMode::Classic, 3), Each(-1));
    EXPECT_EQ(teamCount, 0U);
}

TEST_F(MatchPlayersTest, ShareTheDevicesWhenThereAreFewer) {
    teamsOf(GameMode::Deathmatch, 10);
    ASSERT_EQ(devices.size(), 10U);
    EXPECT_EQ(devices[8], devices[0]);
    EXPECT_EQ(devices[9], devices[1]);
    EXPECT_NE(devices[1], devices[0]);
}

// Two players as the lobby leaves them, each near a marker of its own.
bool joinTwo() {
    teams.resize(2);
    for (int team = 0; team < 2; ++team) {
        auto player = std::make_shared<Player>(5 - team, 0, team, PlayerLook{}, std::make_shared<NoControls>());
        teams.at(static_cast<std::size_t>(team)).members.push_back(player);
        players.push_back(player);
    }
    gameOptions.numPlayers = 2;
    return true;
}

TEST_F(MatchPlayersTest, AreThoseOfTheLobbyWithoutQuickStart) {
    joinPlayers = joinTwo;
    EXPECT_THAT(teamsOf(GameMode::CaptureTheFlag, 1), ElementsAre(0, 1));
    EXPECT_THAT(numbers, ElementsAre(5, 4));
    EXPECT_THAT(teamsOf(GameMode::SnakeHunter, 1), Each(0));
    EXPECT_EQ(teamCount, 2U);
}

TEST_F(MatchPlayersTest, DoNotPlayWhenTheLobbyIsLeft) {
    joinPlayers = [] { return !joinTwo(); };
    gameOptions.quickStartPlayers = 0;
    EXPECT_TRUE(play());
    EXPECT_EQ(rounds(), 0);
    EXPECT_TRUE(players.empty());
    EXPECT_TRUE(teams.empty());
}

TEST(SnakeHunterTeams, AreMadeAfreshFromWhatTheLobbyLeft) {
    TestRound round({.mode = GameMode::SnakeHunter});
    for (int i = 0; i < 3; ++i) {
        round.addTeam({1, 5});
    }
    round.addPlayer({3, 5}, 2);
    round.addPlayer({5, 5}, 0);
    makeSnakeHunterTeams();
    ASSERT_EQ(teams.size(), 2U);
    EXPECT_EQ(teams[0].members.size(), 2U) << "nobody stands there twice";
    EXPECT_TRUE(teams[1].members.empty());
    EXPECT_EQ(players[0]->team, 0);
}

}  // namespace
}  // namespace vandrel
