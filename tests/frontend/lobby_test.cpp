// People who join the lobby, walk about in it, and start the match.
#include <algorithm>
#include <string>
#include <tuple>
#include <utility>
#include <vector>

#include "base/colour.h"
#include "frontend/lobby_fixture.h"

namespace vandrel {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

using LobbyRules = LobbyTest;

TEST_F(LobbyRules, JoinsAndUnjoinsByButton) {
    open();
    EXPECT_EQ(join(2).position(), (Pixel{480, 48}));
    join(0);
    EXPECT_THAT(numbers(), ElementsAre(2, 0));
    EXPECT_EQ(gameOptions.numPlayers, 2);
    const PlayerLook look = defaultPlayerLook(2);
    EXPECT_EQ(players.front()->look.skin, look.skin);
    EXPECT_TRUE(sameColour(players.front()->look.colour, look.colour));
    EXPECT_EQ(players.front()->team, -1);
    keys(2).button2 = true;
    step();
    EXPECT_THAT(numbers(), ElementsAre(0));
    EXPECT_EQ(gameOptions.numPlayers, 1);
}

TEST_F(LobbyRules, WalksAndTriesBombsThatHurtNobody) {
    open();
    Player& player = join(0);
    EXPECT_EQ(player.bombsPlaced, 0) << "the press that joins lays no bomb";
    keys(0).right = true;
    step(16);
    EXPECT_EQ(player.x, 160 + 32);
    keys(0) = {};
    press(0, &HeldKeys::fire);
    EXPECT_EQ(player.bombsPlaced, 1);
    bool burnt = false;
    for (int i = 0; i < 200; ++i) {
        step();
        burnt = burnt || lobby_->game().hasExplosion(player.square());
    }
    EXPECT_TRUE(burnt);
    EXPECT_FALSE(player.dead);
    EXPECT_EQ(player.bombsPlaced, 0);
    EXPECT_THAT(lobby_->game().explosions, IsEmpty());
}

TEST_F(LobbyRules, ChangesLooksOnceForEachPress) {
    open();
    Player& player = join(0);
    player.look.skin = skinCount - 2;
    keys(0).skin = true;
    step(3);
    EXPECT_EQ(player.look.skin, skinCount - 1);
    keys(0).skin = false;
    step();
    press(0, &HeldKeys::skin);
    EXPECT_EQ(player.look.skin, 0);
    const std::vector<RGB> palette = playerColours();
    bool changed = false;
    for (int i = 0; i < 8; ++i) {
        const ALLEGRO_COLOR before = player.look.colour;
        press(0, &HeldKeys::colour);
        changed = changed || !sameColour(player.look.colour, before);
        EXPECT_TRUE(
            std::ranges::any_of(palette, [&](RGB colour) { return sameColour(toColour(colour), player.look.colour); }));
    }
    EXPECT_TRUE(changed);
}

TEST_F(LobbyRules, StartsWhenAllHaveHeldTheBombButtonFor61Updates) {
    open();
    join(0);
    join(1);
    keys(0).fire = true;
    keys(1).fire = true;
    step(60);
    EXPECT_FALSE(lobby_->isReady());
    keys(1).fire = false;
    step();
    keys(1).fire = true;
    step(60);
    EXPECT_FALSE(lobby_->isReady()) << "who lets go starts the count again";
    step();
    EXPECT_TRUE(lobby_->isReady());
}

TEST_F(LobbyRules, RefusesAgainAndAgainWhoHoldsOnAlone) {
    gameOptions.updaterate = 30;
    open();
    keys(0).fire = true;
    step(61);  // the first of them joins
    EXPECT_FALSE(lobby_->showsRefusals());
    for (int time = 0; time < 2; ++time) {
        step();
        EXPECT_TRUE(lobby_->showsRefusals());
        for (int frame = 1; frame < 5 * 30; ++frame) {
            lobby_->countFrame();
        }
        EXPECT_TRUE(lobby_->showsRefusals());
        lobby_->countFrame();
        EXPECT_FALSE(lobby_->showsRefusals());
    }
    EXPECT_FALSE(lobby_->isReady());
}

TEST_F(LobbyRules, NeedsPlayersByMode) {
    using enum GameMode;
    const std::tuple<GameMode, int, std::size_t> modes[] = {
        {Classic, 2, 2},      {CaptureTheFlag, 2, 4}, {BattleRoyale, 3, 10}, {KingOfTheHill, 2, 4},
        {SnakeHunter, 1, 10}, {Deathmatch, 2, 2},     {Everything, 2, 4}};
    for (const auto& [mode, minPlayers, teamCount] : modes) {
        SCOPED_TRACE(static_cast<int>(mode));
        open(mode);
        EXPECT_EQ(teams.size(), teamCount);
        for (int joined = 0; joined < minPlayers; ++joined) {
            step(1, true);
            EXPECT_TRUE(lobby_->showsRefusals());
            EXPECT_THAT(lobby_->refusals(), ElementsAre("Need at least " + std::to_string(minPlayers) + " players!"));
            join(static_cast<std::size_t>(joined));
        }
        step(1, true);
        EXPECT_EQ(lobby_->isReady(), !Lobby::isInTeams());
        EXPECT_EQ(lobby_->refusals().empty(), !Lobby::isInTeams());
    }
}

// Teams that are picked by standing near a marker, and what the match gets of them.
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
