#include "shell/accessibility.h"

#include <array>
#include <cstddef>

namespace vandrel {
namespace {

// From index 1 on.
constexpr std::array<RGB, 4> backgroundColours{{{57, 123, 8}, {100, 0, 0}, {20, 20, 123}, {57, 57, 57}}};

}  // namespace

AccessibilitySettings accessibility;

RGB backgroundColour(int bgcol) {
    if (bgcol < 1 || bgcol > static_cast<int>(backgroundColours.size())) {
        return {};
    }
    return backgroundColours[static_cast<std::size_t>(bgcol - 1)];
}

}  // namespace vandrel
