// What all heads are made of: the skull, the cap that most wear, eyes, and the set of frames that one character needs.
// Each file beside this one is a character: it paints a front, a side and perhaps a back, and headSet() makes the
// frames of them.
//
// A head is painted in rows 2 to 27 and columns 4 to 27; ears and hats may reach columns 3 and 28. headSet adds the ink
// outline, sets the head two rows lower and puts it on a neck (columns 11 to 20, down to row 31) that does not tilt.
#pragma once

#include <functional>
#include <optional>
#include <string>

#include "images/recipe.h"
#include "painter/pixel_map.h"
#include "painter/shapes.h"

namespace vandrel::art {

enum class Lids { Open, Half, Shut };

// Paints a head without its outline and neck, for the lids given. A back ignores them.
using HeadPainter = std::function<Canvas(Lids lids)>;

struct Character {
    std::string file;  // "Head7"
    Ramp skin;         // of the neck
    HeadPainter front;
    HeadPainter right;
    HeadPainter back = nullptr;  // nothing: the game shows the back of Head0
    HeadPainter left = nullptr;  // nothing: the game mirrors the right side
};

// All frames of the character under their file names: front and back with a sway, the sides with a nod, blinking in the
// second stride, and the crawling head with half shut eyes.
Pictures headSet(const Character& character);

// One finished head, outlined, with its neck: for the icon.
Canvas finishedHead(const Canvas& head, const Ramp& skin);

inline constexpr Ramp paleSkin{{252, 212, 176}, palette::skinLight, palette::skinMiddle};
inline constexpr Ramp tannedSkin{{228, 164, 120}, palette::skinMiddle, palette::skinDark};
inline constexpr Ramp darkSkin{{172, 112, 80}, palette::skinDark, {96, 56, 44}};
inline constexpr Ramp goblinSkin{{164, 216, 96}, palette::leafLight, palette::leafDark};
inline constexpr Ramp capCloth{palette::playerLit, palette::playerLit, palette::playerShade};

// The bare head from the front and from the right, with ears.
Canvas frontSkull(const Ramp& skin);
Canvas sideSkull(const Ramp& skin, bool nose = true);
// The back of a head in hair.
Canvas hairBack(const Ramp& hair);

// The round cap with a button on top, from the four sides (left is right mirrored).
void layFrontCap(Canvas& head);
void laySideCap(Canvas& head);
void layBackCap(Canvas& head);

// An eye of white with an ink pupil, `width` x 6 pixels, top left at (x, y); the pupil touches the right edge of the
// white when `lookRight`. Shut it is a line that curves like a smile.
void layEye(Canvas& head, int x, int y, Lids lids, Colour lid, int width = 5, bool lookRight = false);

// Ink marks by hand at (x, y): '#' is ink, 'w' white, 'r' a warm red, 'p' a blush.
void layMarks(Canvas& head, int x, int y, const PixelRows& rows);

}  // namespace vandrel::art
