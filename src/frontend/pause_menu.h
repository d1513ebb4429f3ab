// What happens when somebody presses pause during a match.
#pragma once

#include <memory>

#include "presentation/music.h"

namespace vandrel {

// True when the match is to be quit, which is what a pause means. `music` is the match's, or null; `inJoinScreen` tells
// the lobby from a round.
bool pauseMenu(const std::shared_ptr<Music>& music, bool inJoinScreen);

}  // namespace vandrel
