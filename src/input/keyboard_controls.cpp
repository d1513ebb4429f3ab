#include "input/keyboard_controls.h"

#include <allegro5/keycodes.h>

#include <utility>

#include "base/checked.h"
#include "input/keyboard.h"

namespace vandrel {

KeyboardControls::KeyboardControls(std::vector<int> keySet) : keys(std::move(keySet)) {}

bool KeyboardControls::upPressed() const {
    return isKeyDown(key(ControlInput::Up));
}
bool KeyboardControls::downPressed() const {
    return isKeyDown(key(ControlInput::Down));
}
bool KeyboardControls::leftPressed() const {
    return isKeyDown(key(ControlInput::Left));
}
bool KeyboardControls::rightPressed() const {
    return isKeyDown(key(ControlInput::Right));
}
bool KeyboardControls::bombPressed() const {
    return isKeyDown(key(ControlInput::Fire));
}
bool KeyboardControls::button2Pressed() const {
    return isKeyDown(key(ControlInput::Button2));
}
bool KeyboardControls::pausePressed() const {
    return isKeyDown(ALLEGRO_KEY_ESCAPE);
}

std::string KeyboardControls::description() const {
    return name(ControlInput::Up) + "\n" + name(ControlInput::Left) + " " + name(ControlInput::Down) + " " +
           name(ControlInput::Right) + "\n" + name(ControlInput::Fire);
}

std::string KeyboardControls::buttonText(ControlInput input) const {
    std::string text = name(input);
    // Two keys that the library has no name for on some systems.
    if (text == "KEY73") {
        return ".";
    }
    if (text == "KEY72") {
        return ",";
    }
    return text;
}

int KeyboardControls::key(ControlInput input) const {
    return checkedAt(keys, static_cast<int>(input));
}

std::string KeyboardControls::name(ControlInput input) const {
    return keyName(key(input));
}

bool isKeyboard(const Controls& device) {
    return dynamic_cast<const KeyboardControls*>(&device) != nullptr;
}

}  // namespace vandrel
