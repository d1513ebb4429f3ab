// Where the pixels of a colour lie in a painted picture.
#pragma once

#include <algorithm>
#include <utility>
#include <vector>

#include "base/vector2.h"
#include "support/drawing_stage.h"

namespace vandrel {

// A part of a picture; `right` and `bottom` lie outside of it.
struct Part {
    int left, top, right, bottom;
};

inline Part allOf(const BitmapWrapper& picture) {
    return {0, 0, picture.width(), picture.height()};
}

// How many pixels there are, and the outermost of them on each side.
struct Ink {
    int count = 0;
    int left = 1'000'000, right = -1;
    int top = 1'000'000, bottom = -1;
};

// The pixels in this part of the picture whose colour `isInk` is true of.
Ink inkOf(const BitmapWrapper& picture, const Part& part, const auto& isInk) {
    Ink ink;
    for (int y = std::max(part.top, 0); y < part.bottom; ++y) {
        for (int x = std::max(part.left, 0); x < part.right; ++x) {
            if (isInk(pixelAt(picture, x, y))) {
                ink = {ink.count + 1, std::min(ink.left, x), std::max(ink.right, x), std::min(ink.top, y), y};
            }
        }
    }
    return ink;
}
inline Ink inkOf(const BitmapWrapper& picture, const Part& part, RGB colour) {
    return inkOf(picture, part, [colour](RGB pixel) { return pixel == colour; });
}

// That these pixels have these colours.
inline void expectPixels(const BitmapWrapper& picture, const std::vector<std::pair<Pixel, RGB>>& pixels) {
    for (const auto& [place, colour] : pixels) {
        EXPECT_EQ(pixelAt(picture, place.x, place.y), colour) << "at " << place.x << ", " << place.y;
    }
}

}  // namespace vandrel
