// The burst of sparks at a capture or a won auction. Looks only: their draws come from `particleGenerator`, and the
// frame loop, not the round's update, moves them on.
#pragma once

#include <vector>

#include "base/colour.h"
#include "base/vector2.h"

namespace vandrel {

struct Spark {
    float x = 0.0f;  // pixels
    float y = 0.0f;
    float vx = 0.0f;  // pixels an update
    float vy = 0.0f;
    RGB colour;
    int life = 0;  // updates left
};

extern std::vector<Spark> sparks;

// A burst at this pixel of the arena.
void addSparks(Pixel point);

// One update of all sparks; those at the end of their life go.
void advanceSparks();

}  // namespace vandrel
