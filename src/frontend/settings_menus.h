// The settings that are kept in the configuration or last until the process ends, but for those of accessibility. The
// builders make a menu each, which `menu` pushes.
#pragma once

#include <memory>

#include "frontend/menu_stack.h"

namespace vandrel {

// Closing it stores the menu control mode, what is recorded, and whether the replay test and the frame rate are shown.
std::shared_ptr<VandrelMenu> settingsMenu(MenuContext& context);

// Which animals the players want to see. To build it marks the question as asked. The first run's form ends in "Done".
std::shared_ptr<VandrelMenu> phobiasMenu(MenuContext& context, bool firstRun);

}  // namespace vandrel
