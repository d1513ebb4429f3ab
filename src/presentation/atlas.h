// Large bitmaps that hold the small pictures of the game, so that a whole frame of the arena comes from one or two of
// them and can be drawn in a few strokes. Images, wall strips, flags, hill tiles and composed players all lie here.
#pragma once

#include <allegro5/allegro.h>

#include <functional>
#include <memory>

#include "presentation/bitmap_wrapper.h"

namespace vandrel {

// Images up to this size, in pixels on both axes, are moved into the atlas when loaded.
inline constexpr int atlasImageLimit = 64;

// A copy of the whole of `source` in the atlas, to be freed with `destroyBitmap`; null when it is larger than a page.
ALLEGRO_BITMAP* copyIntoAtlas(ALLEGRO_BITMAP* source);

// Frees a bitmap, wherever it lies.
void destroyBitmap(ALLEGRO_BITMAP* bitmap);

// A picture of this size, made by `paint` on a transparent canvas of that size. It lies in the atlas where it fits.
std::shared_ptr<BitmapWrapper> composePicture(int width, int height,
                                              const std::function<void(const BitmapWrapper&)>& paint);

// Frees the canvas that `composePicture` keeps for the next picture.
void releaseCanvas();

}  // namespace vandrel
