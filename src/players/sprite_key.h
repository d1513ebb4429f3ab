// The value that tells one composed picture of a player from another. Composing and painting are `sprites_drawing`'s.
#pragma once

#include <optional>

#include "base/facing.h"
#include "players/player_look.h"

namespace vandrel {

class Player;

// What a shield adds to a sprite.
namespace Flash {
inline constexpr int None = 0;
inline constexpr int WhiteOutline = 1;
inline constexpr int WhiteFigure = 2;
}  // namespace Flash

struct SpriteKey {
    PlayerLook look;  // the reserved word takes no part
    Facing facing = Facing::Down;
    int flash = Flash::None;
    int frame = 0;  // walk frame, 0 to 6
    bool slowed = false;
    bool snake = false;
    bool isAI = false;
    bool crawling = false;
    bool dead = false;
    bool steering = false;

    friend bool operator==(const SpriteKey& a, const SpriteKey& b);
};

// The key of the player as it stands in this frame, with its own walk frame and facing where none is given.
SpriteKey makeKey(const Player& player, std::optional<int> frame = {}, std::optional<Facing> facing = {});

// Whether this frame shows a shield or a ghost that runs out without it, or the shield with its other look.
bool blinksOut(const Player& player);

// A sprite that flies off at a death or from a lost tail. Looks only.
struct PlayerParticle {
    SpriteKey sprite;
    int x = 0;  // pixels; the pivot is 16 right of and below it
    int y = 0;
    float scale = 1.0f;
    float angle = 0.0f;  // 255 to a full turn
    float scaleVelocity = 0.0f;
    float spinVelocity = 0.0f;
    int delay = 0;  // frames before it moves

    // One frame at `updaterate` frames a second; false once it is too small to see.
    bool advance(int updaterate);
};

}  // namespace vandrel
