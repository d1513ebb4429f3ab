// What a proof has proved: how much was compared, and where it failed. Kept beside the comparisons, so that a check
// which compared nothing is told from one that held. vandrel-replay and the tests read it.
#pragma once

#include <cstdint>

namespace vandrel {

struct Proof {
    std::int64_t inputs = 0;     // input records read
    std::int64_t positions = 0;  // players compared with the verification text
    std::int64_t captures = 0;   // captures compared with it

    // The latest comparison that failed; -1 for the player while none has.
    int player = -1;
    int stored = 0;  // what the file says
    int played = 0;  // what the simulation came to
};

// Counts since the start of the process, or since whoever counts set them back.
extern Proof proof;

// Whether the number of the file is that of the simulation; notes the difference.
inline bool provesEqual(int player, int stored, int played) {
    if (stored == played) [[likely]] {
        return true;
    }
    proof.player = player;
    proof.stored = stored;
    proof.played = played;
    return false;
}

}  // namespace vandrel
