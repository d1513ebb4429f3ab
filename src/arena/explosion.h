// One element of a flame. Three of them, the layers 1 to 3, travel behind each other and share a wave number.
#pragma once

#include <memory>

#include "base/vector2.h"

namespace vandrel {

class Player;

struct Explosion {
    std::weak_ptr<Player> owner;  // who is credited; cleared when this element ends
    int layer = 1;                // place in the train, 1 in front
    int x = 0;                    // square
    int y = 0;
    int dx = 0;  // direction of travel, each -1, 0 or 1
    int dy = 0;
    int timer = 0;  // frames until the next step
    int steps = 0;  // steps taken; the element ends when they exceed the owner's `range`
    int waveId = 0;
    bool isFlamethrower = false;  // does not hurt its owner
    bool firstFrame = false;      // is looked at in its first frame although its timer runs

    bool isLive() const { return !owner.expired(); }
    Square square() const { return {x, y}; }
};

}  // namespace vandrel
