// The editor of one colour.
#pragma once

#include "base/colour.h"

namespace vandrel {

// Changes `colour` when it is left by "Back", the only way out.
void menuEditColour(RGB& colour);
// The same for a colour of the platform, which comes back opaque.
void menuEditColour(ALLEGRO_COLOR& colour);

}  // namespace vandrel
