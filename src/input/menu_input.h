// The questions that menus ask: the keyboard and the controllers that the menu control mode admits, as one. Keys are
// named by keycode; a controller's bomb button answers for Enter, Space and Y, its second button for Escape, its
// directions for the arrows.
#pragma once

namespace vandrel {

// The configured mode, a value of MenuControlMode.
extern int menuControlMode;

// Whether the key, or what stands for it on an admitted controller, is held. With `escapeUsesPause` the pause button
// stands for Escape.
bool menuKeyDown(int keycode, int controlMode, bool includeHeldController, bool escapeUsesPause);

// True once for each press. The keys seen held are remembered over all screens, so a key still held from the screen
// before does not count as a press on this one.
bool menuKeyPressed(int keycode, int controlMode, bool includeHeldController);

// Whether the arrow key, or that direction on an admitted controller, is held.
bool menuDirectionDown(int keycode, int controlMode, bool includeHeldController);

// Whether somebody asks for the pause menu: Escape, or the pause button of a controller that the configured mode
// admits.
bool pauseCheck();

}  // namespace vandrel
