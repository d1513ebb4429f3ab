// One cat for all the prize pictures: a coat, a look and a pose. All measures of a pose are in units of half the head's
// width, with (0, 0) on the ground under the middle of the body, or in the middle of the head.
//
//     paintSittingCat(scene, tabbyCat, {Eyes::Open}, {75, 100, 16});
#pragma once

#include "prizes/brush.h"

namespace vandrel::art {

enum class CoatPattern { Plain, Tabby, Patches, Points };
enum class Eyes { Open, Huge, Half, Shut };

struct CatCoat {
    Ramp fur;
    Ramp marks;  // stripes, patches, or the dark face and feet of `Points`
    Ramp pale;   // muzzle and what `bib` and `socks` leave white
    CoatPattern pattern = CoatPattern::Plain;
    bool bib = false;
    bool socks = false;
    Colour iris{216, 176, 56};
    Colour nose{216, 128, 124};
    float fluff = 0.6f;  // how far the hairs stand off, in pixels
};

struct CatLook {
    Eyes eyes = Eyes::Open;
    float lookX = 0;  // where the pupils turn, -1..1
    float lookY = 0;
    float headTilt = 0;
};

inline constexpr Ramp greyFur{{172, 168, 172}, {128, 122, 132}, {78, 70, 88}};
inline constexpr Ramp blackFur{{92, 84, 108}, {50, 42, 60}, {26, 18, 36}};
inline constexpr Ramp whiteFur{{255, 252, 244}, {232, 224, 214}, {164, 152, 164}};
inline constexpr Ramp gingerFur{{252, 188, 104}, {224, 136, 60}, {156, 78, 40}};
inline constexpr Ramp rustFur{{214, 120, 56}, {176, 84, 40}, {112, 48, 32}};
inline constexpr Ramp creamFur{{252, 238, 212}, {228, 204, 168}, {164, 132, 112}};
inline constexpr Ramp cocoaFur{{128, 92, 76}, {84, 58, 52}, {48, 32, 36}};
inline constexpr Ramp tabbyFur{{196, 168, 132}, {154, 122, 90}, {96, 70, 60}};
inline constexpr Ramp tabbyMarks{{104, 78, 62}, {72, 50, 46}, {44, 28, 34}};

inline constexpr CatCoat tabbyCat{tabbyFur, tabbyMarks, creamFur, CoatPattern::Tabby, true, true, {168, 192, 64}};
inline constexpr CatCoat greyTabbyCat{greyFur, blackFur, whiteFur, CoatPattern::Tabby, true, true, {224, 184, 64}};
inline constexpr CatCoat gingerCat{gingerFur, rustFur, creamFur, CoatPattern::Tabby, false, false, {232, 176, 48}};
inline constexpr CatCoat tuxedoCat{blackFur, blackFur, whiteFur, CoatPattern::Plain, true, true, {148, 208, 88}};
inline constexpr CatCoat blackCat{blackFur, blackFur, blackFur,       CoatPattern::Plain,
                                  false,    false,    {112, 232, 64}, {72, 52, 68}};
inline constexpr CatCoat calicoCat{whiteFur, gingerFur, whiteFur, CoatPattern::Patches, false, false, {200, 176, 72}};
inline constexpr CatCoat whiteCat{whiteFur,       whiteFur,        whiteFur, CoatPattern::Plain, false, false,
                                  {96, 168, 240}, {240, 156, 156}, 1.5f};
inline constexpr CatCoat siameseCat{creamFur, cocoaFur, creamFur,       CoatPattern::Points,
                                    false,    false,    {84, 156, 248}, {84, 56, 56}};

// The coat's material for the body, its pattern laid about the pose.
Material coatMaterial(const CatCoat& coat, const Pose& pose);

void paintCatHead(Canvas& scene, const CatCoat& coat, const CatLook& look, const Pose& head);
// Upright, facing the viewer; 4 units high.
void paintSittingCat(Canvas& scene, const CatCoat& coat, const CatLook& look, const Pose& cat);
// On folded paws, head to the left; 4 units wide, 2.6 high.
void paintLoafingCat(Canvas& scene, const CatCoat& coat, const CatLook& look, const Pose& cat);
// Curled up with the tail round the nose; 4 units wide, 2 high.
void paintCurledCat(Canvas& scene, const CatCoat& coat, const CatLook& look, const Pose& cat);
// Flat out on one side, head to the left; 7 units long.
void paintStretchedCat(Canvas& scene, const CatCoat& coat, const CatLook& look, const Pose& cat);
// A front paw that hangs over an edge, the edge at the pose.
void paintCatPaw(Canvas& scene, const CatCoat& coat, const Pose& paw);

}  // namespace vandrel::art
