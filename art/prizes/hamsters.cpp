// Hamsters: one with a seed, one in its wheel, one in a teacup with its cheeks full.
#include <cmath>

#include "images/recipe.h"
#include "painter/noise.h"
#include "prizes/brush.h"
#include "prizes/photo.h"
#include "prizes/scenery.h"

namespace vandrel::art {
namespace {

struct Hamster {
    Ramp fur;
    Ramp pale;
    float cheeks = 0;  // how much is stored in them, 0..1
    float lookX = 0;
};

constexpr Ramp pink{{255, 200, 188}, {236, 150, 144}, {170, 92, 104}};
constexpr Ramp goldenFur{{250, 204, 132}, {220, 156, 84}, {150, 94, 60}};
constexpr Ramp creamFur{{255, 248, 232}, {240, 224, 196}, {178, 150, 136}};
constexpr Ramp greyFur{{196, 192, 200}, {152, 146, 160}, {94, 88, 110}};
constexpr Ramp sandFur{{244, 222, 190}, {212, 178, 138}, {148, 112, 92}};

// In units of half the body's width; the feet at (0, 0), 2.2 high.
void paintFace(Canvas& layer, const Hamster& look, const Pose& body) {
    const float full = 1.0f + look.cheeks * 0.45f;
    fillFur(layer,
            bothSides([&](float side) { return body.oval(side * 0.48f * full, -1.22f, 0.4f * full, 0.34f * full); }),
            look.pale, body.size * 0.4f, 0.8f, 5);
    fillFur(layer, bothSides([&](float side) { return body.oval(side * 0.15f, -1.17f, 0.2f, 0.16f); }), look.pale,
            body.size * 0.2f, 0.2f, 6);
    fillSmooth(layer, body.oval(0, -1.32f, 0.1f, 0.075f), pink, body.size * 0.1f);
    const Colour line = mix(look.fur.dark, palette::ink, 0.4f);
    stroke(layer, body.at(0, -1.24f), body.at(0, -1.12f), line);
    stroke(layer, body.at(0, -1.12f), body.at(-0.12f, -1.06f), line);
    stroke(layer, body.at(0, -1.12f), body.at(0.12f, -1.06f), line);
    for (const float side : {-1.0f, 1.0f}) {
        fill(layer, body.oval(side * 0.38f + look.lookX * 0.05f, -1.56f, 0.15f, 0.16f), palette::ink);
        const Point spark = body.at(side * 0.38f + look.lookX * 0.05f - 0.05f, -1.63f);
        fill(layer, circle(spark.x, spark.y, 1.1f), palette::white);
    }
}

void paintHamster(Canvas& scene, const Hamster& look, const Pose& body) {
    paintLayer(scene, rimOf(look.fur), [&](Canvas& layer) {
        for (const float side : {-1.0f, 1.0f}) {
            fillFur(layer, body.oval(side * 0.62f, -2.0f, 0.27f, 0.28f), look.fur, body.size * 0.2f, 0.3f, 2);
            fillSmooth(layer, body.oval(side * 0.62f, -1.97f, 0.16f, 0.17f), pink, body.size * 0.15f);
        }
        fillSmooth(layer, bothSides([&](float side) { return body.oval(side * 0.5f, -0.06f, 0.3f, 0.13f); }), pink,
                   body.size * 0.15f);
        const Shape round =
            blendUnite(body.oval(0, -0.8f, 1.0f, 0.8f), body.oval(0, -1.45f, 0.84f, 0.66f), body.size * 0.4f);
        fillFur(layer, round, look.fur, body.size * 0.8f, 1.0f, 3);
        fillFur(layer, body.oval(0, -0.6f, 0.66f, 0.55f), look.pale, body.size * 0.5f, 1.2f, 4);
        paintFace(layer, look, body);
    });
    const Colour whisker = mix(look.pale.light, palette::white, 0.5f);
    for (const float side : {-1.0f, 1.0f}) {
        stroke(scene, body.at(side * 0.28f, -1.22f), body.at(side * 1.15f, -1.36f), whisker);
        stroke(scene, body.at(side * 0.28f, -1.16f), body.at(side * 1.1f, -1.06f), whisker);
    }
}

void paintHands(Canvas& scene, const Hamster& look, const Pose& body, float apart, float height) {
    paintLayer(scene, rimOf(look.fur), [&](Canvas& layer) {
        for (const float side : {-1.0f, 1.0f}) {
            fillFur(layer, body.limb({side * 0.62f, height + 0.08f}, {side * (apart + 0.1f), height}, 0.16f, 0.12f),
                    look.fur, 4, 0.4f, 7);
            fillSmooth(layer, body.oval(side * apart, height, 0.14f, 0.13f), pink, 3);
        }
    });
}

void paintShavings(Canvas& scene, int top) {
    scene.fillRect(0, top, 150, 112 - top, {196, 152, 96});
    Dice dice(8);
    for (int shaving = 0; shaving < 420; ++shaving) {
        const float x = dice.between(0, 150), y = dice.between(static_cast<float>(top) - 2, 112);
        const float turn = dice.between(0, 3.1f), length = dice.between(2, 5);
        const float tone = dice.between(0, 1);
        stroke(scene, {x, y}, {x + std::cos(turn) * length, y + std::sin(turn) * length * 0.5f},
               mix({160, 112, 70}, {252, 224, 168}, tone));
    }
}

Canvas paintSeedEater() {
    const Hamster look{goldenFur, creamFur, 0.15f};
    Canvas scene = newScene(palette::bone);
    paintWall(scene, {128, 176, 190}, {140, 188, 200}, Wallpaper::Dots);
    for (int x = 6; x < 150; x += 11) {
        scene.fillRect(x, 0, 2, 92, palette::steelMiddle);
        scene.fillRect(x, 0, 1, 92, palette::white);
    }
    for (const int y : {16, 60}) {
        scene.fillRect(0, y, 150, 2, palette::steelMiddle);
        scene.fillRect(0, y, 150, 1, palette::white);
    }
    paintShavings(scene, 84);
    paintLayer(scene, palette::ink, [](Canvas& layer) {
        fillSmooth(layer, polygon({{8, 84}, {38, 84}, {34, 98}, {12, 98}}), rampOf({200, 80, 80}), 8);
        fillSmooth(layer, ellipse(23, 84, 15, 4), {palette::leafLight, palette::leafDark, palette::leafDark}, 3);
    });
    shade(scene, ellipse(80, 103, 40, 6), 0.5f, 8);
    const Pose body{78, 104, 36};
    paintHamster(scene, look, body);
    paintLayer(scene, palette::ink, [](Canvas& layer) {
        const Shape seed =
            rotated(unite(ellipse(78, 73, 6, 10), polygon({{73, 68}, {83, 68}, {78, 57}})), 78, 72, 0.2f);
        fillSmooth(layer, seed, {{120, 112, 120}, {66, 58, 68}, {36, 28, 40}}, 5);
        for (const float dx : {-2.5f, 1.5f}) {
            stroke(layer, {79 + dx, 64}, {76.5f + dx, 80}, palette::bone);
        }
    });
    paintHands(scene, look, body, 0.22f, -0.82f);
    for (const Point& seed : {Point{122, 100}, Point{130, 94}, Point{116, 106}}) {
        fill(scene, ellipse(seed.x, seed.y, 4, 2), palette::ink);
        stroke(scene, {seed.x - 3, seed.y}, {seed.x + 2, seed.y}, palette::bone);
    }
    return scene;
}

Canvas paintWheel() {
    const Hamster look{greyFur, creamFur, 0, 0.6f};
    Canvas scene = newScene(palette::bone);
    paintWall(scene, {236, 206, 140}, {244, 218, 160}, Wallpaper::Stripes);
    paintShavings(scene, 96);
    const Ramp tin = rampOf({214, 72, 84});
    fillSmooth(scene, polygon({{72, 56}, {78, 56}, {104, 106}, {96, 106}}), palette::steel, 3);
    fillSmooth(scene, polygon({{72, 56}, {78, 56}, {54, 106}, {46, 106}}), palette::steel, 3);
    paintLayer(scene, palette::ink, [&](Canvas& layer) { fillSmooth(layer, ring(circle(75, 54, 46), 6), tin, 3); });
    for (int spoke = 0; spoke < 12; ++spoke) {
        const float turn = static_cast<float>(spoke) * 0.5236f + 0.1f;
        fillSmooth(scene, capsule(75, 54, 75 + std::cos(turn) * 43, 54 + std::sin(turn) * 43, 0.9f), palette::steel, 1);
    }
    fillSmooth(scene, circle(75, 54, 5), palette::metalGold, 5);
    const Pose body{74, 93, 25, 0.1f};
    shade(scene, ellipse(75, 93, 26, 4), 0.4f, 5);
    paintHamster(scene, look, body);
    paintHands(scene, look, body, 0.55f, -0.6f);
    // The near rim, and the wind of its own making.
    for (int rung = 0; rung < 9; ++rung) {
        const float turn = 0.35f + static_cast<float>(rung) * 0.305f;
        fillSmooth(scene, circle(75 + std::cos(turn) * 46, 54 + std::sin(turn) * 46, 2), palette::steel, 2);
    }
    for (const float y : {30.0f, 44.0f, 58.0f}) {
        stroke(scene, {8, y}, {20, y}, palette::white);
        stroke(scene, {130, y + 6}, {142, y + 6}, palette::white);
    }
    return scene;
}

void paintCup(Canvas& scene) {
    const Ramp china{{255, 255, 252}, {226, 230, 240}, {150, 158, 188}};
    shade(scene, ellipse(78, 104, 46, 6), 0.5f, 8);
    paintLayer(scene, palette::ink, [&](Canvas& layer) { fillSmooth(layer, ellipse(74, 101, 44, 6), china, 5); });
    paintLayer(scene, palette::ink, [&](Canvas& layer) {
        fillSmooth(layer, ring(ellipse(110, 78, 12, 11), 5), china, 3);
        const Shape bowl = intersect(ellipse(74, 66, 36, 36), rectangle(30, 64, 90, 40));
        fillSmooth(layer, unite(bowl, rectangle(58, 94, 32, 6, 2)), china, 26);
    });
    fill(scene, intersect(ellipse(74, 66, 36, 36), rectangle(36, 68, 78, 2)), palette::iceBlue);
    for (int flower = 0; flower < 4; ++flower) {
        const float x = 50 + static_cast<float>(flower) * 16;
        paintFlower(scene, x, 80 + static_cast<float>(flower % 2) * 4, 4, palette::iceLight, palette::fireYellow);
        paintLeaf(scene, x + 3, 86, 5, 0.5f, palette::leaf);
    }
}

Canvas paintTeacup() {
    const Hamster look{sandFur, creamFur, 1.0f, -0.3f};
    Canvas scene = newScene(palette::bone);
    paintWall(scene, {170, 140, 180}, {182, 154, 190}, Wallpaper::Diamonds);
    // A checked cloth.
    for (int y = 88; y < 112; ++y) {
        for (int x = 0; x < 150; ++x) {
            const bool column = (x / 8) % 2 == 0, row = ((y - 88) / 6) % 2 == 0;
            const Colour colours[]{{250, 244, 236}, {240, 170, 160}, {220, 92, 96}};
            scene.set(x, y, colours[(column ? 1 : 0) + (row ? 1 : 0)]);
        }
    }
    paintPlant(scene, 20, 92, 16, palette::leaf, rampOf(palette::teal));
    const Pose body{74, 98, 30};
    paintHamster(scene, look, body);
    paintCup(scene);
    paintHands(scene, look, body, 0.6f, -1.04f);
    for (const Point& biscuit : {Point{130, 103}, Point{126, 98}}) {
        paintLayer(scene, palette::brickDark,
                   [&](Canvas& layer) { fillSmooth(layer, ellipse(biscuit.x, biscuit.y, 11, 5), goldenFur, 4); });
        for (const float dx : {-5.0f, 0.0f, 5.0f}) {
            scene.set(static_cast<int>(biscuit.x + dx), static_cast<int>(biscuit.y), palette::brickDark);
        }
    }
    return scene;
}

}  // namespace

Pictures paintFamily() {
    return {{"Hamster1", paintSeedEater()}, {"Hamster2", paintWheel()}, {"Hamster3", paintTeacup()}};
}

}  // namespace vandrel::art
