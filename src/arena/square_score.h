// The search for the best square of a rectangle by a scoring function, and the distances that the scores are made of.
#pragma once

#include <functional>
#include <limits>
#include <optional>
#include <vector>

#include "base/vector2.h"

namespace vandrel {

using SquareScore = std::function<float(Square)>;

// The square with the greatest score of the inclusive rectangle, y outer, x inner, the first of equals. Pillars and
// edge walls are passed over. Empty with no other square.
std::optional<Square> findBestSquare(Square min, Square max, const SquareScore& score);

// The least squared distance, in squares, from the square to any of `others`; `ifNone` with no other.
float leastSquaredDistance(Square square, const std::vector<Square>& others,
                           float ifNone = std::numeric_limits<float>::max());

// Where those who are not dead mainly stand, humans and snakes alike.
std::vector<Square> squaresOfTheLiving();

}  // namespace vandrel
