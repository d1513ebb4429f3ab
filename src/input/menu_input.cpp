#include "input/menu_input.h"

#include <allegro5/keycodes.h>

#include <algorithm>
#include <memory>
#include <set>

#include "input/controls_manager.h"
#include "input/keyboard.h"
#include "shell/switches.h"

namespace vandrel {
namespace {

using Query = bool (Controls::*)() const;

// The keycodes that the last query of menuKeyPressed found held, by the keycode asked for. Lives as long as the
// program.
std::set<int> heldKeys;

// What stands for a key on a controller; null for nothing.
Query buttonFor(int keycode, bool escapeUsesPause) {
    switch (keycode) {
        case ALLEGRO_KEY_ENTER:
        case ALLEGRO_KEY_SPACE:
        case ALLEGRO_KEY_Y:
            return &Controls::bombPressed;
        case ALLEGRO_KEY_ESCAPE:
            return escapeUsesPause ? &Controls::pausePressed : &Controls::button2Pressed;
        default:
            return nullptr;
    }
}

Query directionFor(int keycode) {
    switch (keycode) {
        case ALLEGRO_KEY_LEFT:
            return &Controls::leftPressed;
        case ALLEGRO_KEY_RIGHT:
            return &Controls::rightPressed;
        case ALLEGRO_KEY_UP:
            return &Controls::upPressed;
        case ALLEGRO_KEY_DOWN:
            return &Controls::downPressed;
        default:
            return nullptr;
    }
}

bool isHeld(int keycode, Query query, int controlMode, bool includeHeldController) {
    if (isKeyDown(keycode)) {
        return true;
    }
    if (controlMode == MenuControlMode::KeyboardOnly || query == nullptr) {
        return false;
    }
    const DeviceList admitted = theControlsManager->menuDevices(controlMode, includeHeldController);
    return std::ranges::any_of(admitted,
                               [query](const std::shared_ptr<Controls>& device) { return ((*device).*query)(); });
}

}  // namespace

int menuControlMode = MenuControlMode::KeyboardAndAnyController;

bool menuKeyDown(int keycode, int controlMode, bool includeHeldController, bool escapeUsesPause) {
    return isHeld(keycode, buttonFor(keycode, escapeUsesPause), controlMode, includeHeldController);
}

bool menuKeyPressed(int keycode, int controlMode, bool includeHeldController) {
    if (isSuspendedByOverlay()) {
        return false;
    }
    if (menuKeyDown(keycode, controlMode, includeHeldController, false)) {
        return heldKeys.insert(keycode).second;
    }
    heldKeys.erase(keycode);
    return false;
}

bool menuDirectionDown(int keycode, int controlMode, bool includeHeldController) {
    return isHeld(keycode, directionFor(keycode), controlMode, includeHeldController);
}

bool pauseCheck() {
    if (isKeyDown(ALLEGRO_KEY_ESCAPE)) {
        return true;
    }
    const DeviceList admitted = theControlsManager->menuDevices(menuControlMode, true);
    return std::ranges::any_of(admitted,
                               [](const std::shared_ptr<Controls>& device) { return device->pausePressed(); });
}

}  // namespace vandrel
