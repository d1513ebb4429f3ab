// The part of a replay that follows the header: what the set-up of a round decided, its arena and its start positions.
#pragma once

#include "replay/unit/packaged_replay_data.h"

namespace vandrel {

class Game;

// Time before the walls close, whether they may, and the hill. The time goes to `gameOptions`, the rest to `game`.
void writeRoundRecords(const PackagedReplayData& replayData, const Game& game);
void readRoundRecords(const PackagedReplayData& replayData, Game& game);

// Kind and powerup of every square, and the pixel position of every player, each with its marker behind it. Reading
// fills the layers, which have their size already, and moves the players; it throws std::runtime_error for a wrong
// marker and for a kind or powerup that no release wrote.
void writeGrid(const PackagedReplayData& replayData);
void readGrid(const PackagedReplayData& replayData);

}  // namespace vandrel
