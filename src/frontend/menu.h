// The game's front door: the main menu and everything below it.
#pragma once

namespace vandrel {

// Shows the menus until the player quits to the desktop. A first run asks about phobias before. Matches and replays run
// in here, from the row that starts them.
void menu();

}  // namespace vandrel
