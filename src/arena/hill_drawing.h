// The flickering floor of the hill: tiles in five colours that pulse like a chessboard and change places twice a
// second.
#pragma once

#include "base/vector2.h"
#include "presentation/bitmap_wrapper.h"

namespace vandrel {

class Game;

// How solid a tile of the hill is in this frame, 0 to 255. Even and odd tiles pulse in opposite phase.
int hillTileAlpha(int frame, bool even);

// Makes the five tiles and draws each place's tile by `gameRand`. Painting calls it when it first meets the hill.
void buildHillPattern(Game& game);

// Paints the tiles of one square of the hill.
void drawHillSquare(Game& game, const BitmapWrapper& target, Square square);

}  // namespace vandrel
