// The colours that are not of one screen alone.
#pragma once

#include "base/colour.h"

namespace vandrel {

inline constexpr RGB black{0, 0, 0};
inline constexpr RGB white{255, 255, 255};

}  // namespace vandrel
