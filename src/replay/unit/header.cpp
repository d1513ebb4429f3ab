#include "replay/unit/header.h"

#include <fmt/format.h>

#include <algorithm>
#include <optional>

#include "arena/arena.h"
#include "base/checked.h"
#include "base/random.h"
#include "base/version.h"
#include "match/options/name_tables.h"
#include "players/player.h"
#include "replay/unit/field_check.h"
#include "replay/unit/streams.h"
#include "shell/assertion.h"

namespace vandrel {

namespace {

constexpr int flagReachFrom = replayVersion(0, 0, 2);
constexpr float oldFlagReach = 8.0f;
constexpr int teamsFrom = replayVersion(0, 0, 4);
constexpr int teamsInTeamModesFrom = replayVersion(0, 0, 6);
constexpr int membersFrom = replayVersion(0, 0, 8);
constexpr int playerRecordsFrom = replayVersion(0, 95, 5);
constexpr int playerNumbersFrom = replayVersion(0, 95, 6);
constexpr int skinsFrom = replayVersion(0, 95, 7);
constexpr int coloursFrom = replayVersion(0, 95, 11);
constexpr int cashFrom = replayVersion(1, 0, 2);

constexpr int mostTeams = mostPlayers;
constexpr int highestNumber = replayEndMark - 1;
constexpr int oldSkinCount = 11;
constexpr int highestChannel = 255;
constexpr std::string_view playersMarker = "***";

using MemberLists = std::vector<std::vector<int>>;  // player numbers by team

void writeColour(std::ostream* stream, const ALLEGRO_COLOR& colour) {
    const RGB rgb = toRGB(colour);
    writeInt(stream, rgb.red);
    writeInt(stream, rgb.green);
    writeInt(stream, rgb.blue);
}

std::uint8_t randomChannel() {
    return static_cast<std::uint8_t>(gameRand() & highestChannel);
}

std::uint8_t readChannel(std::istream* stream) {
    return static_cast<std::uint8_t>(checkedField("colour", readInt(stream), 0, highestChannel));
}

// Old files hold an index into a palette that is gone; any colour does in its place.
ALLEGRO_COLOR readOldColour(std::istream* stream) {
    readInt(stream);
    RGB rgb;
    rgb.red = randomChannel();
    rgb.green = randomChannel();
    rgb.blue = randomChannel();
    return toColour(rgb);
}

ALLEGRO_COLOR readColour(std::istream* stream, int version) {
    if (version < coloursFrom) {
        return readOldColour(stream);
    }
    RGB rgb;
    rgb.red = readChannel(stream);
    rgb.green = readChannel(stream);
    rgb.blue = readChannel(stream);
    return toColour(rgb);
}

void writeTeams(std::ostream* stream) {
    if (!isTeamMode(gameOptions.gameMode)) {
        return;
    }
    writeByte(stream, static_cast<int>(teams.size()));
    for (const Team& team : teams) {
        writeColour(stream, team.colour);
        std::vector<int> numbers;
        for (const auto& member : team.members) {
            if (const auto player = member.lock()) {
                numbers.push_back(player->num);
            }
        }
        writeInt(stream, static_cast<int>(numbers.size()));
        for (const int number : numbers) {
            writeInt(stream, number);
        }
    }
}

std::vector<int> readMembers(std::istream* stream) {
    const int count = checkedField("team members", readInt(stream), 0, gameOptions.numPlayers);
    std::vector<int> numbers(static_cast<std::size_t>(count));
    for (int& number : numbers) {
        number = readInt(stream);
    }
    return numbers;
}

// The oldest team blocks end with a pass over the players: first their teams, later a colour each.
void readSecondPass(std::istream* stream, int version, std::vector<PlayerSetup>& setups, MemberLists& members) {
    for (PlayerSetup& setup : setups) {
        if (version >= membersFrom) {
            setup.colour = readOldColour(stream);
            continue;
        }
        const int team = checkedField("team", readSignedByte(stream), -1, static_cast<int>(members.size()) - 1);
        if (team >= 0) {
            members[static_cast<std::size_t>(team)].push_back(setup.number);
        }
    }
}

MemberLists readTeams(std::istream* stream, int version, std::vector<PlayerSetup>& setups) {
    teams.clear();
    const bool stored = version >= teamsInTeamModesFrom ? isTeamMode(gameOptions.gameMode) : version >= teamsFrom;
    if (!stored) {
        return {};
    }
    const int count = checkedField("teams", readSignedByte(stream), 0, mostTeams);
    MemberLists members;
    for (int i = 0; i < count; ++i) {
        Team team;
        team.colour = readColour(stream, version);
        teams.push_back(team);
        members.push_back(version >= membersFrom ? readMembers(stream) : std::vector<int>{});
    }
    if (version < playerRecordsFrom) {
        readSecondPass(stream, version, setups, members);
    }
    return members;
}

void writePlayer(std::ostream* stream, const Player& player) {
    writeInt(stream, player.num);
    writeInt(stream, player.look.skin);
    writeInt(stream, player.look.reserved);
    writeColour(stream, player.look.colour);
    writeInt(stream, player.cash);
}

void readPlayer(std::istream* stream, int version, PlayerSetup& setup) {
    if (version >= playerNumbersFrom) {
        setup.number = checkedField("player number", readInt(stream), 0, highestNumber);
    }
    if (version >= skinsFrom) {
        setup.skin = checkedField("skin", readInt(stream), 0, skinCount - 1);
        setup.lookReserved = readInt(stream);
    }
    setup.colour = readColour(stream, version);
    if (version >= cashFrom) {
        setup.cash = checkedFrames("cash", readInt(stream));
    }
}

void findTeams(std::vector<PlayerSetup>& setups, const MemberLists& members) {
    const auto isPlayer = [&](int number) {
        return std::any_of(setups.begin(), setups.end(),
                           [&](const PlayerSetup& setup) { return setup.number == number; });
    };
    for (std::size_t team = 0; team < members.size(); ++team) {
        for (const int number : members[team]) {
            if (!isPlayer(number)) {
                refuseField("team member", number);
            }
            for (PlayerSetup& setup : setups) {
                if (setup.number == number && setup.team == -1) {
                    setup.team = static_cast<int>(team);
                }
            }
        }
    }
}

}  // namespace

void writeReplayHeader(std::ostream& stream) {
    const ArenaSize& arenaSize = checkedAt(arenaSizes, gameOptions.arenaSizeResolved.value());
    VANDREL_CHECK(arenaSize.width == grid_squares_x, "arenaSize.x == grid_squares_x");
    VANDREL_CHECK(arenaSize.height == grid_squares_y, "arenaSize.y == grid_squares_y");
    writeOptionRecord(&stream, {grid_squares_x, grid_squares_y});
    writeByte(&stream, static_cast<int>(reaches.flag));
    writeTeams(&stream);
    for (const auto& player : players) {
        writePlayer(&stream, *player);
    }
    writeMarker(&stream, playersMarker);
}

RefusedVersion::RefusedVersion(int version)
    : text_(fmt::format("{}; this build reads up to {}", versionRefusal(version), versionText(replayOutputVersion))) {}

std::vector<PlayerSetup> loadReplayHeader(std::istream& stream, int& version) {
    const std::optional<OptionRecord> record = readOptionRecord(&stream, version);
    if (!record) {
        throw RefusedVersion(version);
    }
    gameOptions = record->options;
    grid_squares_x = record->arenaSize.x;
    grid_squares_y = record->arenaSize.y;
    reaches.flag = version >= flagReachFrom
                       ? static_cast<float>(checkedField("flag reach", readSignedByte(&stream), 0, 127))
                       : oldFlagReach;
    std::vector<PlayerSetup> setups(static_cast<std::size_t>(gameOptions.numPlayers));
    for (std::size_t i = 0; i < setups.size(); ++i) {
        setups[i].number = static_cast<int>(i);
    }
    const MemberLists members = readTeams(&stream, version, setups);
    for (PlayerSetup& setup : setups) {
        if (version >= playerRecordsFrom) {
            readPlayer(&stream, version, setup);
        } else {
            setup.skin = gameRand() % oldSkinCount;
        }
    }
    readMarker(&stream, playersMarker);
    if (isTeamMode(gameOptions.gameMode)) {
        findTeams(setups, members);
    }
    return setups;
}

}  // namespace vandrel
