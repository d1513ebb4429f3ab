// Makes the arena of one round: layers, bases, flags, hill, start squares; and writes it to the replay, or reads it
// from there.
#pragma once

#include "base/vector2.h"
#include "replay/unit/packaged_replay_data.h"

namespace vandrel {

class Game;

// `gridSize` in squares. With `forJoinScreen` the outer ring is all there is, and nobody is placed. Throws
// `Game::PlayerPositionSetupError` where the arena is too small for the players.
void setUpRound(Square gridSize, const PackagedReplayData& replayData, Game& game, bool forJoinScreen);

}  // namespace vandrel
