// The shared keyboard as it is at the moment of the call: never events, never a state kept from an earlier frame.
#pragma once

#include <functional>
#include <string>

namespace vandrel {

// Whether the key is held. False while an overlay suspends the game. `keycode` is the platform library's.
bool isKeyDown(int keycode);

// True once for each release: at the first call that finds the key up after one that found it down. False, and blind,
// while an overlay suspends the game.
bool wasKeyReleased(int keycode);

// Takes all keys for let go of, without a release. For when another window gets the keys: it also gets the release of
// those that are held.
void letGoOfKeys();

// The platform's name of a key, such as "Up" or "Control_R".
std::string keyName(int keycode);

// Answers whether a key is held, in the place of the real keyboard; an empty function brings the keyboard back.
using KeyState = std::function<bool(int keycode)>;
void setKeyState(KeyState state);

}  // namespace vandrel
