#include "frontend/lobby_layout.h"

#include <algorithm>
#include <array>

#include "match/options/name_tables.h"

namespace vandrel {

namespace {

// For at least so many devices, with and without teams. The first row that fits decides.
struct SizeRow {
    int devicesInTeams;
    int devicesAlone;
    LobbySize size;
};

constexpr std::array<SizeRow, 4> sizes{{
    {40, 40, {hugeArena, 16}},
    {21, 31, {largerArena, 13}},
    {7, 13, {largeArena, 10}},
    {0, 0, {normalArena, 6}},
}};

// Pixels.
constexpr int sideMargins = 64;
constexpr int topMargin = 48;
constexpr int rowHeight = 128;
constexpr int markersAboveBottom = 64;

}  // namespace

LobbySize lobbySizeFor(int deviceCount, bool inTeams) {
    const auto fits = [&](const SizeRow& row) {
        return deviceCount >= (inTeams ? row.devicesInTeams : row.devicesAlone);
    };
    return std::ranges::find_if(sizes, fits)->size;
}

std::vector<Pixel> lobbySpots(int deviceCount, int columns, int width) {
    const int across = std::min(columns, deviceCount) + 1;
    const int gap = (width - sideMargins) / across;
    std::vector<Pixel> spots;
    spots.reserve(static_cast<std::size_t>(deviceCount));
    for (int i = 0; i < deviceCount; ++i) {
        spots.push_back({(i % columns + 1) * gap, i / columns * rowHeight + topMargin});
    }
    return spots;
}

std::vector<Pixel> lobbyTeamMarkers(int teamCount, int width, int height) {
    std::vector<Pixel> markers;
    markers.reserve(static_cast<std::size_t>(teamCount));
    for (int i = 0; i < teamCount; ++i) {
        markers.push_back({(2 * i + 1) * width / (2 * teamCount), height - markersAboveBottom});
    }
    return markers;
}

}  // namespace vandrel
