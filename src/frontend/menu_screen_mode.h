// The chooser of the screen mode.
#pragma once

namespace vandrel {

// Shows the chooser until it is left. A mode that is applied is stored once somebody confirms it, and undone otherwise.
// Throws what `setVideoMode` throws.
void menuScreenMode();

}  // namespace vandrel
