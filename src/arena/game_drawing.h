// Painting one frame of the arena. Nothing of the game's state changes by it; what it makes for itself hangs on
// `Game::pictures`.
#pragma once

#include "presentation/bitmap_wrapper.h"

namespace vandrel {

class Game;

// Paints the whole arena into the game bitmap, `screen`. The join screen's lobby shows floor, bombs, flames and players
// on a green of its own, and neither walls nor powerups. Throws what a missing resolved option or an unknown powerup
// throws.
void drawGame(Game& game, bool forJoinScreen);

// The same into any bitmap of the arena's size.
void drawGameInto(Game& game, const BitmapWrapper& target, bool forJoinScreen);

}  // namespace vandrel
