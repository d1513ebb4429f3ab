// A player's sprite in the player's colour, as the game shows it: neutral grey of 192 becomes the colour, darker
// neutrals its shades. Used by the sheet of walkers and by the galleries among the prizes.
#pragma once

#include "painter/canvas.h"

namespace vandrel::art {

inline Canvas recoloured(Canvas canvas, Colour colour) {
    const auto shaded = [](std::uint8_t channel, std::uint8_t grey) {
        return static_cast<std::uint8_t>(static_cast<int>(channel) * grey / palette::playerLit.red);
    };
    for (const Colour grey : {palette::playerLit, palette::playerShade, palette::playerFold}) {
        canvas.replace(grey,
                       {shaded(colour.red, grey.red), shaded(colour.green, grey.red), shaded(colour.blue, grey.red)});
    }
    return canvas;
}

}  // namespace vandrel::art
