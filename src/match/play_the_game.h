// Runs one match, from the press of a start button or the choice of a replay to the return to the menu: a series of
// rounds, each with a `Game` and, when recording, a replay file of its own.
#pragma once

#include <string>

#include "match/frame_loop.h"

namespace vandrel {

// Plays a match by `gameOptions`, or the round of the replay named `replayName`. The options are put back at the end.
// True if the match was left by quitting, or an arena could not be filled; false if it ran to its end. The caller then
// brings back the menu's music and screen and releases the sprite cache.
bool play_the_game(bool record, const std::string& replayName, ReplayTestOptions testOptions);

}  // namespace vandrel
