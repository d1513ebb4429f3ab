// The game's title as the top of a screen.
#pragma once

#include "presentation/bitmap_wrapper.h"

namespace vandrel {

// The logo, in the middle at the top.
void drawTitle(const BitmapWrapper& target);

// The logo with the line beneath it.
void drawTitleWithCaption(const BitmapWrapper& target);

}  // namespace vandrel
