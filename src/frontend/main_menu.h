// The root of the menus.
#pragma once

#include <memory>

#include "frontend/menu_stack.h"

namespace vandrel {

std::shared_ptr<VandrelMenu> mainMenu(MenuContext& context);

}  // namespace vandrel
