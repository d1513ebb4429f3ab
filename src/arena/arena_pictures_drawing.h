// What a round's painting makes for itself when it first needs it, and what goes with the round.
#pragma once

#include <array>
#include <map>
#include <memory>
#include <utility>
#include <vector>

#include "presentation/bitmap_wrapper.h"

namespace vandrel {

class Game;

inline constexpr int flagFrameCount = 6;

struct ArenaPictures {
    // Red, blue, green, yellow, cyan; 16 by 16 pixels.
    std::vector<std::shared_ptr<BitmapWrapper>> hillTiles;
    // Two by two tiles for each square of the hill, column first.
    std::vector<std::vector<std::shared_ptr<BitmapWrapper>>> hillPattern;
    // Runs of equal walls in one picture, by the kind of the squares and the length of the run.
    std::map<std::pair<int, int>, std::shared_ptr<BitmapWrapper>> wallStripCache;
    // The waving flag of each team by its index, -1 for the neutral one.
    std::map<int, std::array<std::shared_ptr<BitmapWrapper>, flagFrameCount>> flagFrames;
};

// The game's pictures, made empty at their first use.
ArenaPictures& picturesOf(Game& game);

}  // namespace vandrel
