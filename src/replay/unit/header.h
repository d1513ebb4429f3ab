// The head of a replay: options, teams and players. The match driver writes it at the start of a round and loads it at
// the entry of a replay; the browser reads the options alone (option_record.h).
#pragma once

#include <iosfwd>
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

// Writes `gameOptions`, the arena's size, `teams` and `players`. The size must be that of the resolved arena, or an
// assertion fails.
void writeReplayHeader(std::ostream& stream);

// Replaces `gameOptions`, the arena's size, the reach of flags and `teams` by what the file says, and gives the
// players, whose teams are found; the teams' members are for the caller to add, once the players exist. Throws
// std::runtime_error for a version that this build cannot play, for a wrong marker and for a number that no release
// wrote, std::ios_base::failure for a short file.
std::vector<PlayerSetup> loadReplayHeader(std::istream& stream, int& version);

}  // namespace vandrel
