// The update rate: how many ticks a second.
#pragma once

namespace vandrel {

struct GameOptions;

// Stores the rate (updates a second, 1 to `highestUpdateRate`) and its multiplier in the options and replaces the frame
// timer by one of that period, running. The rate changes in no other way.
void setUpdateRate(int rate, GameOptions& options);

}  // namespace vandrel
