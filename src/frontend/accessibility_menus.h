// What makes the game easier to see: the accessibility settings and the screens below them.
#pragma once

#include <memory>

#include "frontend/menu_stack.h"

namespace vandrel {

std::shared_ptr<VandrelMenu> accessibilityMenu(MenuContext& context);

}  // namespace vandrel
