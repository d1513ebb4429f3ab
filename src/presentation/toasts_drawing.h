// Painting the toasts of a round.
#pragma once

#include <list>
#include <memory>

#include "presentation/bitmap_wrapper.h"
#include "presentation/toasts.h"

namespace vandrel {

// In list order, white, centred on `x` with the top at `y`.
void drawToasts(const std::list<std::unique_ptr<Toast>>& toasts, const BitmapWrapper& target);

}  // namespace vandrel
