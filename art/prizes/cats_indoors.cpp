// Cats at home: on the carpet, on the television, in the armchair, on a cushion.
#include "images/recipe.h"
#include "prizes/cat.h"
#include "prizes/photo.h"
#include "prizes/scenery.h"

namespace vandrel::art {
namespace {

Canvas paintCarpetCat() {
    Canvas scene = newScene(palette::bone);
    paintWall(scene, {126, 164, 132}, {140, 178, 144}, Wallpaper::Stripes);
    paintCarpet(scene, 80, rampOf({168, 64, 60}), {236, 226, 204});
    paintPlant(scene, 124, 88, 26, palette::leaf, palette::brick);
    paintWallPicture(scene, 14, 14, 36, 28, palette::metalGold, {244, 200, 150}, {150, 90, 110});
    // A ball of wool, and the thread that gives the culprit away.
    fill(scene, curve({{34, 100}, {46, 104}, {54, 98}, {62, 103}}, 0.7f), palette::iceBlue);
    paintLayer(scene, palette::ink, [](Canvas& layer) {
        fillSmooth(layer, circle(26, 96, 9), palette::ice, 9);
        for (const float turn : {-0.5f, 0.4f, 1.3f}) {
            fill(layer, intersect(circle(26, 96, 9), ring(rotated(ellipse(22, 96, 5, 11), 26, 96, turn), 0.9f)),
                 palette::iceWhite);
        }
    });
    paintSittingCat(scene, greyTabbyCat, {Eyes::Open, -0.6f, 0.3f, -0.06f}, {76, 104, 20});
    return scene;
}

void paintTelevision(Canvas& scene) {
    const Ramp wood{{176, 116, 72}, {132, 80, 52}, {80, 46, 40}};
    shade(scene, ellipse(75, 106, 62, 5), 0.5f, 6);
    paintLayer(scene, rimOf(wood), [&](Canvas& layer) {
        fillSmooth(layer, rectangle(22, 62, 106, 43, 4), wood, 5);
        fillSmooth(layer, rectangle(29, 67, 68, 34, 6), {palette::steelMiddle, palette::steelDark, palette::stoneDark},
                   4);
    });
    // A weather map is on.
    const Shape tube = rectangle(33, 70, 60, 28, 5);
    fill(scene, tube, {60, 120, 190});
    fill(scene, intersect(tube, unite(ellipse(52, 90, 16, 10), ellipse(70, 82, 13, 8))), {96, 170, 96});
    paintCloud(scene, 74, 79, 9, palette::iceWhite);
    fill(scene, circle(48, 79, 4), palette::fireYellow);
    for (int row = 71; row < 98; row += 2) {
        for (int x = 33; x < 93; ++x) {
            scene.blend(x, row, {10, 20, 50}, 0.22f);
        }
    }
    glow(scene, ellipse(44, 75, 8, 3), palette::white, 0.35f, 3);
    for (const float y : {73.0f, 84.0f}) {
        fillSmooth(scene, circle(112, y, 4), palette::steel, 4);
        fill(scene, capsule(112, y, 114, y - 2, 0.6f), palette::ink);
    }
    for (int y = 91; y < 101; y += 2) {
        scene.fillRect(104, y, 17, 1, wood.dark);
    }
}

Canvas paintTelevisionCat() {
    Canvas scene = newScene(palette::bone);
    paintWall(scene, {214, 170, 92}, {196, 148, 76}, Wallpaper::Diamonds);
    paintCarpet(scene, 99, rampOf({120, 84, 60}), {120, 76, 52});
    stroke(scene, {104, 62}, {134, 14}, palette::steelLight);
    stroke(scene, {108, 62}, {118, 10}, palette::steelMiddle);
    fill(scene, circle(134, 14, 1.5f), palette::steelLight);
    fill(scene, circle(118, 10, 1.5f), palette::steelLight);
    paintTelevision(scene);
    paintLoafingCat(scene, tuxedoCat, {Eyes::Half, 0, 0, 0.04f}, {70, 63, 18.5f});
    // The tail hangs over the screen, of course.
    paintLayer(scene, rimOf(blackFur), [](Canvas& layer) {
        fillFur(layer, curve({{100, 58}, {104, 64}, {97, 74}, {88, 82}}, 3.4f), blackFur, 3.4f, 0.6f, 5);
        fillFur(layer, circle(88, 82, 3.4f), whiteFur, 3.4f, 0.6f, 5);
    });
    return scene;
}

Canvas paintCushionCat() {
    Canvas scene = newScene(palette::bone);
    paintWall(scene, {92, 66, 92}, {104, 76, 102}, Wallpaper::Stripes);
    paintBoards(scene, 82, {{150, 92, 64}, {112, 66, 52}, {66, 38, 42}}, {74, 48, 66});
    paintLamp(scene, 122, 92, 74, {palette::fireWhite, palette::fireYellow, palette::fireOrange});
    const Ramp velvet{{96, 176, 180}, {48, 120, 136}, {28, 66, 92}};
    shade(scene, ellipse(66, 106, 58, 5), 0.5f, 6);
    paintLayer(scene, rimOf(velvet), [&](Canvas& layer) {
        fillFur(layer, roundedBox(64, 95, 56, 12, 11), velvet, 11, 0.3f, 8);
        for (const float x : {9.0f, 119.0f}) {
            fillFur(layer, circle(x, 101, 3.5f), palette::metalGold, 3, 0.8f, 3);
        }
    });
    paintCurledCat(scene, calicoCat, {Eyes::Shut}, {64, 92, 23});
    glow(scene, ellipse(108, 60, 50, 40), palette::fireYellow, 0.1f, 50);
    return scene;
}

Canvas paintRalph() {
    Canvas scene = newScene(palette::bone);
    paintWall(scene, {198, 186, 160}, {184, 168, 140}, Wallpaper::Dots);
    paintBoards(scene, 88, {{170, 120, 80}, {136, 90, 62}, {84, 52, 46}}, {150, 110, 78});
    paintWallPicture(scene, 104, 10, 32, 26, palette::brick, {170, 210, 226}, {90, 140, 110});
    paintArmchair(scene, 72, 109, 58, {{84, 116, 176}, {56, 80, 140}, {36, 48, 96}});
    CatCoat coat = gingerCat;
    coat.fluff = 1.1f;
    paintSittingCat(scene, coat, {Eyes::Half, 0, 0, -0.03f}, {72, 91, 20});
    return scene;
}

}  // namespace

Pictures paintFamily() {
    return {{"Cat1", paintCarpetCat()},
            {"Cat2", paintTelevisionCat()},
            {"Cat3", paintCushionCat()},
            {"Ralph", paintRalph()}};
}

}  // namespace vandrel::art
