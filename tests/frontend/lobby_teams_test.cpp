// Teams that are picked by standing near a marker, and what the match gets of them.
#include <string>
#include <utility>

#include "frontend/lobby_fixture.h"

namespace vandrel {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

using LobbyTeams = LobbyTest;

TEST_F(LobbyTeams, RefusesUntilAllHaveATeamAndTwoTeamsAreThere) {
    const std::string someoneHasNone = "Not all players have chosen a team!";
    const std::string oneTeam = "At least 2 teams must have players!";
    open(GameMode::CaptureTheFlag);
    Player& first = join(0);
    Player& second = join(1);
    EXPECT_THAT(lobby_->refusals(), ElementsAre(someoneHasNone, oneTeam));
    standAt(first, marker(1));
    EXPECT_THAT(lobby_->refusals(), ElementsAre(someoneHasNone, oneTeam));
    standAt(second, marker(1));
    EXPECT_THAT(lobby_->refusals(), ElementsAre(oneTeam));
    standAt(second, marker(3));
    EXPECT_THAT(lobby_->refusals(), IsEmpty());
    Player& third = join(2);
    EXPECT_THAT(lobby_->refusals(), ElementsAre(someoneHasNone));
    standAt(third, marker(3));
    step(1, true);
    EXPECT_TRUE(lobby_->isReady());
}

TEST_F(LobbyTeams, JoinsTheTeamOfTheNearestMarkerWithinItsRadius) {
    open(GameMode::Deathmatch);  // the teams are there in every mode
    Player& player = join(0);
    for (const auto& [offset, team] :
         {std::pair{Pixel{63, 0}, 1}, {Pixel{64, 0}, -1}, {Pixel{-46, -44}, 1}, {Pixel{-46, -45}, -1}}) {
        standAt(player, marker(1) + offset);
        EXPECT_EQ(player.team, team) << offset;
        EXPECT_EQ(teams.at(1).members.size(), team == 1 ? 1U : 0U);
    }

    teamColours.resize(20);  // markers so near that their circles overlap
    open(GameMode::BattleRoyale);
    Player& another = join(0);
    const Pixel between{(marker(4).x + marker(5).x) / 2, marker(4).y};
    standAt(another, between);
    EXPECT_EQ(another.team, 4) << "the earlier one of a tie";
    standAt(another, between + Pixel{1, 0});
    EXPECT_EQ(another.team, 5);
    EXPECT_THAT(teams.at(4).members, IsEmpty());
}

TEST_F(LobbyTeams, MovesTeamsUpAtTheEndUnlessEachFightsForHimself) {
    open(GameMode::KingOfTheHill);
    Player& first = join(0);
    Player& second = join(1);
    Player& gone = join(2);
    standAt(first, marker(3));
    standAt(second, marker(1));
    standAt(gone, marker(0));
    keys(2).button2 = true;
    step();
    const ALLEGRO_COLOR colour = teams.at(3).colour;
    Lobby::closeRanks();
    ASSERT_EQ(teams.size(), 2U);
    EXPECT_EQ(second.team, 0);
    EXPECT_EQ(first.team, 1);
    EXPECT_TRUE(sameColour(teams.at(1).colour, colour));
    EXPECT_EQ(teams.at(1).members.at(0).lock().get(), &first);

    open(GameMode::Classic);
    standAt(join(0), marker(1));
    Lobby::closeRanks();
    EXPECT_EQ(teams.size(), 2U);
    EXPECT_EQ(players.front()->team, 1);
}

}  // namespace
}  // namespace vandrel
