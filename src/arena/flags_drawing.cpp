#include "arena/flags_drawing.h"

#include <array>
#include <cstdint>
#include <stdexcept>
#include <string>

#include "arena/arena_pictures_drawing.h"
#include "arena/game.h"
#include "match/options/game_options.h"
#include "players/player.h"
#include "presentation/atlas.h"
#include "presentation/colours.h"
#include "presentation/drawing.h"
#include "presentation/text.h"
#include "shell/frame_counter.h"

namespace vandrel {

namespace {

constexpr Pixel poleFoot{12, 31};  // of a flag's image; stands in the carrier's hand
constexpr int flagFrameLength = 3;
constexpr std::array<Pixel, 5> baseRings{{{16, 4}, {12, 3}, {9, 2}, {6, 1}, {3, 0}}};  // pixels each way

struct PixelBytes {
    std::uint8_t red;
    std::uint8_t green;
    std::uint8_t blue;
    std::uint8_t alpha;
};

// Gives the cloth, which is pure red, the colour of the team, and leaves all else as it is.
void dyeCloth(ALLEGRO_BITMAP* picture, const ALLEGRO_COLOR& colour) {
    const auto byteOf = [](float channel) { return static_cast<std::uint8_t>(channel * 255.0f + 0.5f); };
    const PixelBytes dyed{byteOf(colour.r), byteOf(colour.g), byteOf(colour.b), 255};
    const BatchPause pause;
    const ALLEGRO_LOCKED_REGION* region =
        al_lock_bitmap(picture, ALLEGRO_PIXEL_FORMAT_ABGR_8888_LE, ALLEGRO_LOCK_READWRITE);
    if (region == nullptr) {
        throw std::runtime_error("Could not lock bitmap");
    }
    for (int y = 0; y < al_get_bitmap_height(picture); ++y) {
        auto* row = reinterpret_cast<PixelBytes*>(static_cast<char*>(region->data) + y * region->pitch);
        for (int x = 0; x < al_get_bitmap_width(picture); ++x) {
            PixelBytes& pixel = row[x];
            if (pixel.red == 255 && pixel.green == 0 && pixel.blue == 0 && pixel.alpha == 255) {
                pixel = dyed;
            }
        }
    }
    al_unlock_bitmap(picture);
}

std::shared_ptr<BitmapWrapper> makeFlagFrame(int frame, const ALLEGRO_COLOR& colour) {
    return composePicture(squareSize, squareSize, [&](const BitmapWrapper& canvas) {
        drawId(canvas, BitmapIds::Flag0 + frame, 0, 0);
        dyeCloth(canvas.bitmap, colour);
    });
}

const BitmapWrapper& flagPicture(Game& game, int team, int frame) {
    auto& frames = picturesOf(game).flagFrames[team];
    std::shared_ptr<BitmapWrapper>& picture = frames[static_cast<unsigned>(frame)];
    if (!picture) {
        picture = makeFlagFrame(frame, team < 0 ? toColour(white) : teams.at(static_cast<unsigned>(team)).colour);
    }
    return *picture;
}

}  // namespace

void drawFlag(Game& game, const BitmapWrapper& target, const Flag& flag) {
    Pixel corner = flag.position();
    if (const std::shared_ptr<Player> carrier = flag.carrier.lock()) {
        corner = corner + handPoint(*carrier) - poleFoot;
    }
    const int frame = frameCounter / scaledFrames(flagFrameLength) % flagFrameCount;
    drawWrapper(flagPicture(game, flag.team, frame), target, corner.x, corner.y);
}

void drawTeamBases(const BitmapWrapper& target) {
    for (const Team& team : teams) {
        const Pixel corner = squareToPixel(team.base());
        const int x = corner.x + halfSquare;
        const int y = corner.y + squareSize;
        for (const Pixel ring : baseRings) {
            drawEllipse(target, x, y, ring.x, ring.y, team.colour);
        }
        drawText(target, FontId::Font20, x, y, toColour(white), std::to_string(team.displayedScore), alignCentre);
    }
}

}  // namespace vandrel
