// The files of one round: the replay that is played, or the replay and verification text that are written.
#pragma once

#include <fstream>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "replay/unit/header.h"
#include "replay/unit/packaged_replay_data.h"
#include "replay/unit/round_writer.h"
#include "replay/unit/verify_files.h"

namespace vandrel {

// A replay opened for playing. Opening loads its header, which replaces `gameOptions`, the arena's size, the reach of
// flags and the teams.
class ReplayBeingPlayed {
  public:
    // Throws what reading the header throws, and std::runtime_error for a verification text of more than
    // `mostVerifyText` bytes.
    explicit ReplayBeingPlayed(const std::string& name, std::size_t mostVerifyText = largestDecompressed);

    int version() const { return version_; }
    const std::vector<PlayerSetup>& playerSetups() const { return playerSetups_; }
    const VerifyInput& verifyInput() const { return verify_; }
    // Ready for `Game`.
    PackagedReplayData data(bool record);
    // Closes the file. With `cameToItsEnd` requires that the verification text is used up.
    void finish(bool cameToItsEnd);

  private:
    std::string name_;
    std::ifstream file_;
    int version_ = 0;
    std::vector<PlayerSetup> playerSetups_;
    VerifyInput verify_;
};

// A round being recorded, or, made without a name, one that writes nothing.
class RoundBeingRecorded {
  public:
    // Creates the replay file of that path and its verification text, and writes the header from `gameOptions`, players
    // and teams. The arena's size is that of the resolved options. An empty path records nothing. Throws what the
    // writing operations throw.
    explicit RoundBeingRecorded(const std::string& name);

    PackagedReplayData data();
    // Writes the end mark and proves the verification file. To be called at every end of a round, a quit one too.
    void finish();
    // The replay's path; empty where nothing is recorded.
    const std::string& name() const { return name_; }

  private:
    bool record_;
    std::string name_;
    std::ofstream file_;
    std::ofstream verify_;
    std::optional<RoundWriter> writer_;
};

}  // namespace vandrel
