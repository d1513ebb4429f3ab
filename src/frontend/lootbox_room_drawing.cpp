#include "frontend/lootbox_room_drawing.h"

#include <string>

#include "frontend/space_prompt.h"
#include "presentation/bitmaps.h"
#include "presentation/colours.h"
#include "presentation/drawing.h"
#include "presentation/text.h"

namespace vandrel {

namespace {

constexpr int headingAbove = 40;   // pixels from the heading to the total
constexpr int captionPercent = 2;  // of the screen's width, not of its height
constexpr int promptPercent = 95;

void drawCentred(const BitmapWrapper& target, int y, const std::string& text) {
    drawText(target, FontId::Font30, target.width() / 2, y, toColour(white), text, alignCentre);
}

void drawPrize(const Prize& prize, const BitmapWrapper& target) {
    const int left = (target.width() - bitmapWidth(prize.bitmap)) / 2;
    const int top = (target.height() - bitmapHeight(prize.bitmap)) / 2;
    drawId(target, prize.bitmap, left, top);
    drawCentred(target, target.width() * captionPercent / 100, prize.caption);
}

}  // namespace

void drawLootboxRoom(const LootboxShow& show, const BitmapWrapper& target) {
    clearToBlack(target);
    if (show.isCounting()) {
        drawCentred(target, target.height() / 2 - headingAbove, "TOTAL CASH");
        drawCentred(target, target.height() / 2, std::to_string(show.shownPoints()));
    } else if (show.current() == nullptr) {
        drawCentred(target, target.height() / 4, "You have unlocked...");
    } else {
        drawPrize(*show.current(), target);
    }
    if (show.promptShown()) {
        drawCentred(target, target.height() * promptPercent / 100, spacePrompt);
    }
}

}  // namespace vandrel
