// The files of one round: the replay and its verification text, opened, closed and proved in the one order that keeps what is on
// disk whole. The match driver and the headless rounds each keep one for a round.
#pragma once

#include <fstream>
#include <string>
#include <vector>

#include "replay/unit/header.h"
#include "replay/unit/packaged_replay_data.h"

namespace vandrel {

class RoundStreams {
  public:
    RoundStreams() = default;
    RoundStreams(const RoundStreams&) = delete;
    RoundStreams& operator=(const RoundStreams&) = delete;

    // Opens the replay at `path`, loads its header (which replaces the options, the arena's size and the teams) and its verification
    // text, and gives the players. Logs the path and the version. Throws what `loadReplayHeader` and `openVerifyInput` throw; a file
    // that cannot be opened is an std::ios_base::failure.
    std::vector<PlayerSetup> startPlayback(const std::string& path);

    // Creates the replay at `path`, and its verification text if that is on. Logs the path. A file that cannot be created is
    // noticed by the first write. The header is for the caller to write, once the arena's size is set.
    void startRecording(const std::string& path);

    // Closes what is played. With `ranToItsEnd` the verification text must end here, too.
    void finishPlayback(bool ranToItsEnd);

    // Writes the end mark, closes the replay, and compresses and proves the verification text.
    void finishRecording();

    // The handle for `Game`. It points into this object.
    const PackagedReplayData& data() const { return data_; }

  private:
    std::ifstream input_;
    std::ofstream output_;
    std::ofstream outputVerify_;
    PackagedReplayData data_;
};

}  // namespace vandrel
