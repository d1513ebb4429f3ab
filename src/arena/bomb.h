// What lies on one square of the arena. Every square has such a record; a bomb is there exactly while its owner is:
// when a player leaves the match, the bombs of that player are gone with nothing else to be done.
#pragma once

#include <memory>

#include "base/facing.h"

namespace vandrel {

class Player;

enum class BombKind : int {
    Ticking = 0,  // counts its fuse down
    Steered = 1,  // Remote Control: the fuse waits while the owner's `remoteActive` is set
    Armed = 2,    // Detonator: the fuse waits likewise
    Rocket = 3,   // flying; the fuse waits until the flight ends
};

struct Bomb {
    std::weak_ptr<Player> owner;
    int fuse = 0;  // frames left
    BombKind kind = BombKind::Ticking;
    int rocketStep = 0;  // frames since the rocket's last step
    Facing direction = Facing::Down;
    bool movedThisFrame = false;  // this rocket has stepped in the bomb pass that runs now

    bool isLive() const { return !owner.expired(); }
};

}  // namespace vandrel
