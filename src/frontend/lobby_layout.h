// Where everything stands in the lobby before a match: the arena that holds all devices, a spot for each of them, a
// marker for each team. By numbers alone.
#pragma once

#include <vector>

#include "base/vector2.h"

namespace vandrel {

// The arena of a lobby: a row of the table of arena sizes, and how many spots stand in a row.
struct LobbySize {
    int arenaSize = 0;
    int columns = 0;

    friend constexpr bool operator==(const LobbySize&, const LobbySize&) = default;
};

LobbySize lobbySizeFor(int deviceCount, bool inTeams);

// The pixel positions of the players of `deviceCount` devices, in rows of `columns` from the top of an arena that is
// `width` pixels wide.
std::vector<Pixel> lobbySpots(int deviceCount, int columns, int width);

// The pixels near which a player joins each team: a row at the bottom of an arena of this size in pixels.
std::vector<Pixel> lobbyTeamMarkers(int teamCount, int width, int height);

}  // namespace vandrel
