// The one display, the one event queue and the frame timer. What is drawn goes through the game screen, which every
// user of the display needs too and finds here.
#pragma once

#include <allegro5/allegro.h>

#include "shell/game_screen.h"

namespace vandrel {

extern ALLEGRO_DISPLAY* theDisplay;  // null until the first setVideoMode
extern ALLEGRO_EVENT_QUEUE* eventQueue;
extern ALLEGRO_TIMER* frameTimer;

// The size of monitor 0 in pixels; 0 by 0 without a monitor.
extern int desktopWidth;
extern int desktopHeight;

// Creates the display or changes it. `adapter` is a monitor, -1 for the default, which also stands in for one that is
// not there; another one than before means a new display, with new shaders and fonts. In a fullscreen window the
// monitor gives the size. Always true. Throws std::runtime_error "Failed to create display".
bool setVideoMode(int width, int height, bool windowed, int adapter);

// Takes the size that somebody else, such as a window manager, has given the display, and fits the picture into it.
// Logs the size. Nothing happens without a display.
void acknowledgeResize();

}  // namespace vandrel
