#define ALLEGRO_UNSTABLE  // for al_clear_keyboard_state
#include "input/keyboard.h"

#include <allegro5/allegro.h>

#include <map>
#include <utility>

#include "shell/switches.h"

namespace vandrel {
namespace {

KeyState replacement;

// By keycode: whether the last query found the key down. Lives as long as the program.
std::map<int, bool> wasDown;

}  // namespace

bool isKeyDown(int keycode) {
    if (isSuspendedByOverlay()) {
        return false;
    }
    if (replacement) {
        return replacement(keycode);
    }
    ALLEGRO_KEYBOARD_STATE state;
    al_get_keyboard_state(&state);
    return al_key_down(&state, keycode);
}

bool wasKeyReleased(int keycode) {
    if (isSuspendedByOverlay()) {
        return false;
    }
    const bool down = isKeyDown(keycode);
    const bool before = std::exchange(wasDown[keycode], down);
    return before && !down;
}

void letGoOfKeys() {
    wasDown.clear();
    if (al_is_keyboard_installed()) {
        al_clear_keyboard_state(nullptr);
    }
}

std::string keyName(int keycode) {
    return al_keycode_to_name(keycode);
}

void setKeyState(KeyState state) {
    replacement = std::move(state);
}

}  // namespace vandrel
