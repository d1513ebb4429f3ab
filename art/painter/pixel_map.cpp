#include "painter/pixel_map.h"

#include <algorithm>
#include <stdexcept>
#include <string>

namespace vandrel::art {
namespace {

int widthOf(const PixelRows& rows) {
    std::size_t width = 0;
    for (const std::string_view row : rows) {
        width = std::max(width, row.size());
    }
    return static_cast<int>(width);
}

template <typename Place>
void walkMap(const Legend& legend, const PixelRows& rows, Place place) {
    for (std::size_t row = 0; row < rows.size(); ++row) {
        for (std::size_t column = 0; column < rows[row].size(); ++column) {
            const char letter = rows[row][column];
            if (letter == '.' || letter == ' ') {
                continue;
            }
            if (letter == '_') {
                place(static_cast<int>(column), static_cast<int>(row), clear);
                continue;
            }
            const auto entry = legend.find(letter);
            if (entry == legend.end()) {
                throw std::invalid_argument(std::string("A pixel map uses '") + letter + "', which its legend lacks");
            }
            place(static_cast<int>(column), static_cast<int>(row), entry->second);
        }
    }
}

}  // namespace

void drawMap(Canvas& canvas, int x, int y, const Legend& legend, const PixelRows& rows) {
    walkMap(legend, rows, [&](int column, int row, Colour colour) { canvas.set(x + column, y + row, colour); });
}

void drawMapMirrored(Canvas& canvas, int x, int y, const Legend& legend, const PixelRows& rows) {
    const int last = widthOf(rows) - 1;
    walkMap(legend, rows, [&](int column, int row, Colour colour) { canvas.set(x + last - column, y + row, colour); });
}

Canvas canvasFromMap(const Legend& legend, const PixelRows& rows) {
    Canvas canvas(widthOf(rows), static_cast<int>(rows.size()));
    drawMap(canvas, 0, 0, legend, rows);
    return canvas;
}

}  // namespace vandrel::art
