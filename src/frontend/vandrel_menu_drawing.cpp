// How a menu looks.
#include <allegro5/allegro.h>

#include <algorithm>

#include "frontend/vandrel_menu.h"
#include "presentation/drawing.h"
#include "presentation/text.h"

namespace vandrel {

namespace {

constexpr RGB highlightColour{64, 64, 64};
constexpr RGB entryColour{200, 255, 200};
constexpr RGB headingColour{150, 200, 150};
constexpr int textIndent = 3;       // pixels
constexpr int arrowDistance = 100;  // from the rows
constexpr int arrowHalfWidth = 25;
constexpr int arrowHeight = 50;
constexpr int textModeOn = 1;

RGB colourOf(const CmdButtonBase& entry) {
    if (entry.textColour != nullptr) {
        return *entry.textColour;
    }
    return entry.isHeading() ? headingColour : entryColour;
}

// An arrow with its tip at `tipY`; `direction` is 1 for one that points up, -1 for one that points down.
void drawArrow(const BitmapWrapper& target, int x, int tipY, int direction) {
    const int baseY = tipY + direction * arrowHeight;
    drawFilledTriangle(target, {x, tipY}, {x - arrowHalfWidth, baseY}, {x + arrowHalfWidth, baseY},
                       toColour(entryColour));
}

}  // namespace

void VandrelMenu::draw(const BitmapWrapper& target) const {
    setTarget(target);
    al_set_clipping_rectangle(0, options_->top, target.width(), target.height() - options_->top);
    for (std::size_t i = 0; i < entries_.size(); ++i) {
        drawEntry(target, *entries_[i], static_cast<int>(i) == selected_);
    }
    drawArrows(target);
    al_reset_clipping_rectangle();
}

void VandrelMenu::drawEntry(const BitmapWrapper& target, const CmdButtonBase& entry, bool highlighted) const {
    const int y = entry.y + scrollY_;
    const int bottom = entry.bottom + scrollY_;
    // A list may have thousands of rows, of which a page shows a few.
    if (bottom < options_->top || y >= target.height()) {
        return;
    }
    if (highlighted) {
        drawFilledRectangle(target, 0, y, target.width() - 1, bottom, toColour(highlightColour));
    }
    if (options_->textMode != textModeOn) {
        return;
    }
    std::string text = entry.text();
    if (const std::string value = entry.valueText(); !value.empty()) {
        text += ": " + value;
    }
    drawText(target, options_->font, entry.x + textIndent, y, toColour(colourOf(entry)), text);
}

void VandrelMenu::drawArrows(const BitmapWrapper& target) const {
    const int x = entries_.empty() ? arrowDistance : std::max(entries_.front()->x - arrowDistance, 0);
    if (moreAbove_) {
        drawArrow(target, x, options_->top, 1);
    }
    if (moreBelow_) {
        drawArrow(target, x, target.height(), -1);
    }
}

}  // namespace vandrel
