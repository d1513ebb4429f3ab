// The digest of a round: for each update and each group of the state two bytes. It proves what the verification text
// does not hold: bombs, headings, cash, powerups, walls, timers, random sources. `vandrel-replay digest` writes it
// beside a replay, and `vandrel-replay verify` compares with it.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "arena/game.h"
#include "replay/tool/state_fields.h"

namespace vandrel {

// By `StateGroup`.
using StateDigest = std::array<std::uint16_t, stateGroupNames.size()>;

// The digest of the round as it stands.
StateDigest digestOf(const Game& game);

// The names of the groups in which the two differ, joined by commas; empty if they are equal.
std::string differingGroups(const StateDigest& a, const StateDigest& b);

struct RoundDigest {
    std::uint32_t replayChecksum = 0;  // CRC-32 of the replay's bytes, some of which change nothing
    std::vector<StateDigest> updates;
};

// The file of a round's digest: gzip over a line "vandrel-digest 1", a line with the names of the groups, a line
// "replay " with the checksum as eight hexadecimal digits, and then for each group its numbers of all updates, the low
// byte first.
std::string packDigest(const RoundDigest& digest);
// Throws std::runtime_error for anything that `packDigest` did not write.
RoundDigest unpackDigest(std::string_view file);

// The CRC-32 of a file. Throws std::runtime_error with the path if it cannot be read.
std::uint32_t checksumOf(const std::string& path);

// The path of the digest beside a replay.
std::string digestPath(const std::string& replayPath);

// Compares a round with the digest beside its replay, if there is one.
class DigestCheck {
  public:
    // Throws std::runtime_error with the digest's path if it cannot be read.
    explicit DigestCheck(const std::string& replayPath);

    // To be called after each update. Throws std::runtime_error that names the update, counted from 0, and the groups.
    void compare(const Game& game);
    // To be called after the last update. Throws std::runtime_error if the digest tells of more updates, or was made
    // from a replay of other bytes.
    void requireAllCompared() const;

  private:
    std::string replayPath_;
    std::optional<RoundDigest> digest_;
    std::size_t update_ = 0;
};

}  // namespace vandrel
