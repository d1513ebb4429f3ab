#include "arena/walls_drawing.h"

#include <algorithm>
#include <array>
#include <cmath>

#include "arena/arena_pictures_drawing.h"
#include "arena/game.h"
#include "arena/square_kind.h"
#include "match/options/game_options.h"
#include "presentation/atlas.h"
#include "presentation/bitmaps.h"
#include "presentation/drawing.h"

namespace vandrel {

namespace {

struct KindImage {
    int first;  // inclusive range of kinds
    int last;
    BitmapIds bitmap;
};

constexpr std::array<KindImage, 11> kindImages{{
    {SquareKind::GridBlock, SquareKind::GridBlock, BitmapIds::Block4},
    {SquareKind::EdgeWall, SquareKind::EdgeWall, BitmapIds::Block3},
    {SquareKind::Wall, SquareKind::HardWall, BitmapIds::Wall3},
    {SquareKind::HardWallHitOnce, SquareKind::HardWallHitOnce, BitmapIds::Wall3CrumbleNew},
    {SquareKind::HardWallHitTwice, SquareKind::HardWallHitTwice, BitmapIds::Wall3CrumbleNew2},
    {SquareKind::WallCrumbling, SquareKind::WallCrumbling + 9, BitmapIds::W3NDth1},
    {SquareKind::WallCrumbling + 10, SquareKind::WallCrumbling + 19, BitmapIds::W3NDth2},
    {SquareKind::HardWallCrumbling, SquareKind::HardWallCrumbling + 4, BitmapIds::Wall3CrumbleNewDeath},
    {SquareKind::HardWallCrumbling + 5, SquareKind::HardWallCrumbling + 9, BitmapIds::Wall3CrumbleNewDeath2},
    {SquareKind::HardWallCrumbling + 10, SquareKind::HardWallCrumbling + 14, BitmapIds::Wall3CrumbleNewDeath3},
    {SquareKind::HardWallCrumbling + 15, SquareKind::HardWallCrumbling + 19, BitmapIds::Wall3CrumbleNewDeath4},
}};

constexpr double eighthTurn = 0.7853981633974483;
constexpr float fullTurn = 6.283185307179586f;

const KindImage* imageOf(int kind) {
    const auto* const found = std::find_if(kindImages.begin(), kindImages.end(), [kind](const KindImage& image) {
        return kind >= image.first && kind <= image.last;
    });
    return found != kindImages.end() ? &*found : nullptr;
}

std::shared_ptr<BitmapWrapper> composeStrip(const WallRun& run) {
    return composePicture(run.length * squareSize, squareSize, [&](const BitmapWrapper& canvas) {
        for (int i = 0; i < run.length; ++i) {
            drawId(canvas, run.bitmap, i * squareSize, 0);
        }
    });
}

// Each frame of crumbling is a kind of its own, but most of them look the same, and look at the same picture.
const BitmapWrapper& stripOf(Game& game, const WallRun& run) {
    auto& strips = picturesOf(game).wallStripCache;
    std::shared_ptr<BitmapWrapper>& strip = strips[{run.kind, run.length}];
    if (!strip) {
        std::shared_ptr<BitmapWrapper>& first = strips[{imageOf(run.kind)->first, run.length}];
        if (!first) {
            first = composeStrip(run);
        }
        strip = first;
    }
    return *strip;
}

}  // namespace

std::optional<BitmapIds> wallBitmap(int kind) {
    const KindImage* const image = imageOf(kind);
    return image != nullptr ? std::optional(image->bitmap) : std::nullopt;
}

std::vector<WallRun> wallRuns(const std::vector<int>& row) {
    std::vector<WallRun> runs;
    for (auto from = row.begin(); from != row.end();) {
        const auto end = std::find_if(from, row.end(), [kind = *from](int other) { return other != kind; });
        if (const std::optional<BitmapIds> bitmap = wallBitmap(*from)) {
            runs.push_back({static_cast<int>(from - row.begin()), static_cast<int>(end - from), *from, *bitmap});
        }
        from = end;
    }
    return runs;
}

WallArrival wallArrival(int style, int countdown, int stepFrames) {
    const auto left = static_cast<float>(countdown);
    const auto all = static_cast<float>(stepFrames);
    const float remaining = std::min(left * all, all * all - 1.0f);
    const float share = remaining / (all * all * 0.00390625f);  // 0 to 256
    const bool fades = style == 2 || style == 3 || style == 4;
    WallArrival arrival;
    arrival.spins = style == 1 || style == 4;
    if (arrival.spins) {
        arrival.angle = 255.0f - share;
    }
    if (style != 2) {
        arrival.scale = 1.0f - left / all;
    }
    if (fades) {
        arrival.alpha = static_cast<int>(255.0f - share);
    }
    return arrival;
}

void drawWalls(Game& game, const BitmapWrapper& target) {
    std::vector<int> row(static_cast<unsigned>(grid_squares_x));
    for (int y = 0; y < grid_squares_y; ++y) {
        for (int x = 0; x < grid_squares_x; ++x) {
            row[static_cast<unsigned>(x)] = squareGrid.at(x, y);
        }
        for (const WallRun& run : wallRuns(row)) {
            const Pixel corner = squareToPixel({run.x, y});
            if (run.length < 2) {
                drawId(target, run.bitmap, corner.x, corner.y);
            } else {
                drawWrapper(stripOf(game, run), target, corner.x, corner.y);
            }
        }
    }
}

void drawArrivingWalls(const Game& game, const BitmapWrapper& target) {
    if (game.shrinkStepCountdown < 1) {
        return;
    }
    for (const ShrinkCursor& cursor : game.shrinkCursors) {
        const WallArrival arrival =
            wallArrival(game.wallAppearStyle, game.shrinkStepCountdown, gameOptions.shrinkSpeedFrames.value());
        const int centre = arrival.spins ? halfSquare : 0;
        const Pixel corner = squareToPixel(cursor.square());
        drawRotatedId(target, BitmapIds::Block3, centre, centre, corner.x + centre, corner.y + centre, arrival.angle,
                      arrival.scale, arrival.alpha);
    }
}

// A ring of walls that closes in on its square and grows solid. The sum of the steps ends just short of the full turn,
// so a ninth wall lies on the first.
void drawAnnouncedWalls(const Game& game, const BitmapWrapper& target) {
    for (const PendingWall& wall : game.pendingWalls) {
        const float radius = 2.0f * static_cast<float>(wall.frames);
        const int alpha = opaque - std::min(2 * wall.frames, opaque);
        const Pixel corner = squareToPixel(wall.square());
        for (float angle = 0.0f; angle < fullTurn; angle = static_cast<float>(angle + eighthTurn)) {
            const float x = std::sin(angle) * radius + static_cast<float>(corner.x);
            const float y = std::cos(angle) * radius + static_cast<float>(corner.y);
            drawBitmap(target, getBitmap(BitmapIds::Wall3), static_cast<int>(x), static_cast<int>(y), 0, alpha);
        }
    }
}

}  // namespace vandrel
