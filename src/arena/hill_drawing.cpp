#include "arena/hill_drawing.h"

#include <algorithm>
#include <array>
#include <cmath>

#include "arena/arena_pictures_drawing.h"
#include "arena/game.h"
#include "base/colour.h"
#include "base/random.h"
#include "match/options/game_options.h"
#include "presentation/atlas.h"
#include "presentation/drawing.h"
#include "shell/frame_counter.h"

namespace vandrel {

namespace {

constexpr int tileSize = 16;  // pixels; two by two on a square
constexpr int tilesPerSquare = 2;
constexpr int meanAlpha = 128;

constexpr std::array<RGB, 5> tileColours{{{255, 0, 0}, {0, 0, 255}, {0, 255, 0}, {255, 255, 0}, {0, 255, 255}}};

std::shared_ptr<BitmapWrapper> randomTile(const ArenaPictures& pictures) {
    return pictures.hillTiles[static_cast<unsigned>(gameRand()) % pictures.hillTiles.size()];
}

bool tilesChangeNow() {
    const int halfSecond = std::max(gameOptions.updaterate / 2, 1);
    return frameCounter % halfSecond == 0;
}

}  // namespace

int hillTileAlpha(int frame, bool even) {
    const int swing = static_cast<int>(std::sin(static_cast<float>(frame) / 30.0f) * 64.0f);
    return std::clamp(even ? meanAlpha + swing : meanAlpha - swing, 0, opaque);
}

void buildHillPattern(Game& game) {
    ArenaPictures& pictures = picturesOf(game);
    const BitmapWrapper block(tileSize, tileSize, true);
    clearTo(block, {0.0f, 0.0f, 0.0f, 0.0f});
    drawScaledId(block, BitmapIds::Block3, 0, 0, squareSize, squareSize, 0, 0, tileSize, tileSize);
    for (const RGB colour : tileColours) {
        pictures.hillTiles.push_back(composePicture(tileSize, tileSize, [&](const BitmapWrapper& tile) {
            clearTo(tile, al_map_rgb(128, 128, 128));
            drawTinted(tile, block.bitmap, 0, 0, colour.red, colour.green, colour.blue, 128);
        }));
    }
    const auto columns = static_cast<unsigned>(tilesPerSquare * (game.hillRight - game.hillLeft + 1));
    const auto rows = static_cast<unsigned>(tilesPerSquare * (game.hillBottom - game.hillTop + 1));
    pictures.hillPattern.resize(columns);
    for (auto& column : pictures.hillPattern) {
        column.resize(rows);
        for (auto& tile : column) {
            tile = randomTile(pictures);
        }
    }
}

void drawHillSquare(Game& game, const BitmapWrapper& target, Square square) {
    ArenaPictures& pictures = picturesOf(game);
    if (pictures.hillPattern.empty()) {
        buildHillPattern(game);
    }
    for (int i = 0; i < tilesPerSquare; ++i) {
        for (int j = 0; j < tilesPerSquare; ++j) {
            const auto column = static_cast<unsigned>((square.x - game.hillLeft) * tilesPerSquare + i);
            const auto row = static_cast<unsigned>((square.y - game.hillTop) * tilesPerSquare + j);
            std::shared_ptr<BitmapWrapper>& tile = pictures.hillPattern.at(column).at(row);
            if (tilesChangeNow()) {
                tile = randomTile(pictures);
            }
            const bool even = (square.x + square.y + i + j) % 2 == 0;
            const Pixel corner = squareToPixel(square);
            drawWrapper(*tile, target, corner.x + tileSize * i, corner.y + tileSize * j,
                        hillTileAlpha(frameCounter, even));
        }
    }
}

}  // namespace vandrel
