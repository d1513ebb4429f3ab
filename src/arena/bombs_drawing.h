// Bombs, rockets, flames and the powerups on the floor.
#pragma once

#include "presentation/bitmap_ids.h"
#include "presentation/bitmap_wrapper.h"

namespace vandrel {

class Game;
struct Bomb;

// The image of a bomb with `fuse` frames left: the pictures run out with the last ninety frames at 60 Hz, however long
// the fuse.
BitmapIds bombBitmap(const Bomb& bomb);

// The image of a powerup. Throws std::out_of_range "invalid unordered_map<K, T> key" for one that is never shown.
BitmapIds bonusBitmap(int bonus);

// All live bombs, in the chosen colour if bombs are recoloured.
void drawBombs(const BitmapWrapper& target);

// Tails first, so that the fronts lie over them.
void drawFlames(const Game& game, const BitmapWrapper& target);

}  // namespace vandrel
