// Teams that are picked by standing near a marker, and what the match gets of them.
#include <string>
#include <vector>

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
    standAt(first, lobby_->teamMarkers().at(1));
    EXPECT_THAT(lobby_->refusals(), ElementsAre(someoneHasNone, oneTeam));
    standAt(second, lobby_->teamMarkers().at(1));
    EXPECT_THAT(lobby_->refusals(), ElementsAre(oneTeam));
    standAt(second, lobby_->teamMarkers().at(3));
    EXPECT_THAT(lobby_->refusals(), IsEmpty());
    Player& third = join(2);
    EXPECT_THAT(lobby_->refusals(), ElementsAre(someoneHasNone));
    standAt(third, lobby_->teamMarkers().at(3));
    step(1, true);
    EXPECT_TRUE(lobby_->isReady());
}

TEST_F(LobbyTeams, JoinsTheTeamOfTheNearestMarkerWithinItsRadius) {
    open(GameMode::Deathmatch);  // the teams are there in every mode
    Player& player = join(0);
    const Pixel marker = lobby_->teamMarkers().at(1);
    struct Case {
        Pixel offset;
        int team;
    };
    for (const Case& c : std::vector<Case>{{{63, 0}, 1}, {{64, 0}, -1}, {{-46, -44}, 1}, {{-46, -45}, -1}}) {
        standAt(player, marker + c.offset);
        EXPECT_EQ(player.team, c.team) << c.offset;
        EXPECT_EQ(teams.at(1).members.size(), c.team == 1 ? 1U : 0U);
    }

    teamColours.resize(20);  // markers so near that their circles overlap
    open(GameMode::BattleRoyale);
    Player& another = join(0);
    const std::vector<Pixel>& markers = lobby_->teamMarkers();
    const int between = (markers.at(4).x + markers.at(5).x) / 2;
    standAt(another, {between, markers.at(4).y});
    EXPECT_EQ(another.team, 4) << "the earlier one of a tie";
    standAt(another, {between + 1, markers.at(4).y});
    EXPECT_EQ(another.team, 5);
    EXPECT_THAT(teams.at(4).members, IsEmpty());
}

TEST_F(LobbyTeams, MovesTeamsUpAtTheEnd) {
    open(GameMode::KingOfTheHill);
    Player& first = join(0);
    Player& second = join(1);
    Player& gone = join(2);
    standAt(first, lobby_->teamMarkers().at(3));
    standAt(second, lobby_->teamMarkers().at(1));
    standAt(gone, lobby_->teamMarkers().at(0));
    keys(2).button2 = true;
    step();
    const ALLEGRO_COLOR colour = teams.at(3).colour;
    Lobby::closeRanks();
    ASSERT_EQ(teams.size(), 2U);
    EXPECT_EQ(second.team, 0);
    EXPECT_EQ(first.team, 1);
    EXPECT_TRUE(sameColour(teams.at(1).colour, colour));
    EXPECT_EQ(teams.at(1).members.at(0).lock().get(), &first);
}

TEST_F(LobbyTeams, LeavesTeamsAloneWhereEachFightsForHimself) {
    open(GameMode::Classic);
    standAt(join(0), lobby_->teamMarkers().at(1));
    Lobby::closeRanks();
    EXPECT_EQ(teams.size(), 2U);
    EXPECT_EQ(players.front()->team, 1);
}

}  // namespace
}  // namespace vandrel
