// Which way a snake of the computer turns, from what its search found in each direction, and how the depth of the next
// search follows the time that this one took. `Player` decides with these; it does so only in live play, since a replay
// stores the choice.
#pragma once

#include <span>

#include "base/vector2.h"
#include "players/snake_search.h"

namespace vandrel {

struct DirectionFound {
    Square direction;
    CheckDirectionResult result;
};

// The direction with the best score, then with the most paths, the first of equals; (1, 0) for an empty list. With
// `randomise`, which draws from `gameRand`, a later direction of equal score that has nearly as many paths may win by a
// coin.
Square chooseDirection(std::span<const DirectionFound> found, bool randomise);

// Changes `gameOptions.aiSearchDepth` after a decision that took this many whole milliseconds, and logs the change:
// deeper when there was time to spare, less deep when the frame was held up.
void adaptSearchDepth(long long milliseconds);

}  // namespace vandrel
