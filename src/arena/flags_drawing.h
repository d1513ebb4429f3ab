// Flags and the bases of teams.
#pragma once

#include "presentation/bitmap_wrapper.h"

namespace vandrel {

class Game;
struct Flag;

// The flag where it stands, or in the hand of who carries it.
void drawFlag(Game& game, const BitmapWrapper& target, const Flag& flag);

// Rings flat on the floor, with the score in them.
void drawTeamBases(const BitmapWrapper& target);

}  // namespace vandrel
