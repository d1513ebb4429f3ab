// The floor's colour.
#pragma once

#include "base/colour.h"

namespace vandrel {

// The background during the warning before the walls close in, `countdown` running from 0 down to -500: eight pulses
// from `base` to pure red and back.
RGB warningColour(RGB base, int countdown);

}  // namespace vandrel
