// The search for the best square of a rectangle by a scoring function.
#pragma once

#include <functional>
#include <optional>

#include "base/vector2.h"

namespace vandrel {

using SquareScore = std::function<float(Square)>;

// The square with the greatest score of the inclusive rectangle, y outer, x inner, the first of equals. Pillars and
// edge walls are passed over. Empty with no other square.
std::optional<Square> findBestSquare(Square min, Square max, const SquareScore& score);

}  // namespace vandrel
