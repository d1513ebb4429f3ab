// The handle on the streams of one round: what is read in playback, what is written while recording, and by which
// version's rules the round is played. Built once a round and copied into `Game`.
#pragma once

#include <iosfwd>
#include <memory>
#include <optional>
#include <string>

namespace vandrel {

class RoundWriter;

struct PackagedReplayData {
    std::istream* input = nullptr;   // the replay being played; null while none is open
    std::ostream* output = nullptr;  // the replay being written; null while none is open
    bool playback = false;
    std::optional<int> version;  // of the replay being played; empty in a new game
    bool recording = false;
    std::shared_ptr<std::istream> inputVerify;  // the verification text to compare with; null if there is none
    std::ostream* outputVerify = nullptr;       // the verification text being written; null while none is open
    RoundWriter* writer = nullptr;              // what hands both of these to the system; null where nothing does
    std::string filename;

    // Whether the rules of before `gate` hold: a file of an older version is being played. A new game always plays by
    // the newest rules.
    bool isOlderThan(int gate) const { return playback && version.has_value() && *version < gate; }
    // Whether records are written: playback never writes.
    bool writes() const { return recording && !playback; }
};

}  // namespace vandrel
