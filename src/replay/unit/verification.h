// The second, independent proof of a replay: the place of every living player after each of its updates, and every
// capture, as text. `Player` calls these in both directions; each reader stands beside its writer.
#pragma once

#include <deque>
#include <tuple>

#include "base/facing.h"
#include "replay/unit/packaged_replay_data.h"

namespace vandrel {

// What is proved of one player. Positions are pixels.
struct VerifiedPlayer {
    int num;
    int x;
    int y;
    int snakeLength;  // 0 for who is no snake
    const std::deque<std::tuple<int, int, Facing>>& parts;
};

// In playback compares with the verification text, if there is one; while recording writes the lines. The caller leaves
// the dead out, but for replays that hold them. A difference is a failed assertion that names the field and the
// replay's position.
void verifyPosition(const PackagedReplayData& replayData, const VerifiedPlayer& player);

// The same for a capture by the team with this index, whose score afterwards is `score`: the score in the replay itself
// first, then the verification text.
void verifyCapture(const PackagedReplayData& replayData, int team, int score);

// Whether the verification text holds no more lines of players and captures; true where there is no text.
bool hasVerifyTextEnded(const PackagedReplayData& replayData);

// Requires that the verification text ends here; what is left over or missing is a failed assertion. Nothing where
// there is no text. To be called where the round came to its own end.
void verifyEnd(const PackagedReplayData& replayData);

}  // namespace vandrel
