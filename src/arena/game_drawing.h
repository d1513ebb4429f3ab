// Painting one frame of the arena. Nothing of the game's state changes by it; what it makes for itself hangs on
// `Game::pictures`.
#pragma once

#include "presentation/bitmap_wrapper.h"

namespace vandrel {

class Game;

// Paints the whole arena into `target`, a bitmap of the arena's size: the game's `screen`, for all but tests. The join
// screen's lobby shows floor, bombs, flames and players on a green of its own, and neither walls nor powerups. Throws
// what a missing resolved option or an unknown powerup throws.
void drawGame(Game& game, const BitmapWrapper& target, bool forJoinScreen);

}  // namespace vandrel
