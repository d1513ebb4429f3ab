// One recorded round, played with no screen as fast as it can be: what the match driver does around a round, and no
// more. vandrel-replay, the tests and the benchmarks use it. There is one arena in the process, so one round at a time.
#pragma once

#include <cstdint>
#include <memory>
#include <string>

#include "arena/game.h"
#include "match/options/game_options.h"
#include "match/round_files.h"

namespace vandrel {

// How a playback came to its end.
enum class PlaybackEnd {
    Running,
    RoundOver,  // the round's own end
    EndMark,    // the recording was stopped before that
    CutShort,   // the file breaks off
};

// Gives the path. Throws std::runtime_error in words that the streams do not have, unless it is a regular file that can
// be opened.
const std::string& requireRegularFile(const std::string& path);

class HeadlessPlayback {
  public:
    // Opens the replay and sets its round up. Throws std::runtime_error for what is no file, and whatever a broken one
    // has the reading operations throw.
    explicit HeadlessPlayback(const std::string& path);
    // Empties the arena and puts the options back.
    ~HeadlessPlayback();
    HeadlessPlayback(const HeadlessPlayback&) = delete;
    HeadlessPlayback& operator=(const HeadlessPlayback&) = delete;

    // Plays one update; false once there is no more. Throws the failed assertion of the first difference.
    bool step();
    // Throws std::runtime_error if the file holds records behind those that were played.
    void requireAllPlayed();
    // To be called behind the last step: closes the file and requires that the verification text, if there is one, is
    // used up, with nothing behind its end. A replay that breaks off is let be.
    void finish();

    PlaybackEnd end() const { return end_; }
    bool isVerified() const { return data_.inputVerify != nullptr; }
    // Names a verification file that was passed over; empty if none was.
    const std::string& verifyNote() const { return replay_.verifyInput().note; }
    int version() const { return replay_.version(); }
    const Game& game() const { return *game_; }
    // Where the next record begins, in bytes from the start of the file.
    long long position() const;

  private:
    bool mayGoOnBehindRecords();

    struct OptionsBackup {
        GameOptions options = gameOptions;
        ~OptionsBackup() { gameOptions = options; }
    };

    OptionsBackup backup_;
    ReplayBeingPlayed replay_;
    PackagedReplayData data_;
    std::unique_ptr<Game> game_;
    PlaybackEnd end_ = PlaybackEnd::Running;
    int updatesBehindRecords_ = 0;
};

}  // namespace vandrel
