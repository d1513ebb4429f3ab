// The composed pictures of players. Each distinct look is put together once, through the recolour shader, and kept
// until the match ends; a frame only copies it.
#pragma once

#include <memory>

#include "base/vector2.h"
#include "players/sprite_key.h"
#include "presentation/bitmap_wrapper.h"

namespace vandrel {

// The pixel of a sprite about which it turns: the middle of a walker's cell.
inline constexpr Pixel spritePivot{16, 43};

struct Sprite {
    std::shared_ptr<BitmapWrapper> picture;
    Pixel offset;  // of the picture's top-left corner from the player's position
};

// The picture of the key, composed at its first use. The reference stands until `releaseSpriteCache`.
const Sprite& getSprite(const SpriteKey& key);

// Forgets all composed pictures. Called after a match, and before the display goes.
void releaseSpriteCache();

}  // namespace vandrel
