#include "arena/game_drawing.h"

#include <vector>

#include "arena/background_drawing.h"
#include "arena/bombs_drawing.h"
#include "arena/flags_drawing.h"
#include "arena/game.h"
#include "arena/hill_drawing.h"
#include "arena/sparks.h"
#include "arena/walls_drawing.h"
#include "match/options/game_options.h"
#include "players/players_drawing.h"
#include "presentation/bitmaps.h"
#include "presentation/drawing.h"
#include "presentation/toasts_drawing.h"
#include "shell/accessibility.h"

namespace vandrel {

namespace {

constexpr RGB lobbyBackground{0, 32, 0};

RGB backgroundOf(const Game& game, bool forJoinScreen) {
    const RGB base = forJoinScreen ? lobbyBackground : backgroundColour(accessibility.bgcol);
    const bool isWarning = game.shrinkState == ShrinkState::Warning && game.shrinkCountdown < 0;
    return isWarning && accessibility.flashingEnabled ? warningColour(base, game.shrinkCountdown) : base;
}

// The hill and the powerups. What lies under a wall is painted too: a crumbling wall lets it through.
void drawFloor(Game& game, const BitmapWrapper& target) {
    const bool hasHill = isModeActive(GameMode::KingOfTheHill);
    for (int y = 0; y < grid_squares_y; ++y) {
        for (int x = 0; x < grid_squares_x; ++x) {
            const Square square{x, y};
            const int bonus = bonusGrid.at(square);
            if (bonus != 0) {
                const Pixel corner = squareToPixel(square);
                drawId(target, bonusBitmap(bonus), corner.x, corner.y);
            } else if (hasHill && game.isOnHill(square)) {
                drawHillSquare(game, target, square);
            }
        }
    }
}

// Draws the flags that nobody carries and gives back the others, which come over the players.
std::vector<const Flag*> drawLooseFlags(Game& game, const BitmapWrapper& target) {
    std::vector<const Flag*> carried;
    if (!isModeActive(GameMode::CaptureTheFlag)) {
        return carried;
    }
    for (const Flag& flag : game.flags) {
        if (flag.carrier.lock()) {
            carried.push_back(&flag);
        } else {
            drawFlag(game, target, flag);
        }
    }
    return carried;
}

void drawSparks(const BitmapWrapper& target) {
    std::vector<ColouredPixel> pixels;
    pixels.reserve(sparks.size());
    for (const Spark& spark : sparks) {
        pixels.push_back({static_cast<int>(spark.x), static_cast<int>(spark.y), toColour(spark.colour)});
    }
    putPixels(target, pixels);
}

}  // namespace

void drawGame(Game& game, const BitmapWrapper& target, bool forJoinScreen) {
    clearTo(target, toColour(backgroundOf(game, forJoinScreen)));
    const DrawingBatch batch(target);
    if (!forJoinScreen) {
        drawFloor(game, target);
        drawWalls(game, target);
        drawArrivingWalls(game, target);
    }
    drawBombs(target);
    const std::vector<const Flag*> carriedFlags = drawLooseFlags(game, target);
    if (!forJoinScreen && hasBases()) {
        drawTeamBases(target);
    }
    drawFlames(game, target);
    drawPlayers(target);
    for (const Flag* flag : carriedFlags) {
        drawFlag(game, target, *flag);
    }
    drawSparks(target);
    drawAnnouncedWalls(game, target);
    drawToasts(game.toasts, target);
}

}  // namespace vandrel
