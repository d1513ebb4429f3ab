// The colour value of the painter and the palette that all pictures share, so that they look like one box of toys.
// Used by every recipe under art/.
#pragma once

#include <cstdint>

namespace vandrel::art {

struct Colour {
    std::uint8_t red = 0;
    std::uint8_t green = 0;
    std::uint8_t blue = 0;
    std::uint8_t alpha = 255;

    bool operator==(const Colour&) const = default;
};

inline constexpr Colour clear{0, 0, 0, 0};

// The colour `part` of the way from `from` (0) to `to` (1), channel by channel, alpha too. `part` is clamped to 0..1.
constexpr Colour mix(Colour from, Colour to, float part) {
    const float share = part < 0.0f ? 0.0f : (part > 1.0f ? 1.0f : part);
    const auto blend = [share](std::uint8_t a, std::uint8_t b) {
        return static_cast<std::uint8_t>(static_cast<float>(a) +
                                         (static_cast<float>(b) - static_cast<float>(a)) * share + 0.5f);
    };
    return {blend(from.red, to.red), blend(from.green, to.green), blend(from.blue, to.blue),
            blend(from.alpha, to.alpha)};
}

// Three tones of one material, lit, plain and folded away from the light.
struct Ramp {
    Colour light;
    Colour middle;
    Colour dark;
};

namespace palette {

inline constexpr Colour ink{28, 20, 36};  // outlines and drawn lines; never neutral, so it survives recolouring
inline constexpr Colour black{0, 0, 0};   // bombs and rocket fins only: "Recolour bombs" replaces exactly this
inline constexpr Colour white{255, 255, 255};
inline constexpr Colour bone{244, 236, 216};
inline constexpr Colour boneShade{204, 188, 160};

inline constexpr Colour skinLight{240, 190, 150};
inline constexpr Colour skinMiddle{206, 140, 100};
inline constexpr Colour skinDark{140, 86, 60};

inline constexpr Colour brickLight{222, 140, 84};
inline constexpr Colour brickMiddle{184, 96, 56};
inline constexpr Colour brickDark{120, 56, 40};
inline constexpr Colour mortar{70, 40, 40};

inline constexpr Colour steelLight{214, 220, 232};
inline constexpr Colour steelMiddle{150, 160, 184};
inline constexpr Colour steelDark{84, 92, 120};

inline constexpr Colour stoneLight{168, 164, 156};
inline constexpr Colour stoneMiddle{116, 112, 108};
inline constexpr Colour stoneDark{68, 66, 70};

inline constexpr Colour fireWhite{255, 244, 170};
inline constexpr Colour fireYellow{255, 208, 64};
inline constexpr Colour fireOrange{255, 136, 32};
inline constexpr Colour fireRed{216, 56, 24};
inline constexpr Colour fireSmoke{84, 44, 60};

inline constexpr Colour iceWhite{228, 244, 255};
inline constexpr Colour iceLight{120, 208, 255};
inline constexpr Colour iceBlue{72, 120, 240};
inline constexpr Colour violet{112, 56, 200};

inline constexpr Colour gold{248, 200, 72};
inline constexpr Colour goldDark{176, 120, 24};
inline constexpr Colour leafLight{120, 184, 72};
inline constexpr Colour leafDark{64, 140, 60};
inline constexpr Colour teal{88, 216, 208};

inline constexpr Colour flagRed{255, 0, 0};  // flags only: exactly this becomes the team's colour

// The player's colour and its shades: neutral grey, in bodies and heads only. 192 becomes the colour itself.
inline constexpr Colour playerLit{192, 192, 192};
inline constexpr Colour playerShade{144, 144, 144};
inline constexpr Colour playerFold{96, 96, 96};

inline constexpr Ramp skin{skinLight, skinLight, skinMiddle};
inline constexpr Ramp brick{brickLight, brickMiddle, brickDark};
inline constexpr Ramp steel{steelLight, steelMiddle, steelDark};
inline constexpr Ramp stone{stoneLight, stoneMiddle, stoneDark};
inline constexpr Ramp fire{fireYellow, fireOrange, fireRed};
inline constexpr Ramp ice{iceLight, iceBlue, violet};
inline constexpr Ramp metalGold{fireWhite, gold, goldDark};
inline constexpr Ramp leaf{leafLight, leafLight, leafDark};
inline constexpr Ramp player{playerLit, playerLit, playerShade};

}  // namespace palette
}  // namespace vandrel::art
