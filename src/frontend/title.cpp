#include "frontend/title.h"

#include "presentation/bitmaps.h"
#include "presentation/colours.h"
#include "presentation/drawing.h"
#include "presentation/text.h"

namespace vandrel {

void drawTitle(const BitmapWrapper& target) {
    drawId(target, BitmapIds::VLogo3, target.width() / 2 - bitmapWidth(BitmapIds::VLogo3) / 2, 0);
}

void drawTitleWithCaption(const BitmapWrapper& target) {
    constexpr int distance = 10;  // pixels
    drawTitle(target);
    drawText(target, FontId::Font30, target.width() / 2, bitmapHeight(BitmapIds::VLogo3) + distance, toColour(white),
             "20th anniversary edition!", alignCentre);
}

}  // namespace vandrel
