#include "base/colour.h"

#include <algorithm>
#include <cmath>

namespace vandrel {

namespace {

std::uint8_t channelByte(float channel) {
    return static_cast<std::uint8_t>(std::clamp(channel, 0.0f, 1.0f) * 255.0f);
}

}  // namespace

ALLEGRO_COLOR toColour(RGB colour) {
    ALLEGRO_COLOR result;
    result.r = static_cast<float>(colour.red) / 255.0f;
    result.g = static_cast<float>(colour.green) / 255.0f;
    result.b = static_cast<float>(colour.blue) / 255.0f;
    result.a = 1.0f;
    return result;
}

RGB toRGB(const ALLEGRO_COLOR& colour) {
    return {channelByte(colour.r), channelByte(colour.g), channelByte(colour.b)};
}

bool sameColour(const ALLEGRO_COLOR& a, const ALLEGRO_COLOR& b) {
    return a.r == b.r && a.g == b.g && a.b == b.b && a.a == b.a;
}

float colourDistance(RGB a, RGB b) {
    const int redMean = (a.red + b.red) / 2;
    const int red = a.red - b.red;
    const int green = a.green - b.green;
    const int blue = a.blue - b.blue;
    const int weighted =
        (((512 + redMean) * red * red) >> 8) + 4 * green * green + (((767 - redMean) * blue * blue) >> 8);
    return std::sqrt(static_cast<float>(weighted));
}

}  // namespace vandrel
