// How a look is put together from the images of heads and bodies: tables only, no picture is touched.
#pragma once

#include <allegro5/color.h>

#include <optional>
#include <vector>

#include "base/facing.h"
#include "base/vector2.h"
#include "players/sprite_key.h"
#include "presentation/bitmap_ids.h"

namespace vandrel {

struct SpriteLayer {
    BitmapIds bitmap = BitmapIds::Snail;
    int xOffset = 0;  // pixels from the layer's place in the picture
    bool mirrored = false;

    friend bool operator==(const SpriteLayer&, const SpriteLayer&) = default;
};

struct SpriteRecipe {
    std::vector<SpriteLayer> layers;
    Pixel offset;                         // of the finished picture from the player's position
    std::optional<ALLEGRO_COLOR> colour;  // absent: the images keep their own
    bool anyPixel = false;                // a white flash takes the whole figure, not only the grey of players
    bool stacked = false;                 // layers go top to bottom, else left to right
    bool reversed = false;                // layers are laid in reverse order
};

// The head of a skin: its image and how far it bobs up (pixels, 0 or negative).
struct HeadPicture {
    BitmapIds bitmap = BitmapIds::Head0_D_014;
    bool mirrored = false;
    int bob = 0;
};

// A skin beyond the table counts as 0. Steering players stand still, so their frame counts as 0; a crawling head has no
// frames.
HeadPicture headFor(int skin, Facing facing, int frame, bool crawling, bool steering);

// What the key looks like in the match's mode.
SpriteRecipe buildSprite(const SpriteKey& key);

// The pixel, relative to a player's position, at which the fist of this walk frame (0 to 6) is.
Pixel handPointOf(Facing facing, int frame);

}  // namespace vandrel
