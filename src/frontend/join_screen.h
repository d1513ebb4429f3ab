// The live lobby in which people join before a match.
#pragma once

namespace vandrel {

// Runs the lobby for the mode of `gameOptions`. True when a match shall start: `players` and `teams` are then those of
// the match, and `numPlayers` is set. False when it was left; players and teams are then as they happen to be.
bool playerJoinScreen();

}  // namespace vandrel
