// The lobby without a screen: devices whose keys the test holds, an update at a time.
#include "frontend/lobby.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <memory>
#include <random>
#include <string>
#include <vector>

#include "arena/arena.h"
#include "base/random.h"
#include "frontend/lobby_layout.h"
#include "frontend/lobby_texts.h"
#include "match/match_players.h"
#include "match/options/game_options.h"
#include "players/player.h"
#include "presentation/play_sample.h"
#include "shell/accessibility.h"
#include "shell/log.h"
#include "shell/switches.h"
#include "support/round_fixture.h"

namespace vandrel {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::UnorderedElementsAre;

struct SizeCase {
    int devices;
    bool inTeams;
    LobbySize size;
};

TEST(LobbyLayout, HoldsAllDevices) {
    for (const SizeCase& c : std::vector<SizeCase>{{4, false, {3, 6}},
                                                   {12, false, {3, 6}},
                                                   {13, false, {4, 10}},
                                                   {30, false, {4, 10}},
                                                   {31, false, {5, 13}},
                                                   {39, false, {5, 13}},
                                                   {40, false, {6, 16}},
                                                   {100, false, {6, 16}},
                                                   {6, true, {3, 6}},
                                                   {7, true, {4, 10}},
                                                   {20, true, {4, 10}},
                                                   {21, true, {5, 13}},
                                                   {39, true, {5, 13}},
                                                   {40, true, {6, 16}}}) {
        EXPECT_EQ(lobbySizeFor(c.devices, c.inTeams), c.size) << c.devices << (c.inTeams ? " in teams" : " alone");
    }
}

TEST(LobbyLayout, PutsSpotsInRowsAndMarkersAtTheBottom) {
    EXPECT_THAT(lobbySpots(4, 6, 864), ElementsAre(Pixel{160, 48}, Pixel{320, 48}, Pixel{480, 48}, Pixel{640, 48}));
    const std::vector<Pixel> two = lobbySpots(13, 10, 992);
    EXPECT_EQ(two.at(9), (Pixel{840, 48}));
    EXPECT_EQ(two.at(10), (Pixel{84, 176}));
    const std::vector<Pixel> three = lobbySpots(31, 13, 1248);
    EXPECT_EQ(three.at(12), (Pixel{1092, 48}));
    EXPECT_EQ(three.at(30), (Pixel{420, 304}));
    const std::vector<Pixel> seven = lobbySpots(100, 16, 1888);
    EXPECT_EQ(seven.at(15), (Pixel{1712, 48}));
    EXPECT_EQ(seven.at(99), (Pixel{428, 816}));
    EXPECT_THAT(lobbyTeamMarkers(4, 864, 480),
                ElementsAre(Pixel{108, 416}, Pixel{324, 416}, Pixel{540, 416}, Pixel{756, 416}));
}

// A pad that names itself and its buttons.
class NamedPad final : public InertControls {
  public:
    NamedPad(std::string name, std::string pause) : name_(std::move(name)), pause_(std::move(pause)) {}
    std::string description() const override { return name_; }
    std::string buttonText(ControlInput input) const override {
        return input == ControlInput::Pause ? pause_ : input == ControlInput::ChangeSkin ? "Button 3" : "Y Button";
    }

  private:
    std::string name_;
    std::string pause_;
};

TEST(LobbyTexts, NameDevicesAndTheirButtons) {
    const NamedPad pad("Twin Stick Gamepad", "Start");
    EXPECT_THAT(deviceLines(pad, false), ElementsAre("Twin Stick", "Gamepad"));
    EXPECT_THAT(deviceLines(pad, true), ElementsAre("Twin Stick", "Gamepad", "Skin: 3", "Color: Y"));
    const DeviceList pads{std::make_shared<NamedPad>("A", "Start"), std::make_shared<NamedPad>("B", "Start"),
                          std::make_shared<NamedPad>("C", "Back")};
    EXPECT_EQ(exitHint(pads), "ESC/Start/Back: exit");
    EXPECT_EQ(exitHint({}), "ESC: exit");
}

class LobbyTest : public testing::Test {
  protected:
    LobbyTest() : optionsBefore_(gameOptions), outputBefore_(setDebugOutput(nullptr)) {
        gameOptions = GameOptions();
        setSamplePlayer(nullptr);
        fillTeamPalettes();
        addDevices(4);
    }
    ~LobbyTest() override {
        lobby_ = nullptr;
        clearMatch();
        gameOptions = optionsBefore_;
        setDebugOutput(outputBefore_);
    }

    void addDevices(int count) {
        for (int i = 0; i < count; ++i) {
            devices_.push_back(std::make_shared<ScriptedControls>());
        }
    }
    void open(GameMode mode = GameMode::Classic) {
        gameOptions.gameMode = mode;
        lobby_ = std::make_unique<Lobby>(devices_);
    }
    HeldKeys& keys(std::size_t device) { return static_cast<ScriptedControls&>(*devices_.at(device)).held; }
    void step(int updates = 1, bool startAsked = false) {
        for (int i = 0; i < updates; ++i) {
            lobby_->updateReadiness(startAsked);
            lobby_->update();
        }
    }
    Player& join(std::size_t device) {
        keys(device).fire = true;
        step();
        keys(device).fire = false;
        step();
        return *Lobby::holderOf(*devices_.at(device));
    }
    // As a player stands who has walked there.
    void standAt(Player& player, Pixel centre) {
        player.x = centre.x - halfSquare;
        player.y = centre.y - halfSquare;
        step();
    }
    static std::vector<int> numbers() {
        std::vector<int> found;
        std::ranges::transform(players, std::back_inserter(found), [](const auto& player) { return player->num; });
        return found;
    }

    DeviceList devices_;
    std::unique_ptr<Lobby> lobby_;

  private:
    GameOptions optionsBefore_;
    DebugOutput outputBefore_;
};

TEST_F(LobbyTest, JoinsAndUnjoinsByButton) {
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

TEST_F(LobbyTest, WalksAndTriesBombsThatHurtNobody) {
    open();
    Player& player = join(0);
    EXPECT_EQ(player.bombsPlaced, 0) << "the press that joins lays no bomb";
    keys(0).right = true;
    step(16);
    EXPECT_EQ(player.x, 160 + 32);
    keys(0) = {};
    keys(0).fire = true;
    step();
    keys(0).fire = false;
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

TEST_F(LobbyTest, ChangesLooksOnceForEachPress) {
    open();
    Player& player = join(0);
    player.look.skin = skinCount - 2;
    keys(0).skin = true;
    step(3);
    EXPECT_EQ(player.look.skin, skinCount - 1);
    keys(0).skin = false;
    step();
    keys(0).skin = true;
    step();
    EXPECT_EQ(player.look.skin, 0);
    const std::vector<RGB> palette = playerColours();
    bool changed = false;
    for (int i = 0; i < 8; ++i) {
        const ALLEGRO_COLOR before = player.look.colour;
        keys(0).colour = true;
        step();
        keys(0).colour = false;
        step();
        changed = changed || !sameColour(player.look.colour, before);
        EXPECT_TRUE(
            std::ranges::any_of(palette, [&](RGB colour) { return sameColour(toColour(colour), player.look.colour); }));
    }
    EXPECT_TRUE(changed);
}

TEST_F(LobbyTest, StartsWhenAllHaveHeldTheBombButtonFor61Updates) {
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

TEST_F(LobbyTest, RefusesAgainAndAgainWhoHoldsOnAlone) {
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

TEST_F(LobbyTest, NeedsPlayersByMode) {
    struct Case {
        GameMode mode;
        int minPlayers;
        std::size_t teamCount;
    };
    for (const Case& c : std::vector<Case>{{GameMode::Classic, 2, 2},
                                           {GameMode::CaptureTheFlag, 2, 4},
                                           {GameMode::BattleRoyale, 3, 10},
                                           {GameMode::KingOfTheHill, 2, 4},
                                           {GameMode::SnakeHunter, 1, 10},
                                           {GameMode::Deathmatch, 2, 2},
                                           {GameMode::Everything, 2, 4}}) {
        open(c.mode);
        EXPECT_EQ(teams.size(), c.teamCount) << static_cast<int>(c.mode);
        for (int joined = 0; joined < c.minPlayers; ++joined) {
            step(1, true);
            EXPECT_TRUE(lobby_->showsRefusals());
            EXPECT_THAT(lobby_->refusals(), ElementsAre("Need at least " + std::to_string(c.minPlayers) + " players!"));
            join(static_cast<std::size_t>(joined));
        }
        step(1, true);
        EXPECT_EQ(lobby_->isReady(), !Lobby::isInTeams()) << static_cast<int>(c.mode);
        EXPECT_EQ(lobby_->refusals().empty(), !Lobby::isInTeams());
        lobby_ = nullptr;
    }
}

TEST_F(LobbyTest, RefusesUntilAllHaveATeamAndTwoTeamsAreThere) {
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

TEST_F(LobbyTest, JoinsTheTeamOfTheNearestMarkerWithinItsRadius) {
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

TEST_F(LobbyTest, MovesTeamsUpAtTheEnd) {
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

TEST_F(LobbyTest, LeavesTeamsAloneWhereEachFightsForHimself) {
    open(GameMode::Classic);
    standAt(join(0), lobby_->teamMarkers().at(1));
    Lobby::closeRanks();
    EXPECT_EQ(teams.size(), 2U);
    EXPECT_EQ(players.front()->team, 1);
}

TEST_F(LobbyTest, FollowsDevicesThatComeAndGo) {
    addDevices(9);
    open();
    ASSERT_EQ(grid_squares_x, 31);
    Player& stays = join(0);
    Player& atTheEdge = join(1);
    join(12);
    atTheEdge.x = 29 * squareSize;
    atTheEdge.y = 17 * squareSize;
    keys(0).fire = true;
    keys(1).fire = true;
    step();
    keys(0).fire = false;
    keys(1).fire = false;
    ASSERT_EQ(stays.bombsPlaced, 1);
    step(95);
    const auto isBeyond = [](const Explosion& flame) { return flame.x >= 27 || flame.y >= 15; };
    ASSERT_TRUE(std::ranges::any_of(lobby_->game().explosions, isBeyond)) << "flames where no squares will be";
    keys(0).fire = true;
    step();
    keys(0).fire = false;

    keys(12).connected = false;
    devices_.resize(4);
    const Pixel place = stays.position();
    lobby_->setUp(devices_);
    EXPECT_EQ(Game::current(), &lobby_->game()) << "the game of the set-up has gone";
    EXPECT_EQ(grid_squares_x, 27);
    EXPECT_EQ(stays.position(), place);
    EXPECT_EQ(atTheEdge.position(), lobby_->spots().at(1));
    EXPECT_EQ(stays.bombsPlaced, 0) << "the bombs went with the old arena";
    keys(1).right = true;
    keys(1).down = true;
    step(300);
    EXPECT_THAT(numbers(), UnorderedElementsAre(0, 1)) << "who has lost the device is gone";

    // A new device in the place of a lost one gets a number of its own.
    keys(0).connected = false;
    devices_.erase(devices_.begin());
    devices_.insert(devices_.begin() + 1, std::make_shared<ScriptedControls>());
    lobby_->setUp(devices_);
    join(1);
    EXPECT_THAT(numbers(), ElementsAre(1, 2));
}

// A hundred people who press at random, walking and as snakes, until most of their devices are pulled out.
TEST_F(LobbyTest, TakesAHundredDevices) {
    addDevices(96);
    std::mt19937 chance(7);
    for (const bool asSnakes : {false, true}) {
        gameOptions.startAsSnake = asSnakes;
        lobby_ = nullptr;
        open(GameMode::BattleRoyale);
        for (std::size_t i = 0; i < devices_.size(); ++i) {
            keys(i) = {};
            keys(i).fire = true;
        }
        step();
        EXPECT_EQ(gameOptions.numPlayers, 100);
        for (int update = 0; update < 1500; ++update) {
            if (update == 1000) {
                for (std::size_t i = 0; i < 95; ++i) {
                    keys(i).connected = false;
                }
                lobby_->setUp({devices_.begin() + 95, devices_.end()});
            }
            HeldKeys& some = keys(static_cast<std::size_t>(uniformInt(chance, 0, 99)));
            for (bool* key : {&some.up, &some.down, &some.left, &some.right, &some.fire}) {
                *key = uniformInt(chance, 0, 1) == 1;
            }
            step();
            EXPECT_TRUE(std::ranges::all_of(
                players, [](const auto& player) { return isInnerSquare(player->square()) && !player->dead; }));
        }
        EXPECT_THAT(numbers(), UnorderedElementsAre(95, 96, 97, 98, 99));
    }
}

TEST(PlayerPalette, IsTheSameOnEveryRunAndFarFromTheBackground) {
    for (int background = 0; background <= 4; ++background) {
        accessibility.bgcol = background;
        invalidatePlayerColours();
        const std::vector<RGB> colours = playerColours();
        ASSERT_EQ(colours.size(), 100U);
        EXPECT_EQ(colours.at(0), (RGB{192, 192, 192}));
        EXPECT_EQ(colours.at(6), (RGB{0, 255, 255}));
        EXPECT_EQ(colours.at(7), (RGB{172, 47, 117})) << "the first draws of the twister seeded with 0";
        for (const RGB colour : colours) {
            EXPECT_GE(colourDistance(colour, backgroundColour(background)), 150.0f) << background;
        }
    }
    accessibility.bgcol = 0;
    EXPECT_EQ(playerColours().at(99), (RGB{234, 204, 230}));
    accessibility = AccessibilitySettings();
    EXPECT_EQ(playerColours().at(99), (RGB{53, 51, 174})) << "another background, another palette";
}

}  // namespace
}  // namespace vandrel
