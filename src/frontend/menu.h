// The way into the game after start-up.
#pragma once

namespace vandrel {

// Plays matches of the first two key sets, in the mode and by the options that the process holds, until one is quit;
// then the process may end.
void menu();

}  // namespace vandrel
