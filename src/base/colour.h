// Colours as three bytes and as the platform's four floats, and how far two of them lie apart for the eye.
// Only the plain struct of the platform's header is used, so the simulation needs none of its code.
#pragma once

#include <allegro5/color.h>

#include <cstdint>

namespace vandrel {

struct RGB {
    std::uint8_t red = 0;
    std::uint8_t green = 0;
    std::uint8_t blue = 0;

    friend constexpr bool operator==(const RGB&, const RGB&) = default;
};

// The opaque colour with these bytes as channels 0.0 to 1.0.
ALLEGRO_COLOR toColour(RGB colour);

// The byte value of each channel, truncated; channels outside 0.0 to 1.0 are clamped first.
RGB toRGB(const ALLEGRO_COLOR& colour);

bool sameColour(const ALLEGRO_COLOR& a, const ALLEGRO_COLOR& b);

// The red-mean weighted distance of two colours: 0 for equal ones, about 765 from black to white.
// Formula: a low-cost approximation of perceived difference, with the mean of the reds as the weight, in 32-bit
// integers.
float colourDistance(RGB a, RGB b);

}  // namespace vandrel
