#include "frontend/lobby.h"

#include <fmt/format.h>

#include <algorithm>
#include <array>
#include <limits>

#include "arena/arena.h"
#include "arena/level_generation.h"
#include "arena/sparks.h"
#include "base/checked.h"
#include "base/distance.h"
#include "frontend/lobby_layout.h"
#include "match/match_players.h"
#include "match/options/game_options.h"
#include "match/options/name_tables.h"
#include "players/player.h"
#include "shell/log.h"
#include "shell/switches.h"

namespace vandrel {

namespace {

struct LobbyMode {
    int minPlayers;
    int mostTeams;
};

constexpr int oneForEachColour = std::numeric_limits<int>::max();
// By game mode.
constexpr std::array<LobbyMode, gameModeCount> lobbyModes{
    {{2, 2}, {2, 4}, {3, oneForEachColour}, {2, 4}, {1, oneForEachColour}, {2, 2}, {2, 4}}};

constexpr float teamRadius = 64.0f;  // pixels
constexpr int holdUpdates = 61;      // not scaled by the rate
constexpr int refusalSeconds = 5;

const LobbyMode& lobbyModeOf(GameMode mode) {
    return checkedAt(lobbyModes, static_cast<int>(mode));
}

bool isNumberTaken(int number) {
    return std::ranges::any_of(players, [&](const auto& player) { return player->num == number; });
}

// Whether a player at this position stands on the floor inside the arena's edge.
bool isOnFloor(Pixel position) {
    const Pixel first = squareToPixel(firstInnerSquare());
    const Pixel last = squareToPixel(lastInnerSquare());
    return position.x >= first.x && position.y >= first.y && position.x <= last.x && position.y <= last.y;
}

void leaveTeam(const Player& player) {
    std::erase_if(teams.at(static_cast<std::size_t>(player.team)).members,
                  [&](const std::weak_ptr<Player>& member) { return member.lock().get() == &player; });
}

bool hasMember(const Team& team) {
    return std::ranges::any_of(team.members, [](const std::weak_ptr<Player>& member) { return !member.expired(); });
}

}  // namespace

Lobby::Lobby(const DeviceList& devices)
    : minPlayers_(lobbyModeOf(gameOptions.gameMode).minPlayers),
      mostTeams_(lobbyModeOf(gameOptions.gameMode).mostTeams) {
    clearMatch();
    sparks.clear();
    setUp(devices);
    logText("playerJoinScreen: create dmGS\n");
    game_ = std::make_unique<Game>(PackagedReplayData{});
}

Lobby::~Lobby() {
    for (const auto& player : players) {
        player->game = nullptr;
    }
}

void Lobby::setUp(const DeviceList& devices) {
    logText("playerJoinScreen: setup\n");
    devices_ = devices;
    const int deviceCount = static_cast<int>(devices_.size());
    const LobbySize size = lobbySizeFor(deviceCount, isInTeams());
    logText("playerJoinScreen: dmGS\n");
    Game forSetUp(PackagedReplayData{});
    logText("playerJoinScreen: grid\n");
    const ArenaSize& arena = checkedAt(arenaSizes, size.arenaSize);
    setUpRound({arena.width, arena.height}, forSetUp.replay, forSetUp, true);
    spots_ = lobbySpots(deviceCount, size.columns, arenaWidthPixels());
    if (teams.empty()) {
        teams = makeTeams(std::min(mostTeams_, static_cast<int>(teamColours.size())));
    }
    teamMarkers_ = lobbyTeamMarkers(static_cast<int>(teams.size()), arenaWidthPixels(), arenaHeightPixels());
    for (const auto& player : players) {
        player->bombsPlaced = 0;
        bringInside(*player);
    }
}

// Beyond the edge of a smaller arena there are no squares to ask about.
void Lobby::bringInside(Player& player) const {
    if (isOnFloor(player.position())) {
        return;
    }
    const auto device = std::ranges::find(devices_, player.controls);
    // Who has lost the device is about to go, and may wait on anybody's spot.
    const auto index = device == devices_.end() ? 0 : device - devices_.begin();
    const Pixel spot = checkedAt(spots_, index);
    player.x = spot.x;
    player.y = spot.y;
    player.startRound();
}

bool Lobby::isInTeams() {
    return isTeamMode(gameOptions.gameMode);
}

bool Lobby::hasEnoughPlayers() const {
    return static_cast<int>(players.size()) >= minPlayers_;
}

std::shared_ptr<Player> Lobby::holderOf(const Controls& device) {
    const auto holder =
        std::ranges::find_if(players, [&](const auto& player) { return player->controls.get() == &device; });
    return holder == players.end() ? nullptr : *holder;
}

std::vector<std::string> Lobby::refusals() const {
    if (!hasEnoughPlayers()) {
        return {fmt::format("Need at least {} players!", minPlayers_)};
    }
    std::vector<std::string> lines;
    if (!isInTeams()) {
        return lines;
    }
    if (std::ranges::any_of(players, [](const auto& player) { return player->team == -1; })) {
        lines.emplace_back("Not all players have chosen a team!");
    }
    if (std::ranges::count_if(teams, hasMember) < 2) {
        lines.emplace_back("At least 2 teams must have players!");
    }
    return lines;
}

void Lobby::updateReadiness(bool startAsked) {
    if (startAsked || isHoldComplete()) {
        testStart();
    }
}

bool Lobby::isHoldComplete() {
    if (players.empty()) {
        return false;
    }
    if (!std::ranges::all_of(players, [](const auto& player) { return player->controls->bombPressed(); })) {
        holdCounter_ = 0;
        return false;
    }
    ++holdCounter_;
    return holdCounter_ >= holdUpdates;
}

void Lobby::testStart() {
    ready_ = refusals().empty();
    if (!ready_) {
        refusalFrames_ = gameOptions.updaterate * refusalSeconds;
    }
}

void Lobby::update() {
    std::erase_if(players, [](const auto& player) { return !player->controls->isConnected(); });
    joinAndUnjoin();
    gameOptions.numPlayers = static_cast<int>(players.size());
    for (const auto& player : players) {
        player->update(game_->replay, game_.get(), true);
        joinNearestTeam(player);
    }
    game_->updateBombs();
    game_->updateExplosions();
}

void Lobby::joinAndUnjoin() {
    for (std::size_t i = 0; i < devices_.size(); ++i) {
        const Controls& device = *devices_[i];
        if (const auto holder = holderOf(device)) {
            if (device.button2Pressed()) {
                std::erase(players, holder);
            }
        } else if (device.bombPressed()) {
            join(static_cast<int>(i));
        }
    }
}

void Lobby::join(int index) {
    int number = index;
    while (isNumberTaken(number)) {
        ++number;
    }
    constexpr int noTeam = -1;
    auto player = std::make_shared<Player>(number, 0, noTeam, defaultPlayerLook(index), checkedAt(devices_, index));
    const Pixel spot = checkedAt(spots_, index);
    player->x = spot.x;
    player->y = spot.y;
    players.push_back(player);
    player->startRound();
}

void Lobby::joinNearestTeam(const std::shared_ptr<Player>& player) const {
    int nearest = -1;
    float least = teamRadius * teamRadius;
    for (std::size_t i = 0; i < teamMarkers_.size(); ++i) {
        const float squared = squaredDistance(player->centre(), teamMarkers_[i]);
        if (squared < least) {
            least = squared;
            nearest = static_cast<int>(i);
        }
    }
    if (nearest == player->team) {
        return;
    }
    if (player->team != -1) {
        leaveTeam(*player);
    }
    player->team = nearest;
    if (nearest != -1) {
        checkedAt(teams, nearest).members.push_back(player);
    }
}

void Lobby::closeRanks() {
    if (!isInTeams()) {
        return;
    }
    for (int i = static_cast<int>(teams.size()) - 1; i >= 0; --i) {
        if (hasMember(checkedAt(teams, i))) {
            continue;
        }
        teams.erase(teams.begin() + i);
        for (const auto& player : players) {
            player->team -= player->team > i ? 1 : 0;
        }
    }
}

}  // namespace vandrel
