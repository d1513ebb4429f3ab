// Every field of the option record by its name, for command lines.
#pragma once

#include <string>

#include "match/options/game_options.h"

namespace vandrel {

// Sets the field `name` of `options`. Fields of records within it are named with a point, as in
// "respawnWallsResolved.interval" and "powerupDisabled.Bomb". True if there is such a field. Throws std::out_of_range
// with the name and the range for a value that neither menus nor files have.
bool setOptionByName(GameOptions& options, const std::string& name, int value);

// The names, a blank behind each.
std::string listOptionNames();

}  // namespace vandrel
