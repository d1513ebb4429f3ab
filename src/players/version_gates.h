// The versions from which rules hold that stand in more than one file. All others stand beside their rule.
#pragma once

#include "base/version.h"

namespace vandrel {

inline constexpr int livingOnlyFrom = replayVersion(0, 95, 10);    // the dead have neither records nor lines of proof
inline constexpr int majorStunFrom = replayVersion(0, 95, 16);     // a flame on its head stuns a snake of the computer
inline constexpr int snakesCrushedFrom = replayVersion(1, 0, 10);  // walls hurt snakes, bodies as long as they now are

}  // namespace vandrel
