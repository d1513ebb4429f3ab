// The first part of a replay: the version and every option that decides the round, with the whole history of what older
// releases stored. One list of fields serves both directions.
#pragma once

#include <iosfwd>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "base/vector2.h"
#include "match/options/game_options.h"

namespace vandrel {

// What the option record says of a round.
struct OptionRecord {
    GameOptions options;
    Square arenaSize;  // in squares
    int version = 0;
};

// Writes this build's version, `gameOptions` and the arena's size, up to the marker behind the options. Throws what the
// writing operations throw.
void writeOptionRecord(std::ostream* stream, Square arenaSize);

// Why a replay of this version cannot be read, in words for the player; empty for one that can.
std::string versionRefusal(int version);

// Reads all of that; what is not stored has the value of a fresh record, what the version did not know yet the value
// that its rules implied. Empty, with `version` set, for a version that is refused. Throws
// std::runtime_error that names the field for a number that no release wrote, or for a wrong marker, and
// std::ios_base::failure for a short file.
std::optional<OptionRecord> readOptionRecord(std::istream* stream, int& version);

// The options of that alone.
std::optional<GameOptions> readGameOptions(std::istream& stream, int& version);

// One field of the record, for who shows it or looks for it by name.
struct StoredOption {
    std::string_view name;
    int value;
    bool isFlag;
};

// Every field behind the version, in the order of the file.
std::vector<StoredOption> listStoredOptions(const OptionRecord& record);

}  // namespace vandrel
