#include "arena/layers.h"

namespace vandrel {

void ActiveSquares::resize(int width, int height) {
    height_ = static_cast<std::size_t>(height);
    words_.assign((static_cast<std::size_t>(width) * height_ + 63) / 64, 0);
}

}  // namespace vandrel
