#include "match/match_players.h"

#include <algorithm>

#include "arena/arena.h"
#include "base/checked.h"
#include "base/version.h"
#include "match/options/game_options.h"
#include "players/player.h"
#include "shell/switches.h"

namespace vandrel {

namespace {

constexpr int setupsFrom = replayVersion(0, 0, 4);  // since when a replay says who plays
constexpr int looksFrom = replayVersion(0, 95, 5);
constexpr int cashFrom = replayVersion(1, 0, 2);
constexpr int mostKingOfTheHillTeams = 4;

void addPlayer(int number, int cash, int team, const PlayerLook& look, const DeviceList& devices) {
    const std::size_t device = players.size() % devices.size();
    auto player = std::make_shared<Player>(number, cash, team, look, devices.at(device));
    players.push_back(player);
    if (team != -1) {
        checkedAt(teams, team).members.push_back(player);
    }
}

}  // namespace

void clearMatch() {
    players.clear();
    teams.clear();
}

std::vector<DeviceHolder> listDeviceHolders() {
    std::vector<DeviceHolder> holders;
    holders.reserve(players.size());
    for (const auto& player : players) {
        holders.push_back({player->num, player->controls});
    }
    return holders;
}

std::vector<Team> makeTeams(int count) {
    std::vector<Team> made(static_cast<std::size_t>(count));
    for (std::size_t i = 0; i < std::min(made.size(), teamColours.size()); ++i) {
        made[i].colour = toColour(teamColours[i]);
    }
    return made;
}

int quickStartTeamCount() {
    const int third = gameOptions.numPlayers / 3;
    switch (gameOptions.gameMode) {
        case GameMode::BattleRoyale: {
            const int colours = static_cast<int>(teamColours.size());
            return colours >= third ? std::max(third, 2) : colours;
        }
        case GameMode::KingOfTheHill:
            return std::clamp(third, 2, mostKingOfTheHillTeams);
        default:
            return 2;
    }
}

void makeQuickStartTeams() {
    teams = makeTeams(quickStartTeamCount());
}

void makeQuickStartPlayers(const DeviceList& devices) {
    const bool inTeams = isTeamMode(gameOptions.gameMode) && !teams.empty();
    const int teamCount = static_cast<int>(teams.size());
    for (int i = 0; i < gameOptions.numPlayers; ++i) {
        addPlayer(i, 0, inTeams ? i % teamCount : -1, defaultPlayerLook(i), devices);
    }
}

void makeReplayPlayers(const std::vector<PlayerSetup>& setups, int version, const DeviceList& devices) {
    for (int i = 0; i < gameOptions.numPlayers; ++i) {
        PlayerLook look = defaultPlayerLook(i);
        if (version < setupsFrom) {
            addPlayer(i, 0, -1, look, devices);
            continue;
        }
        const PlayerSetup& setup = checkedAt(setups, i);
        if (version >= looksFrom || isTeamMode(gameOptions.gameMode)) {
            look = {setup.skin, setup.lookReserved, setup.colour};
        }
        addPlayer(setup.number, version >= cashFrom ? setup.cash : 0, setup.team, look, devices);
    }
}

void makeSnakeHunterTeams() {
    if (gameOptions.gameMode != GameMode::SnakeHunter) {
        return;
    }
    teams = makeTeams(2);
    for (const auto& player : players) {
        player->team = 0;
        teams.front().members.push_back(player);
    }
}

}  // namespace vandrel
