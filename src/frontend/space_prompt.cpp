#include "frontend/space_prompt.h"

#include <allegro5/keycodes.h>

#include "input/menu_input.h"

namespace vandrel {

bool spacePressed() {
    return menuKeyPressed(ALLEGRO_KEY_SPACE, menuControlMode, false);
}

}  // namespace vandrel
