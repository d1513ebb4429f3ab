// The images of the game by number: loaded at start-up, the prize pictures at first use, and kept until the process
// ends.
#pragma once

#include <allegro5/allegro.h>

#include <array>
#include <optional>

#include "presentation/bitmap_ids.h"

namespace vandrel {

// The handle of each image, null for one that is not in memory. Images of up to 64 pixels are parts of atlas pages.
extern std::array<ALLEGRO_BITMAP*, bitmapCount> bitmapTable;

// Loads the image with number `id`, or, without one, all but the lazy ones, from the directories below the working
// directory. Magenta becomes transparent. Throws std::runtime_error "Image not found: NAME" or "Error loading PATH".
void loadBitmaps(std::optional<int> id = {});

// Gives up what was only kept to compose pictures faster. The images stay. Called at shutdown, while the display still
// exists.
void releaseBitmapCaches();

// These load a lazy image on demand, and throw as `loadBitmaps` then. Sizes are in pixels.
ALLEGRO_BITMAP* getBitmap(BitmapIds id);
int bitmapWidth(BitmapIds id);
int bitmapHeight(BitmapIds id);

}  // namespace vandrel
