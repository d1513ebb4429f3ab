// What a pause shows, during a match and before it.
#pragma once

#include <memory>

#include "presentation/music.h"

namespace vandrel {

// Shows the menu over what is on the screen until the game goes on; true when the match is to be quit. Then nobody
// holds a bomb button any more. `music` is the match's, or null, and kept alive. With `dim` what lies behind is
// darkened.
bool pauseMenu(const std::shared_ptr<Music>& music, bool dim);

}  // namespace vandrel
