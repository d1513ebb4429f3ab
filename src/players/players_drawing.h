// Painting the players: particles, respawn rings, ghosts, afterimages, snakes and the small overlays, the lower ones
// over the higher ones.
#pragma once

#include "presentation/bitmap_wrapper.h"

namespace vandrel {

// Whether each player is shown with the debug name of its device. The debug menu sets it.
extern bool showControllerDebug;

// Paints all of `players` into `target`.
void drawPlayers(const BitmapWrapper& target);

}  // namespace vandrel
