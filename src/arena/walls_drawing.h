// The walls: what stands, what crumbles, the closing walls as they arrive and the walls that were announced. Equal
// neighbours in a row are painted as one strip.
#pragma once

#include <optional>
#include <vector>

#include "base/vector2.h"
#include "presentation/bitmap_ids.h"
#include "presentation/bitmap_wrapper.h"

namespace vandrel {

class Game;

// The image of a kind of square; none for what shows the floor.
std::optional<BitmapIds> wallBitmap(int kind);

// Consecutive squares of one row with exactly the same kind.
struct WallRun {
    int x = 0;
    int length = 0;
    int kind = 0;
    BitmapIds bitmap = BitmapIds::Block3;

    friend bool operator==(const WallRun&, const WallRun&) = default;
};

// The runs of a row, given by the kinds of its squares from the left; squares without an image are left out.
std::vector<WallRun> wallRuns(const std::vector<int>& row);

// How a closing wall is shown on its way.
struct WallArrival {
    bool spins = false;  // turned and scaled about the middle of the square, else about its top-left corner
    float angle = 0.0f;  // 255 to a full turn
    float scale = 1.0f;
    int alpha = 255;
};

// By the game's style, 0 to 4, with `countdown` (1 or more) of `stepFrames` frames left until the wall stands.
WallArrival wallArrival(int style, int countdown, int stepFrames);

void drawWalls(Game& game, const BitmapWrapper& target);
void drawArrivingWalls(const Game& game, const BitmapWrapper& target);
void drawAnnouncedWalls(const Game& game, const BitmapWrapper& target);

}  // namespace vandrel
