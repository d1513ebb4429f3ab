// All text of the game: five fonts, one drawing function, no layout. The typeface is fixed-pitch, so columns are
// counted in characters.
#pragma once

#include <allegro5/allegro.h>
#include <allegro5/allegro_font.h>

#include <string>
#include <string_view>

#include "presentation/bitmap_wrapper.h"
#include "presentation/font_id.h"

namespace vandrel {

inline constexpr int alignLeft = ALLEGRO_ALIGN_LEFT;      // 0: x is the left edge
inline constexpr int alignCentre = ALLEGRO_ALIGN_CENTRE;  // 1: x is the middle

// Loads the five fonts, or loads them again when a new display has lost them. Throws std::runtime_error "Error loading
// fonts!".
void loadFonts();

// The platform's font; null before `loadFonts`.
ALLEGRO_FONT* fontHandle(FontId id);

// `y` is the top of the text.
void drawText(const BitmapWrapper& target, FontId font, int x, int y, ALLEGRO_COLOR colour, std::string_view text,
              int align = alignLeft);

// Wraps at 30 characters and draws the lines in the 30-point font, left-aligned at `x`, each `rowHeight` pixels below
// the last.
void drawWrappedText(const BitmapWrapper& target, const std::string& text, int x, int y, int rowHeight,
                     ALLEGRO_COLOR colour);

}  // namespace vandrel
