// By the water: the platypus on its bank and three narwhals in the waves.
#include <cmath>

#include "images/recipe.h"
#include "painter/noise.h"
#include "prizes/brush.h"
#include "prizes/photo.h"
#include "prizes/scenery.h"

namespace vandrel::art {
namespace {

constexpr Ramp pelt{{172, 122, 84}, {120, 78, 60}, {70, 44, 48}};
constexpr Ramp belly{{236, 206, 164}, {204, 164, 124}, {140, 100, 86}};
constexpr Ramp bill{{190, 190, 204}, {132, 128, 148}, {72, 64, 90}};
constexpr Ramp web{{250, 172, 92}, {220, 126, 64}, {148, 74, 52}};

void paintRiver(Canvas& scene) {
    fillGradient(scene, 0, 50, {198, 226, 206}, {120, 172, 128});
    paintBokeh(scene, {{150, 200, 120}, {84, 140, 92}, {220, 236, 170}}, 50, 0, 46, 23);
    fillGradient(scene, 44, 68, {64, 140, 150}, {28, 84, 116});
    Dice dice(3);
    for (int ripple = 0; ripple < 90; ++ripple) {
        const int x = dice.below(150), y = 46 + dice.below(60);
        scene.fillRect(x, y, 3 + (y - 44) / 6, 1, dice.chance(0.4f) ? Colour{176, 224, 216} : Colour{92, 168, 172});
    }
    // Reeds on the far bank.
    for (int reed = 0; reed < 26; ++reed) {
        const int x = dice.below(150), height = 16 + dice.below(22);
        stroke(scene, {static_cast<float>(x), 48},
               {static_cast<float>(x + dice.below(5) - 2), static_cast<float>(48 - height)},
               dice.chance(0.5f) ? palette::leafDark : Colour{88, 130, 70});
        if (reed % 3 == 0) {
            fillSmooth(scene,
                       capsule(static_cast<float>(x), 46.0f - static_cast<float>(height), static_cast<float>(x),
                               52.0f - static_cast<float>(height), 1.6f),
                       pelt, 2);
        }
    }
}

void paintPaw(Canvas& scene, const Pose& paw) {
    paintLayer(scene, palette::ink, [&](Canvas& layer) {
        fillSmooth(layer,
                   paw.corners({{0.1f, -0.25f},
                                {-0.75f, 0.0f},
                                {-0.6f, 0.18f},
                                {-0.68f, 0.34f},
                                {-0.4f, 0.36f},
                                {-0.2f, 0.48f},
                                {0.3f, 0.2f}}),
                   web, 3);
        stroke(layer, paw.at(0, 0), paw.at(-0.6f, 0.1f), web.dark);
        stroke(layer, paw.at(0, 0.1f), paw.at(-0.35f, 0.36f), web.dark);
    });
}

void paintPlatypusHead(Canvas& scene, const Pose& head) {
    paintLayer(scene, rimOf(bill), [&](Canvas& layer) {
        fillSmooth(layer,
                   blendUnite(head.limb({-0.4f, 0.2f}, {-1.2f, 0.34f}, 0.3f, 0.36f),
                              head.oval(-1.45f, 0.36f, 0.62f, 0.36f), 5),
                   bill, head.size * 0.3f);
        stroke(layer, head.at(-0.7f, 0.46f), head.at(-1.9f, 0.44f), bill.dark);
        stroke(layer, head.at(-0.7f, 0.46f), head.at(-0.5f, 0.3f), bill.dark);
        for (const float x : {-1.55f, -1.4f}) {
            const Point nostril = head.at(x, 0.22f);
            layer.set(static_cast<int>(nostril.x), static_cast<int>(nostril.y), palette::ink);
        }
    });
    paintLayer(scene, rimOf(pelt), [&](Canvas& layer) {
        fillFur(layer, head.oval(0.05f, 0, 0.78f, 0.66f), pelt, head.size * 0.6f, 0.6f, 4);
        fillFur(layer, head.oval(-0.3f, 0.42f, 0.4f, 0.2f), belly, 4, 0.5f, 5);
        fillFur(layer, head.oval(-0.26f, -0.2f, 0.27f, 0.25f), belly, 4, 0.1f, 5);
        fill(layer, head.oval(-0.27f, -0.19f, 0.17f, 0.18f), palette::ink);
        const Point spark = head.at(-0.33f, -0.27f);
        fill(layer, circle(spark.x, spark.y, 1.1f), palette::white);
    });
}

Canvas paintPlatypus() {
    Canvas scene = newScene(palette::teal);
    paintRiver(scene);
    const Ramp earth{{190, 156, 104}, {148, 112, 76}, {92, 66, 56}};
    paintLayer(scene, rimOf(earth), [&](Canvas& layer) { fillFur(layer, ellipse(96, 114, 92, 30), earth, 14, 1, 5); });
    const Ramp stone = palette::stone;
    for (const Point& rock : {Point{12, 102}, Point{26, 107}, Point{142, 92}}) {
        fillSmooth(scene, ellipse(rock.x, rock.y, 9, 6), stone, 6);
    }
    const Pose body{84, 96, 22};
    shade(scene, body.oval(0.3f, 0.05f, 2.4f, 0.3f), 0.5f, 6);
    const Ramp flat{{140, 100, 80}, {96, 64, 58}, {56, 36, 46}};
    paintLayer(scene, rimOf(flat), [&](Canvas& layer) {
        const Shape tail = body.oval(2.15f, -0.72f, 0.85f, 0.4f, -0.35f);
        fillFur(layer, tail, flat, 7, 0.4f, 6);
        // A beaver's tail: a lattice of scales.
        for (float lane = -3.0f; lane < 4.0f; lane += 1.0f) {
            const Point from = body.at(1.5f + lane * 0.22f, -1.3f), to = body.at(1.9f + lane * 0.22f, -0.2f);
            const Point back = body.at(2.3f + lane * 0.22f, -1.3f), front = body.at(1.7f + lane * 0.22f, -0.2f);
            fillWithin(layer, intersect(grown(tail, -1), capsule(from.x, from.y, to.x, to.y, 0.4f)), flat.dark);
            fillWithin(layer, intersect(grown(tail, -1), capsule(back.x, back.y, front.x, front.y, 0.4f)), flat.dark);
        }
    });
    paintPaw(scene, {112, 93, 16});
    paintLayer(scene, rimOf(pelt), [&](Canvas& layer) {
        fillFur(layer, blendUnite(body.oval(0.35f, -0.8f, 1.35f, 0.78f), body.oval(-0.7f, -0.9f, 0.7f, 0.62f), 9), pelt,
                15, 0.9f, 7);
        fillFur(layer, body.oval(0, -0.3f, 1.2f, 0.26f), belly, 5, 0.8f, 8);
    });
    paintPaw(scene, {78, 94, 16});
    paintPaw(scene, {126, 96, 16});
    paintPlatypusHead(scene, body.part(-1.2f, -1.35f, 0.95f, 0.02f));
    paintGrass(scene, 107, {{160, 208, 92}, {96, 160, 68}, {48, 104, 56}}, 13);
    return scene;
}

constexpr Ramp hide{{206, 216, 230}, {136, 152, 182}, {78, 90, 130}};
constexpr Ramp tusk{{255, 252, 236}, {236, 222, 186}, {176, 150, 124}};

void paintNarwhal(Canvas& scene, const Pose& whale) {
    paintLayer(scene, rimOf(tusk), [&](Canvas& layer) {
        fillSmooth(layer, whale.limb({-0.9f, -0.95f}, {-2.1f, -2.5f}, 0.13f, 0.03f), tusk, 2);
        for (int turn = 0; turn < 7; ++turn) {
            const float along = static_cast<float>(turn) / 7.0f;
            const Point groove = whale.at(-0.95f - along * 1.1f, -1.02f - along * 1.42f);
            stroke(layer, {groove.x - 1, groove.y}, {groove.x + 1, groove.y + 1}, tusk.dark);
        }
    });
    const Material mottled = [whale](float x, float y) {
        const bool spot = smoothNoise(x / 3.2f, y / 2.6f, 19) > 0.62f && y < whale.y - whale.size * 0.35f;
        return spot ? Ramp{hide.middle, hide.dark, {48, 56, 92}} : hide;
    };
    paintLayer(scene, rimOf(hide), [&](Canvas& layer) {
        fillSmooth(layer,
                   whale.corners({{1.9f, -0.3f},
                                  {2.35f, -1.25f},
                                  {2.75f, -1.1f},
                                  {2.6f, -0.85f},
                                  {3.1f, -0.75f},
                                  {3.0f, -0.45f},
                                  {2.2f, 0.1f}}),
                   hide, 4);
        const Shape back = blendUnite(whale.oval(-0.35f, -0.45f, 1.0f, 0.85f), whale.oval(0.95f, -0.25f, 1.4f, 0.6f),
                                      whale.size * 0.4f);
        fillFur(layer, back, mottled, whale.size * 0.7f, 0, 3);
        fillFur(layer, whale.oval(-0.55f, 0.05f, 0.8f, 0.36f), rampOf(palette::bone), whale.size * 0.3f, 0, 4);
        fill(layer, whale.oval(-0.72f, -0.42f, 0.13f, 0.14f), palette::ink);
        const Point spark = whale.at(-0.77f, -0.48f);
        layer.set(static_cast<int>(spark.x), static_cast<int>(spark.y), palette::white);
        fill(layer, whale.tube({{-1.2f, -0.2f}, {-0.95f, -0.06f}, {-0.68f, -0.12f}}, 0.05f), hide.dark);
        const Point cheek = whale.at(-0.56f, -0.2f);
        fill(layer, ellipse(cheek.x, cheek.y, 1.8f, 1.1f), {232, 160, 170});
    });
}

void paintWave(Canvas& scene, int row, float phase, const Ramp& water) {
    for (int x = 0; x < photoWidth; ++x) {
        const float swell = std::sin(static_cast<float>(x) * 0.16f + phase) * 2.6f +
                            std::sin(static_cast<float>(x) * 0.07f + phase * 2) * 2.0f;
        const int top = row + static_cast<int>(swell);
        scene.fillRect(x, top, 1, photoHeight - top, water.middle);
        scene.fillRect(x, top, 1, 2, (x / 3) % 4 == 0 ? palette::white : water.light);
        scene.fillRect(x, top + 7, 1, 1, (x + row) % 9 < 4 ? water.light : water.middle);
        scene.fillRect(x, top + 12, 1, 1, (x + row) % 13 < 5 ? water.dark : water.middle);
    }
}

void paintIceberg(Canvas& scene, float x, float ground, float size) {
    const Pose ice{x, ground, size};
    fill(scene,
         ice.corners({{-1, 0}, {-0.7f, -0.6f}, {-0.3f, -0.5f}, {0, -1.1f}, {0.35f, -0.6f}, {0.6f, -0.7f}, {1, 0}}),
         {206, 232, 248});
    fill(scene, ice.corners({{0, -1.1f}, {0.35f, -0.6f}, {0.6f, -0.7f}, {1, 0}, {0.2f, 0}}), {140, 184, 224});
    fill(scene, ice.corners({{-1, 0}, {-0.7f, -0.6f}, {-0.3f, -0.5f}, {-0.5f, 0}}), palette::white);
}

Canvas paintNarwhals() {
    Canvas scene = newScene(palette::iceBlue);
    fillGradient(scene, 0, 60, {252, 190, 160}, {190, 220, 244});
    fillSmooth(scene, circle(116, 22, 9), {palette::fireWhite, {255, 226, 150}, palette::fireYellow}, 9);
    paintCloud(scene, 36, 16, 18, {250, 214, 204});
    paintCloud(scene, 84, 30, 12, {244, 220, 220});
    paintIceberg(scene, 26, 54, 24);
    paintIceberg(scene, 132, 54, 18);
    paintWave(scene, 52, 0.4f, {{150, 214, 232}, {74, 150, 196}, {48, 108, 164}});
    paintNarwhal(scene, {104, 62, 14});
    paintWave(scene, 66, 2.0f, {{130, 200, 228}, {56, 128, 186}, {36, 88, 148}});
    paintNarwhal(scene, {44, 78, 16.5f});
    paintWave(scene, 82, 4.1f, {{112, 186, 224}, {42, 106, 172}, {28, 70, 132}});
    paintNarwhal(scene, {100, 98, 20});
    paintWave(scene, 101, 5.2f, {{96, 170, 216}, {32, 86, 154}, {22, 56, 114}});
    return scene;
}

}  // namespace

Pictures paintFamily() {
    return {{"Platypus", paintPlatypus()}, {"Narwhals", paintNarwhals()}};
}

}  // namespace vandrel::art
