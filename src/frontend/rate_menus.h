// The two screens that change the update rate. Nothing of it is stored.
#pragma once

#include <memory>

#include "frontend/menu_stack.h"

namespace vandrel {

std::shared_ptr<VandrelMenu> slowMotionMenu(MenuContext& context);
std::shared_ptr<VandrelMenu> highFrameRateMenu(MenuContext& context);

}  // namespace vandrel
