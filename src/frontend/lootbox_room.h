// The screen behind every match: the cash of all matches is counted, and what it unlocks is shown.
#pragma once

namespace vandrel {

// Returns at once when there is no new cash or loot boxes are switched off. Otherwise takes the menus' game screen.
// Throws std::runtime_error for a prize whose picture is missing; what was won up to then stays won.
void lootboxRoom();

}  // namespace vandrel
