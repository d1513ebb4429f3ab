// How far two squares or pixels lie apart, in the two forms that rules compare. A replay rests on the type: rounding
// must not differ between the places that ask.
#pragma once

#include <cmath>

#include "base/vector2.h"

namespace vandrel {

// Euclidean, squared, in float.
constexpr float squaredDistance(Vector2Base<int> a, Vector2Base<int> b) {
    const auto dx = static_cast<float>(a.x - b.x);
    const auto dy = static_cast<float>(a.y - b.y);
    return dx * dx + dy * dy;
}

// Euclidean, in double.
inline double distance(Vector2Base<int> a, Vector2Base<int> b) {
    const int dx = a.x - b.x;
    const int dy = a.y - b.y;
    return std::sqrt(static_cast<double>(dx * dx + dy * dy));
}

}  // namespace vandrel
