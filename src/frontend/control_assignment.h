// Two menus of the pause, by which a player of the match gets another device. Devices are shared, not taken: two
// players can hold one, and both then follow it. Labels say what was so when the menu was opened.
#pragma once

#include <memory>

#include "frontend/menu_stack.h"

namespace vandrel {

class Player;

// Pushes the menu of the players and their devices; a row opens the other menu. Rows stand at `x`, in pixels. The stack
// outlives its menus.
void controlAssignmentMenu(MenuStack& stack, int x);

// Pushes the menu of the devices from which `player` chooses. It stays open after a choice.
void chooseControllerMenu(const std::shared_ptr<Player>& player, MenuStack& stack, int x);

}  // namespace vandrel
