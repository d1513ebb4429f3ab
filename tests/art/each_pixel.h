// All pixels of a canvas, row by row from the top.
#pragma once

#include "painter/canvas.h"

namespace vandrel::art {

void forEachPixel(const Canvas& canvas, const auto& visit) {
    for (int y = 0; y < canvas.height(); ++y) {
        for (int x = 0; x < canvas.width(); ++x) {
            visit(x, y, canvas.at(x, y));
        }
    }
}

}  // namespace vandrel::art
