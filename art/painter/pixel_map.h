// Hand-written pictures: rows of characters, one a pixel, read through a legend. For eyes, symbols and faces, where
// shapes are not enough.
//
//     static const Legend face{{'#', palette::ink}, {'w', palette::white}};
//     drawMap(canvas, 8, 10, face, {"#w#",
//                                   ".#."});
//
// '.' and ' ' leave the canvas as it is; '_' makes the pixel transparent again.
#pragma once

#include <map>
#include <string_view>
#include <vector>

#include "painter/canvas.h"

namespace vandrel::art {

using Legend = std::map<char, Colour>;
using PixelRows = std::vector<std::string_view>;

// Draws the map with its top left corner at (x, y). Throws std::invalid_argument, naming the character, when the legend
// has no colour for it: a typing error in a map must not pass as a hole.
void drawMap(Canvas& canvas, int x, int y, const Legend& legend, const PixelRows& rows);
// The same, left and right exchanged; (x, y) is still the top left corner.
void drawMapMirrored(Canvas& canvas, int x, int y, const Legend& legend, const PixelRows& rows);
// A canvas just large enough for the map.
Canvas canvasFromMap(const Legend& legend, const PixelRows& rows);

}  // namespace vandrel::art
