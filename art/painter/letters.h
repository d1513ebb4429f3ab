// A plain pixel font of capitals, figures and a few signs, 5 x 7 pixels a letter: names under the pictures of a sheet,
// lettering inside a picture. Small letters are drawn as capitals.
#pragma once

#include <string_view>

#include "painter/canvas.h"

namespace vandrel::art {

inline constexpr int letterWidth = 5;
inline constexpr int letterHeight = 7;
inline constexpr int letterAdvance = 6;

// Writes `text` with the first letter's top left corner at (x, y), each pixel `scale` x `scale` large. A character that
// the font lacks is left blank.
void writeText(Canvas& canvas, int x, int y, std::string_view text, Colour colour, int scale = 1);
// The width in pixels that the text takes.
int textWidth(std::string_view text, int scale = 1);

}  // namespace vandrel::art
