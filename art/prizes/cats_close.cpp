// Cats that look straight at the camera: one in the dark, one in a bin, three in a basket.
#include "images/recipe.h"
#include "painter/noise.h"
#include "prizes/cat.h"
#include "prizes/photo.h"
#include "prizes/scenery.h"

namespace vandrel::art {
namespace {

// The flash caught it in the dark: two huge green eyes and hardly any cat.
Canvas paintAlien() {
    Canvas scene = newScene({14, 14, 34});
    fillGradient(scene, 0, 112, {26, 30, 66}, {10, 8, 22});
    paintBokeh(scene, {{70, 84, 150}, {50, 60, 120}, {90, 70, 130}}, 26, 0, 100, 31);
    paintLayer(scene, rimOf(blackFur),
               [](Canvas& layer) { fillFur(layer, ellipse(76, 128, 66, 46), blackFur, 30, 1.0f, 8); });
    glow(scene, circle(75, 62, 54), {60, 120, 70}, 0.2f, 50);
    CatCoat coat = blackCat;
    coat.iris = {120, 240, 72};
    paintCatHead(scene, coat, {Eyes::Huge, 0, 0, 0.06f}, {75, 64, 47});
    return scene;
}

void paintPedalBin(Canvas& scene) {
    shade(scene, ellipse(78, 107, 40, 6), 0.5f, 8);
    paintLayer(scene, rimOf(palette::steel), [](Canvas& layer) {
        fillSmooth(layer, polygon({{44, 74}, {106, 74}, {101, 108}, {49, 108}}), palette::steel, 26);
        for (const float x : {56.0f, 66.0f, 77.0f, 88.0f, 97.0f}) {
            fill(layer, capsule(x, 82, x + (75 - x) * 0.06f, 104, 0.7f), palette::steelDark);
        }
        fillSmooth(layer, rectangle(41, 70, 68, 6, 3), palette::steel, 3);
    });
}

Canvas paintCatInBin() {
    Canvas scene = newScene(palette::bone);
    paintWall(scene, {186, 206, 190}, {170, 192, 178}, Wallpaper::Diamonds);
    paintCarpet(scene, 94, rampOf({150, 116, 92}), {222, 214, 196});
    paintWallPicture(scene, 10, 12, 34, 26, palette::brick, {150, 196, 224}, {92, 150, 84});
    paintCatHead(scene, greyTabbyCat, {Eyes::Open, 0.3f, -0.5f, 0.05f}, {75, 54, 24});
    paintPedalBin(scene);
    paintCatPaw(scene, greyTabbyCat, {58, 72, 22});
    paintCatPaw(scene, greyTabbyCat, {93, 72, 22});
    // It wears the lid for a hat.
    paintLayer(scene, rimOf(palette::steel), [](Canvas& layer) {
        const Shape lid = intersect(ellipse(76, 36, 35, 19), rectangle(30, 8, 92, 26));
        fillSmooth(layer, rotated(lid, 76, 30, 0.1f), palette::steel, 16);
        fillSmooth(layer, rotated(rectangle(38, 31, 76, 5, 2), 76, 30, 0.1f), palette::steel, 3);
        fillSmooth(layer, ellipse(79, 15, 5, 4), rampOf(palette::stoneDark), 4);
    });
    return scene;
}

void paintBasket(Canvas& scene) {
    const Ramp straw{{232, 190, 116}, {190, 138, 72}, {122, 78, 44}};
    const Material weave = [straw](float x, float y) {
        const bool over = (static_cast<int>(x / 5) + static_cast<int>(y / 3)) % 2 == 0;
        return over ? straw : Ramp{straw.middle, straw.dark, straw.dark};
    };
    shade(scene, ellipse(75, 106, 66, 6), 0.5f, 8);
    paintLayer(scene, rimOf(straw), [&](Canvas& layer) {
        fillFur(layer, polygon({{12, 78}, {138, 78}, {124, 107}, {26, 107}}), weave, 14, 0.2f, 4);
        fillFur(layer, rectangle(8, 73, 134, 8, 4), weave, 5, 0.2f, 4);
    });
}

Canvas paintKittens() {
    Canvas scene = newScene(palette::bone);
    paintWall(scene, {232, 190, 176}, {240, 206, 190}, Wallpaper::Dots);
    paintBoards(scene, 90, {{206, 150, 98}, {172, 116, 72}, {112, 70, 50}}, {244, 232, 214});
    paintLayer(scene, rimOf(rampOf({96, 130, 190})), [](Canvas& layer) {
        fillFur(layer, ellipse(75, 74, 62, 18), rampOf({96, 130, 190}), 14, 1, 5);
    });
    paintCatHead(scene, gingerCat, {Eyes::Open, 0.4f, 0.2f, -0.18f}, {37, 55, 19});
    paintCatHead(scene, calicoCat, {Eyes::Open, -0.3f, 0.2f, 0.2f}, {113, 56, 19});
    paintCatHead(scene, tuxedoCat, {Eyes::Huge, 0, 0, 0.02f}, {75, 47, 20});
    paintBasket(scene);
    paintCatPaw(scene, gingerCat, {30, 77, 15});
    paintCatPaw(scene, tuxedoCat, {67, 77, 15});
    paintCatPaw(scene, tuxedoCat, {84, 77, 15});
    paintCatPaw(scene, calicoCat, {120, 77, 15});
    return scene;
}

}  // namespace

Pictures paintFamily() {
    return {{"Alien1", paintAlien()}, {"CatInBin1", paintCatInBin()}, {"Kittens2_7", paintKittens()}};
}

}  // namespace vandrel::art
