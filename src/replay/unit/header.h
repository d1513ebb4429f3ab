// The head of a replay: options, teams and players. The match driver writes it at the start of a round and loads it at
// the entry of a replay; the browser reads the options alone (option_record.h).
#pragma once

#include <iosfwd>
#include <optional>
#include <string>
#include <vector>

#include "base/colour.h"
#include "replay/unit/option_record.h"

namespace vandrel {

// What the header says of one player.
struct PlayerSetup {
    int number = -1;
    int team = -1;  // index in `teams`
    int skin = 0;
    int lookReserved = 0;  // the second word of a look, written back as held
    ALLEGRO_COLOR colour{0.0f, 0.0f, 0.0f, 1.0f};
    int cash = 0;
};

// There are no options to be had: the file is of a version that this build cannot play. Says so in words for the
// player.
class RefusedVersion : public std::bad_optional_access {
  public:
    explicit RefusedVersion(int version);
    const char* what() const noexcept override { return text_.c_str(); }

  private:
    std::string text_;
};

// Writes `gameOptions`, the arena's size, `teams` and `players`. The size must be that of the resolved arena, or an
// assertion fails.
void writeReplayHeader(std::ostream& stream);

// Replaces `gameOptions`, the arena's size, the reach of flags and `teams` by what the file says, and gives the
// players, whose teams are found; the teams' members are for the caller to add, once the players exist. Throws
// RefusedVersion, std::runtime_error for a wrong marker and for a number that no release wrote, std::ios_base::failure
// for a short file.
std::vector<PlayerSetup> loadReplayHeader(std::istream& stream, int& version);

}  // namespace vandrel
