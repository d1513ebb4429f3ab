// Resolves the chosen options into what the coming round is played with, with a good deal of weighted randomness.
#pragma once

namespace vandrel {

// Fills the resolved half of `gameOptions` from the chosen half, `numPlayers` and `randomness`, and logs one line with
// every choice that was automatic. Draws from `globalGenerator`, from a private copy of it, and from `gameRand`, in an
// order that the sequence of a process's rounds rests on. Throws std::out_of_range "invalid map<K, T> key" for an arena
// size outside the table.
void automaticOptions();

}  // namespace vandrel
