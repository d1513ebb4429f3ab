// The screens on which a custom game is tuned. Their rows write straight into `gameOptions`, where a choice stays until
// the process ends; leaving a screen in whichever way changes nothing.
#pragma once

#include <memory>

#include "frontend/menu_stack.h"

namespace vandrel {

// Randomness, walls and shrinking, and the way to the other screens below.
std::shared_ptr<VandrelMenu> levelMenu(MenuContext& context);

std::shared_ptr<VandrelMenu> playerMenu(MenuContext& context);

std::shared_ptr<VandrelMenu> snakeHunterMenu(MenuContext& context);

// A switch for each powerup that can be left out of the arena. All may be.
std::shared_ptr<VandrelMenu> powerupsMenu(MenuContext& context);

}  // namespace vandrel
