// The update rate: how many ticks a second, and what values tuned at 60 are multiplied by.
#pragma once

namespace vandrel {

struct GameOptions;

// 2 at 120 and 144 updates a second, else 1.
int frameMultiplierOf(int rate);

// Stores the rate (updates a second, at least 1) and its multiplier in the options and replaces the frame timer by one
// of that period, running. The rate changes in no other way.
void setUpdateRate(int rate, GameOptions& options);

}  // namespace vandrel
