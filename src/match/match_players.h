// The teams and players of a match, made once at its start.
#pragma once

#include <memory>
#include <vector>

#include "arena/team.h"
#include "input/controls_manager.h"
#include "replay/unit/header.h"

namespace vandrel {

// Empties the players and the teams, as a match begins and ends.
void clearMatch();

// Who holds which device, in the order of the players; those of the computer among them.
std::vector<DeviceHolder> listDeviceHolders();

// That many teams of nobody, each in its team colour as far as there are so many.
std::vector<Team> makeTeams(int count);

// The number of teams that quick start makes for `numPlayers` players in this mode.
int quickStartTeamCount();

// Makes the teams of a quick start in a team mode, one in each of the first team colours.
void makeQuickStartTeams();

// Makes `numPlayers` players. In a quick start of a team mode they go to the teams by turns. Device number i modulo the
// number of devices belongs to player i.
void makeQuickStartPlayers(const DeviceList& devices);

// Makes the players of a replay as its header tells; `version` is the replay's.
void makeReplayPlayers(const std::vector<PlayerSetup>& setups, int version, const DeviceList& devices);

// In Snake Hunter alone: two teams made afresh, all humans in the first, the second left to the snakes of the computer.
void makeSnakeHunterTeams();

}  // namespace vandrel
