// The spread on flat bread, with its jar: breakfast, still life.
#include <cmath>

#include "images/recipe.h"
#include "painter/noise.h"
#include "prizes/brush.h"
#include "prizes/photo.h"
#include "prizes/scenery.h"

namespace vandrel::art {
namespace {

constexpr Ramp bread{{252, 232, 188}, {230, 190, 130}, {170, 116, 76}};
constexpr Ramp spread{{140, 84, 56}, {70, 36, 36}, {34, 18, 28}};

void paintCloth(Canvas& scene) {
    for (int y = 0; y < photoHeight; ++y) {
        for (int x = 0; x < photoWidth; ++x) {
            const bool column = ((x + y / 6) / 9) % 2 == 0, row = (y / 8) % 2 == 0;
            const Colour check =
                column && row ? Colour{74, 120, 176} : (column || row ? Colour{150, 184, 216} : Colour{236, 242, 246});
            scene.set(x, y, mix(check, {60, 50, 90}, pointNoise(x, y, 3) * 0.08f));
        }
    }
}

void paintJar(Canvas& scene) {
    shade(scene, ellipse(122, 60, 24, 6), 0.5f, 8);
    paintLayer(scene, palette::ink, [](Canvas& layer) {
        fillSmooth(layer, unite(rectangle(98, 22, 42, 38, 9), rectangle(104, 16, 30, 12, 3)), spread, 14);
        fillSmooth(layer, rectangle(101, 8, 36, 11, 3), palette::steel, 5);
        for (int x = 104; x < 136; x += 4) {
            fill(layer, rectangle(static_cast<float>(x), 11, 1, 6), palette::steelDark);
        }
    });
    // A plain label with a stew pot on it.
    fill(scene, rectangle(102, 30, 34, 20, 3), palette::bone);
    fill(scene, ring(rectangle(103, 31, 32, 18, 3), 1), palette::leafDark);
    fillSmooth(scene, intersect(ellipse(119, 39, 9, 8), rectangle(108, 39, 22, 9)), rampOf(palette::brickMiddle), 4);
    scene.fillRect(108, 38, 22, 2, palette::brickDark);
    scene.fillRect(118, 35, 3, 2, palette::brickDark);
    glow(scene, rectangle(101, 26, 3, 28, 1), palette::white, 0.4f, 2);
}

void paintPitta(Canvas& scene) {
    shade(scene, ellipse(66, 78, 60, 32), 0.45f, 10);
    paintLayer(scene, palette::ink, [](Canvas& layer) {
        fillSmooth(layer, ellipse(64, 72, 58, 34), {{255, 255, 252}, {228, 232, 240}, {160, 166, 190}}, 7);
    });
    fill(scene, ring(ellipse(64, 72, 48, 26), 1), palette::iceBlue);
    const Shape bite = uniteAll({circle(99, 63, 8), circle(104, 72, 9), circle(102, 83, 7)});
    const Shape whole = rotated(ellipse(60, 75, 42, 22), 60, 75, -0.08f);
    const Material baked = [](float x, float y) {
        const float toast = cloudNoise(x / 7, y / 6, 12, 3);
        return toast > 0.58f ? Ramp{bread.middle, bread.dark, palette::brickDark} : bread;
    };
    // Another, cut in half so that its pocket gapes, waits behind.
    const Shape half = intersect(rotated(ellipse(80, 50, 34, 18), 80, 50, 0.3f), rectangle(62, 20, 60, 60));
    paintLayer(scene, rimOf(bread), [&](Canvas& layer) { fillFur(layer, half, baked, 6, 0.3f, 7); });
    fill(scene, rotated(ellipse(63, 45, 1.6f, 9), 63, 45, 0.1f), {112, 70, 52});
    shade(scene, whole, 0.35f, 5);
    paintLayer(scene, rimOf(bread), [&](Canvas& layer) { fillFur(layer, subtract(whole, bite), baked, 6, 0.3f, 4); });
    // The spread, with the marks of the knife in it.
    const Shape smear =
        uniteAll({rotated(ellipse(52, 75, 28, 14), 52, 75, -0.1f), ellipse(72, 71, 18, 11), ellipse(34, 80, 12, 7)});
    fillFur(scene, subtract(smear, grown(bite, 3)), spread, 5, 0.8f, 5);
    for (int sweep = 0; sweep < 5; ++sweep) {
        const float y = 66 + static_cast<float>(sweep) * 4.4f;
        fillSmooth(scene, curve({{32, y + 4}, {50, y}, {66, y + 2}, {80, y - 2}}, 0.8f),
                   {{196, 136, 92}, {120, 70, 50}, {80, 42, 38}}, 2);
    }
    for (const Point& gloss : {Point{40, 67}, Point{58, 63}, Point{74, 65}}) {
        fill(scene, rotated(ellipse(gloss.x, gloss.y, 4, 0.9f), gloss.x, gloss.y, -0.2f), {252, 226, 196});
    }
}

void paintKnife(Canvas& scene) {
    shade(scene, capsule(88, 107, 142, 84, 3), 0.4f, 5);
    paintLayer(scene, palette::ink, [](Canvas& layer) {
        fillSmooth(layer, taper(84, 104, 116, 92, 2.5f, 4), palette::steel, 3);
        fillSmooth(layer, capsule(119, 91, 143, 80, 3.4f), palette::brick, 3);
        fillSmooth(layer, capsule(84, 104, 96, 99, 2.6f), spread, 2);
    });
    scene.set(126, 87, palette::gold);
    scene.set(136, 83, palette::gold);
}

Canvas paintBreakfast() {
    Canvas scene = newScene(palette::bone);
    paintCloth(scene);
    glow(scene, ellipse(30, 16, 50, 30), palette::fireWhite, 0.3f, 40);
    // A mug of tea, steaming.
    shade(scene, ellipse(34, 34, 22, 8), 0.4f, 8);
    paintLayer(scene, palette::ink, [](Canvas& layer) {
        fillSmooth(layer, ring(ellipse(49, 25, 9, 8), 4), rampOf(palette::fireOrange), 3);
        fillSmooth(layer, unite(rectangle(16, 16, 32, 23, 6), ellipse(32, 16, 16, 5)), rampOf(palette::fireOrange), 12);
        fill(layer, ellipse(32, 16, 13, 3.4f), {128, 70, 40});
    });
    paintJar(scene);
    paintPitta(scene);
    paintKnife(scene);
    return scene;
}

}  // namespace

Pictures paintFamily() {
    return {{"Marmite", paintBreakfast()}};
}

}  // namespace vandrel::art
