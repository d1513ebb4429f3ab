// Painting the trophy room.
#pragma once

#include <string>

#include "frontend/trophy_show.h"
#include "presentation/bitmap_wrapper.h"

namespace vandrel {

// Paints the whole screen. A winner's flight that has no place yet leaves from where the figure is painted.
void drawTrophyRoom(TrophyShow& show, const std::string& text, const BitmapWrapper& target);

}  // namespace vandrel
