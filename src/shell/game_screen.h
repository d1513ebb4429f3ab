// The one off-screen bitmap that every screen and the arena draw into, and the way in which it reaches the display:
// scaled, in the middle, with black borders. Users read these globals at each use; a change of screen or of video mode
// replaces them.
#pragma once

#include <memory>
#include <unordered_map>
#include <utility>

#include "presentation/bitmap_wrapper.h"

namespace vandrel {

// Pixels; 0 until the first slot or round.
extern int gameScreenWidth;
extern int gameScreenHeight;

extern std::shared_ptr<BitmapWrapper> screen;         // of the game screen size
extern std::shared_ptr<BitmapWrapper> displayBitmap;  // the display's back buffer, not owned

// The fixed sizes, width and height. A round and the join screen have the arena's size instead.
inline constexpr int menuScreenSlot = 0;
extern const std::unordered_map<int, std::pair<int, int>> gameScreenSlots;

// Clears the display to black and makes a new game bitmap of that size. Throws std::out_of_range for an unknown slot.
void setGameScreenSlot(int slot);

// The same with a size in pixels, for the arena of a round.
void setGameScreenSize(int width, int height);

// Makes a new game bitmap of the game screen size, to be shown on `displayBitmap` as large as that is now, and lets go
// of the old one; the pixels are undefined.
void renewGameScreen();

// Takes `backBuffer`, the display's after its size has changed, and fits the picture into it. The picture stays.
void followDisplay(ALLEGRO_BITMAP* backBuffer);

// Shows the game bitmap.
void presentFrame();

}  // namespace vandrel
