// The four headings, and the one table that leads from a heading to its direction and back.
#pragma once

#include <array>

#include "base/vector2.h"

namespace vandrel {

enum class Facing : int { Right = 0, Up = 1, Left = 2, Down = 3 };

// The order in which every rule that tries "each direction" walks them. Exit tests, the search of a snake and the first
// heading of a new snake depend on it, so replays do.
inline constexpr std::array<Facing, 4> facingOrder{Facing::Down, Facing::Up, Facing::Left, Facing::Right};

constexpr Facing opposite(Facing facing) {
    return static_cast<Facing>((static_cast<int>(facing) + 2) % 4);
}

// The unit step of a heading; y grows downward.
constexpr Square directionOf(Facing facing) {
    constexpr std::array<Square, 4> directions{{{1, 0}, {0, -1}, {-1, 0}, {0, 1}}};
    return directions[static_cast<unsigned>(facing)];
}

// The heading of a unit step. Throws std::out_of_range "valueKey: value '...' not found" for any other pair.
Facing facingOf(Square direction);

}  // namespace vandrel
