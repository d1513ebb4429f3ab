// The switches of the command line. They are for tests and for finding faults; players need none.
#pragma once

namespace vandrel {

// Takes the arguments from the second on, in order, and sets the switches that they name. An unknown one is shown in a
// box and ends the process with code 0.
void processCommandLine(int argc, const char* const* argv);

// Logs what the automatic options choose, thirty times for each of two modes, nine numbers of players and three grades
// of randomness. Leaves the game mode at Capture the Flag, and the random sources where they came to.
void testAutoGameOptionsDistribution();

}  // namespace vandrel
