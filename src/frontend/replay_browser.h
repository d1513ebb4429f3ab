// The replay menu: every recorded round with what it was, to be played or deleted. The main menu pushes it.
#pragma once

#include <memory>

#include "frontend/menu_stack.h"
#include "frontend/play_replays.h"

namespace vandrel {

// A row for each replay there is at this moment, newest first, behind that of the mass test if that is offered. Enter
// plays a round or shows why it cannot be played, Delete asks and removes it with its verification files.
std::shared_ptr<VandrelMenu> replayMenu(MenuContext& context, const ReplayPlayer& play = playReplay);

}  // namespace vandrel
