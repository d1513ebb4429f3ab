// One player's input of one frame: the record that makes up nearly all of a replay.
#pragma once

#include "replay/unit/packaged_replay_data.h"

namespace vandrel {

// `xDir`, `yDir` are -1, 0 or 1.
struct InputRecord {
    int xDir = 0;
    int yDir = 0;
    bool fire = false;
    bool button2 = false;
};

// Writes the record of player `num` and flushes it. Throws as the writing operations of the streams do.
void writeInputRecord(const PackagedReplayData& replayData, int num, int xDir, int yDir, bool fire, bool button2);

// Reads the record of player `num`. Throws the int 119 where the end mark stands in its place, a failed assertion for
// another player's record or a direction that no writer makes, and what the reading operations throw.
InputRecord decodeInputRecord(const PackagedReplayData& replayData, int num);

}  // namespace vandrel
