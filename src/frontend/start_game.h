// The way from the main menu into a match: the choice of a mode.
#pragma once

#include <functional>
#include <memory>

#include "frontend/menu_stack.h"

namespace vandrel {

// Plays a match by `gameOptions`. The menus' `music` is silent meanwhile; it starts anew on their screen afterwards.
void startMatch(std::shared_ptr<Music>& music);

// What a start row does once the mode is set; tests look on instead of playing.
using MatchStart = std::function<void(std::shared_ptr<Music>& music)>;

// The modes, the options that are changed most, and the way to all others.
std::shared_ptr<VandrelMenu> startGameMenu(MenuContext& context, const MatchStart& start = startMatch);

// What belongs to a match of all modes at once.
std::shared_ptr<VandrelMenu> everythingMenu(MenuContext& context, const MatchStart& start = startMatch);

}  // namespace vandrel
