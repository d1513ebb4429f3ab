// Painting the lobby before a match.
#pragma once

#include "presentation/bitmap_wrapper.h"

namespace vandrel {

class Lobby;

// Paints one frame of the lobby into `target`, a bitmap of the arena's size.
void drawLobby(Lobby& lobby, const BitmapWrapper& target);

}  // namespace vandrel
