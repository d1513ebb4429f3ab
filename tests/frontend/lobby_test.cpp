// People who join the lobby, walk about in it, and start the match.
#include <algorithm>
#include <string>
#include <tuple>
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

}  // namespace
}  // namespace vandrel
