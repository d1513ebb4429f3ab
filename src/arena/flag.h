// A flag of Capture the Flag: at home, carried, or loose where its carrier fell.
#pragma once

#include <memory>

#include "base/vector2.h"

namespace vandrel {

class Player;

struct Flag {
    int x = 0;  // pixel position of the top-left corner
    int y = 0;
    int team = -1;                  // owner's index in `teams`, -1 for the neutral flag
    std::weak_ptr<Player> carrier;  // carried exactly while this can be locked
    bool inBase = true;

    Pixel position() const { return {x, y}; }
    void moveTo(Pixel pixel) {
        x = pixel.x;
        y = pixel.y;
    }
};

// The square of the flag's team's base as it stands now; the middle of the arena for the neutral flag.
Square flagHome(const Flag& flag);

}  // namespace vandrel
