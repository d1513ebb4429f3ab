#include "base/facing.h"

#include <fmt/format.h>

#include <stdexcept>

namespace vandrel {

Facing facingOf(Square direction) {
    for (const Facing facing : facingOrder) {
        if (directionOf(facing) == direction) {
            return facing;
        }
    }
    throw std::out_of_range(fmt::format("valueKey: value '{{{},{}}}' not found", direction.x, direction.y));
}

}  // namespace vandrel
