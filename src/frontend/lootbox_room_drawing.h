// Painting the loot box room.
#pragma once

#include "frontend/lootbox_show.h"
#include "presentation/bitmap_wrapper.h"

namespace vandrel {

// Paints the whole screen. Loads the prize's picture at its first use and throws when it is missing.
void drawLootboxRoom(const LootboxShow& show, const BitmapWrapper& target);

}  // namespace vandrel
