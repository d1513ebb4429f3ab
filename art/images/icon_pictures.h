// The game's icon: a face under a red cap before a bomb. The small one is a map of its own, since a reduced picture of
// that size is mud. Larger sizes are whole multiples of these two.
#pragma once

#include "painter/canvas.h"

namespace vandrel::art {

// 16 by 16 pixels.
Canvas smallIcon();

// 32 by 32 pixels.
Canvas largeIcon();

}  // namespace vandrel::art
