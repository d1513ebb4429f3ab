// The settings that make the game easier to see. The accessibility menu edits them, the painting of the arena and of
// the players reads them; the configuration keeps them.
#pragma once

#include "base/colour.h"

namespace vandrel {

// A fresh record holds the factory settings.
struct AccessibilitySettings {
    int bgcol = 1;          // the arena's background: an index for backgroundColour
    int ghostOpacity = 64;  // 0 to 255
    bool outlineEnabled = false;
    bool recolourBombs = false;
    RGB outlineCol{0, 0, 0};
    RGB newBombCol{255, 255, 255};
    bool flashingEnabled = true;

    friend bool operator==(const AccessibilitySettings&, const AccessibilitySettings&) = default;
};

extern AccessibilitySettings accessibility;

// The colour of a background index, 1 to 4; black for any other.
RGB backgroundColour(int bgcol);

}  // namespace vandrel
