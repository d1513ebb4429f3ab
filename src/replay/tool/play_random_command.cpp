// vandrel-replay play-random: records a round of players who press at random.
#include <fmt/format.h>

#include <algorithm>
#include <boost/algorithm/string.hpp>
#include <cerrno>
#include <ios>
#include <system_error>

#include "match/options/game_options.h"
#include "match/options/name_tables.h"
#include "replay/tool/commands.h"
#include "replay/tool/headless_recording.h"
#include "replay/tool/option_names.h"
#include "shell/frame_counter.h"
#include "shell/switches.h"

namespace vandrel {

namespace {

constexpr int defaultFrames = 3600;
constexpr int mostFrames = 10'000'000;

struct Request {
    std::string path;
    int frames = defaultFrames;
    int seed = 1;
    int bombsEvery = 30;
    std::vector<std::pair<std::string, int>> settings;  // options by name, in the order given
};

template <class Table, class NameOf>
int findName(const Table& table, const std::string& what, const std::string& name, const NameOf& nameOf) {
    for (std::size_t i = 0; i < table.size(); ++i) {
        if (boost::iequals(nameOf(table[i]), name)) {
            return static_cast<int>(i);
        }
    }
    throw UsageError(fmt::format("there is no {} '{}'", what, name));
}

GameMode findMode(const std::string& name) {
    const auto found = std::ranges::find_if(gameModeNames, [&](const GameModeName& mode) {
        return boost::iequals(mode.longName, name) || boost::iequals(mode.shortName, name);
    });
    if (found == gameModeNames.end()) {
        throw UsageError(fmt::format("there is no mode '{}'", name));
    }
    return static_cast<GameMode>(found - gameModeNames.begin());
}

void setRate(int rate) {
    gameOptions.updaterate = rate;
    gameOptions.frameMultiplier = frameMultiplierOf(rate);
}

int numberInRange(const Words& words, std::size_t& i, int low, int high) {
    const std::string& name = words[i];
    const int number = optionNumber(words, i);
    if (number < low || number > high) {
        throw UsageError(fmt::format("{} needs a number from {} to {}", name, low, high));
    }
    return number;
}

// Leaves only the named powerups to be found.
void keepPowerups(const std::string& list) {
    std::vector<std::string> names;
    boost::split(names, list, [](char c) { return c == ','; });
    gameOptions.powerupDisabled.fill(true);
    for (const std::string& name : names) {
        const int bonus =
            findName(bonusNames, "powerup", name, [](const BonusName& names_) { return names_.internalName; });
        gameOptions.powerupDisabled[static_cast<std::size_t>(bonus)] = false;
    }
}

void addSetting(Request& request, const std::string& word) {
    const std::size_t equals = word.find('=');
    if (equals == std::string::npos) {
        throw UsageError(fmt::format("--set needs NAME=VALUE, not '{}'", word));
    }
    const std::string name = word.substr(0, equals);
    const int value = parseWholeNumber(name, word.substr(equals + 1));
    try {
        if (!setOptionByName(gameOptions, name, value)) {
            throw UsageError(fmt::format("there is no option '{}'; there are {}", name, listOptionNames()));
        }
    } catch (const std::out_of_range& failure) {
        throw UsageError(failure.what());
    }
    request.settings.emplace_back(name, value);
}

bool readOption(Request& request, const Words& words, std::size_t& i) {
    const std::string& word = words[i];
    if (word == "--mode") {
        gameOptions.gameMode = findMode(optionValue(words, i));
    } else if (word == "--players") {
        gameOptions.numPlayers = numberInRange(words, i, 1, mostPlayers);
    } else if (word == "--arena") {
        gameOptions.arenaSize =
            findName(arenaSizes, "arena", optionValue(words, i), [](const ArenaSize& size) { return size.name; });
    } else if (word == "--seed") {
        request.seed = optionNumber(words, i);
    } else if (word == "--frames") {
        request.frames = numberInRange(words, i, 0, mostFrames);
    } else if (word == "--bombs-every") {
        request.bombsEvery = numberInRange(words, i, 0, mostFrames);
    } else if (word == "--rate") {
        setRate(numberInRange(words, i, 1, highestUpdateRate));
    } else if (word == "--powerups") {
        keepPowerups(optionValue(words, i));
    } else if (word == "--set") {
        addSetting(request, optionValue(words, i));
    } else {
        return false;
    }
    return true;
}

Request readRequest(const Words& words) {
    Request request;
    for (std::size_t i = 0; i < words.size(); ++i) {
        if (readOption(request, words, i)) {
            continue;
        }
        if (boost::starts_with(words[i], "-") || !request.path.empty()) {
            throw UsageError(fmt::format("unknown word '{}'; see vandrel-replay play-random --help", words[i]));
        }
        request.path = words[i];
    }
    if (request.path.empty()) {
        throw UsageError("play-random needs a file to write");
    }
    return request;
}

// Gives whether the round came to its own end.
bool recordRound(const Request& request) {
    RandomRoundSettings settings;
    settings.path = request.path;
    settings.bombsEvery = request.bombsEvery;
    settings.seed = static_cast<unsigned>(request.seed);
    // What is set stays set, whatever the automatic options have drawn.
    settings.adjustResolved = [&] {
        for (const auto& [name, value] : request.settings) {
            setOptionByName(gameOptions, name, value);
        }
    };
    HeadlessRecording round(settings);
    bool over = false;
    while (!over && frameCounter < request.frames) {
        over = !round.step();
    }
    round.finish();
    return over;
}

int runPlayRandom(const Words& words) {
    const Request request = readRequest(words);
    verifyEnabled = true;
    const bool over = namingFile(request.path, [&] {
        errno = 0;
        try {
            return recordRound(request);
        } catch (const std::ios_base::failure&) {
            throw std::system_error(errno != 0 ? errno : EIO, std::generic_category(), "cannot be written");
        }
    });
    fmt::print("{}: {} frames, {}\n", printable(request.path), static_cast<int>(frameCounter),
               over ? "round over" : "stopped");
    return 0;
}

}  // namespace

const Command playRandomCommand{
    "play-random", runPlayRandom,
    "play-random [OPTION...] OUT       record a round of players who press at random\n\n"
    "Writes the replay OUT and its verification file. The same options give the same round, but for\n"
    "snakes of the computer: how far they think ahead hangs on the machine's speed.\n\n"
    "  --mode NAME         Classic, CTF, \"Battle Royale\", KotH, \"Snake Hunter\", Deathmatch or Everything\n"
    "  --players N         1 to 100; 2 if not given\n"
    "  --arena NAME        Tiny, Classic, Normal, Large, ..., or Auto\n"
    "  --seed N            of the options, the level and the players; 1 if not given\n"
    "  --frames N          stop after N updates, as a round that is quit; 3600 if not given\n"
    "  --bombs-every N     frames from bomb to bomb of a player, on average; 0 for no bombs; 30 if not given\n"
    "  --rate N            updates a second; 60 if not given\n"
    "  --powerups A,B      only these powerups, by their names in files\n"
    "  --set NAME=VALUE    any field of the option record, chosen or resolved\n"};

}  // namespace vandrel
