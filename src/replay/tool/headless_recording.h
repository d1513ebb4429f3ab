// A round of players who press at random, played with no screen and recorded. vandrel-replay, the tests and the
// benchmarks use it. There is one arena in the process, so one round at a time.
#pragma once

#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "arena/game.h"
#include "match/round_files.h"
#include "replay/tool/random_controls.h"

namespace vandrel {

struct RandomRoundSettings {
    std::string path;     // of the replay; empty records nothing
    unsigned seed = 0;    // of the options, the level and the players
    int bombsEvery = 30;  // frames between presses of the fire control, on average; 0 for none
    // Called behind the automatic options, to set what they have drawn.
    std::function<void()> adjustResolved;
};

class HeadlessRecording {
  public:
    // Sets up a round of `gameOptions`, whose chosen half says mode, players and arena. Throws
    // `Game::PlayerPositionSetupError` where the arena is too small, and what the writing operations throw.
    explicit HeadlessRecording(const RandomRoundSettings& settings);
    // Empties the arena and puts the options back. A file that was not finished is left as it stands, as by a crash.
    ~HeadlessRecording();
    HeadlessRecording(const HeadlessRecording&) = delete;
    HeadlessRecording& operator=(const HeadlessRecording&) = delete;

    // Plays one update; false once the round is over.
    bool step();
    // Writes the end mark and proves the verification file. To be called behind the last step, wherever that is.
    void finish();

    Game& game() { return *game_; }

  private:
    GameOptions backup_;
    std::vector<std::shared_ptr<RandomControls>> devices_;
    std::optional<RoundBeingRecorded> files_;
    std::unique_ptr<Game> game_;
    bool roundOver_ = false;
};

}  // namespace vandrel
