// vandrel-replay info: the header of replays as JSON.
#include <fmt/format.h>

#include <boost/algorithm/string.hpp>
#include <fstream>

#include "arena/arena.h"
#include "base/checked.h"
#include "base/version.h"
#include "match/options/name_tables.h"
#include "players/player.h"
#include "replay/tool/commands.h"
#include "replay/tool/headless_playback.h"
#include "replay/unit/header.h"

namespace vandrel {

namespace {

std::string colourText(const ALLEGRO_COLOR& colour) {
    const RGB rgb = toRGB(colour);
    return fmt::format("[{}, {}, {}]", rgb.red, rgb.green, rgb.blue);
}

std::string optionsText(const OptionRecord& record) {
    std::vector<std::string> fields;
    for (const StoredOption& option : listStoredOptions(record)) {
        const std::string value = option.isFlag ? (option.value != 0 ? "true" : "false") : std::to_string(option.value);
        fields.push_back(fmt::format("    {}: {}", jsonQuoted(option.name), value));
    }
    return boost::join(fields, ",\n");
}

std::string teamsText(const std::vector<PlayerSetup>& setups) {
    std::vector<std::string> texts;
    for (std::size_t i = 0; i < teams.size(); ++i) {
        std::vector<std::string> members;
        for (const PlayerSetup& setup : setups) {
            if (setup.team == static_cast<int>(i)) {
                members.push_back(std::to_string(setup.number));
            }
        }
        texts.push_back(fmt::format("    {{\"colour\": {}, \"members\": [{}]}}", colourText(teams[i].colour),
                                    boost::join(members, ", ")));
    }
    return texts.empty() ? "[]" : fmt::format("[\n{}\n  ]", boost::join(texts, ",\n"));
}

std::string playersText(const std::vector<PlayerSetup>& setups) {
    std::vector<std::string> texts;
    texts.reserve(setups.size());
    for (const PlayerSetup& setup : setups) {
        texts.push_back(fmt::format(
            "    {{\"number\": {}, \"team\": {}, \"skin\": {}, \"lookReserved\": {}, \"colour\": {}, "
            "\"cash\": {}}}",
            setup.number, setup.team, setup.skin, setup.lookReserved, colourText(setup.colour), setup.cash));
    }
    return fmt::format("[\n{}\n  ]", boost::join(texts, ",\n"));
}

std::string describe(const std::string& path) {
    std::ifstream stream(requireRegularFile(path), std::ios::binary);
    stream.exceptions(std::ios::badbit | std::ios::failbit | std::ios::eofbit);
    int version = 0;
    const std::vector<PlayerSetup> setups = loadReplayHeader(stream, version);
    const OptionRecord record{gameOptions, {grid_squares_x, grid_squares_y}, version};
    const auto& mode = checkedAt(gameModeNames, static_cast<int>(gameOptions.gameMode));
    return fmt::format(
        "{{\n  \"file\": {},\n  \"version\": {},\n  \"mode\": {},\n  \"options\": {{\n{}\n  }},\n"
        "  \"flagReach\": {},\n  \"teams\": {},\n  \"players\": {}\n}}",
        jsonQuoted(path), jsonQuoted(versionText(version)), jsonQuoted(mode.longName), optionsText(record),
        static_cast<int>(reaches.flag), teamsText(setups), playersText(setups));
}

// One object for one file, an array for several.
int runInfo(const Words& words) {
    const std::vector<std::string> paths = findReplays(words);
    std::vector<std::string> texts;
    int status = 0;
    for (const std::string& path : paths) {
        try {
            texts.push_back(describe(path));
        } catch (const std::exception& failure) {
            fmt::print(stderr, "vandrel-replay: {}: {}\n", printable(path), failureText(failure));
            status = 1;
        }
    }
    if (paths.size() == 1) {
        fmt::print("{}{}", boost::join(texts, ""), texts.empty() ? "" : "\n");
    } else {
        fmt::print("[{}]\n", boost::join(texts, ",\n"));
    }
    return status;
}

}  // namespace

const Command infoCommand{
    "info", runInfo,
    "info FILE-or-DIR...                show what the headers say, as JSON\n\n"
    "One object for one file, an array of objects for several. Exit status 1 if a header cannot be read.\n"};

}  // namespace vandrel
