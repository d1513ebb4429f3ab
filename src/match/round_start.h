// The step between the set-up of a round and its first update, for rounds with and without a screen.
#pragma once

namespace vandrel {

class Game;

// Sets what counts down from the resolved options, wakes the players, puts out the sparks of the round before, and
// counts updates from 0.
void startRound(Game& game);

}  // namespace vandrel
