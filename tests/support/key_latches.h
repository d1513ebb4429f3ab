// What the queries of the menus remember of the keys, over all screens and so over all tests.
#pragma once

#include <allegro5/keycodes.h>

#include "input/keyboard.h"
#include "input/menu_input.h"

namespace vandrel::test {

// Has the queries see every key let go, so that no press is left for the next test. No key is held meanwhile.
inline void letGoOfAllKeys() {
    setKeyState([](int /*keycode*/) { return false; });
    for (int keycode = 1; keycode < ALLEGRO_KEY_MAX; ++keycode) {
        constexpr int keyboardOnly = 0;
        menuKeyPressed(keycode, keyboardOnly, false);
        wasKeyReleased(keycode);
    }
    setKeyState({});
}

}  // namespace vandrel::test
