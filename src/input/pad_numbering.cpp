#include "input/pad_numbering.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <iterator>

namespace vandrel {
namespace {

constexpr int firstDpadButton = 10;
constexpr int dpadPadButtons = 14;  // a pad with fewer has no directional buttons

// Triggers stand in no row: they are axes on the first shape, and buttons without a number of the rules on the others.
struct PadShape {
    int buttons;
    std::array<int, firstDpadButton> numbers;  // the driver's, by the rules' number
};

// The directional pad of all of them is a digital stick.
constexpr PadShape padShapes[] = {
    // A B X Y, LB RB, Back Start, Guide, left and right stick.
    {11, {0, 1, 2, 3, 5, 4, 10, 9, 6, 7}},
    // The four of the face, L1 R1 L2 R2, Share Options, PS, left and right stick.
    {13, {0, 1, 2, 3, 5, 4, 12, 11, 8, 9}},
    // A B C X Y Z, LB RB L2 R2, Back Start, Guide, left and right stick.
    {15, {0, 1, 3, 4, 7, 6, 14, 13, 10, 11}},
};

}  // namespace

std::optional<int> driverButton(int number, int buttons, bool hasDigitalStick) {
    const auto* const shape = std::ranges::find(padShapes, buttons, &PadShape::buttons);
    const bool known = shape != std::end(padShapes);
    if (number < firstDpadButton) {
        return known ? shape->numbers[static_cast<std::size_t>(number)] : number;
    }
    if (known || hasDigitalStick || buttons < dpadPadButtons) {
        return std::nullopt;
    }
    return number;
}

}  // namespace vandrel
