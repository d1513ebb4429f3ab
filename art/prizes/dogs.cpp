// Django, in the park and at the sea.
#include "images/recipe.h"
#include "painter/noise.h"
#include "prizes/brush.h"
#include "prizes/photo.h"
#include "prizes/scenery.h"

namespace vandrel::art {
namespace {

constexpr Ramp white{{255, 250, 238}, {232, 222, 206}, {166, 150, 150}};
constexpr Ramp brown{{190, 122, 72}, {148, 86, 54}, {90, 50, 44}};
constexpr Ramp tongue{{255, 160, 160}, {232, 104, 120}, {168, 60, 88}};
constexpr Ramp black{{104, 96, 112}, {44, 36, 50}, {24, 18, 34}};

void paintEar(Canvas& scene, const Pose& head, float side) {
    paintLayer(scene, rimOf(brown), [&](Canvas& layer) {
        fillFur(layer, head.limb({side * 0.66f, -0.62f}, {side * 1.05f, -0.1f}, 0.24f, 0.3f), brown, head.size * 0.3f,
                0.6f, 4);
        fillFur(layer, head.limb({side * 1.05f, -0.1f}, {side * 1.0f, 0.5f}, 0.3f, 0.16f), brown, head.size * 0.3f,
                0.8f, 5);
    });
}

void paintEye(Canvas& layer, const Pose& head, float side, const Ramp& round) {
    fillFur(layer, head.oval(side * 0.36f, -0.4f, 0.16f, 0.08f, side * 0.3f), side < 0 ? brown : white, 3, 0.2f, 6);
    fill(layer, head.oval(side * 0.36f, -0.14f, 0.19f, 0.19f), mix(round.dark, palette::ink, 0.6f));
    fill(layer, head.oval(side * 0.36f, -0.13f, 0.14f, 0.15f), {84, 48, 32});
    fill(layer, head.oval(side * 0.36f, -0.13f, 0.09f, 0.1f), palette::ink);
    const Point spark = head.at(side * 0.36f - 0.06f, -0.2f);
    fill(layer, circle(spark.x, spark.y, head.size > 25 ? 1.6f : 0.8f), palette::white);
}

void paintHead(Canvas& scene, const Pose& head) {
    paintLayer(scene, rimOf(white), [&](Canvas& layer) {
        const Material patched = [head](float x, float y) {
            // The brown of the temples leaves a white blaze down the middle, wider on one side.
            const float across = (x - head.x) / head.size + (y - head.y) / head.size * 0.1f;
            return across < -0.12f || across > 0.3f ? brown : white;
        };
        const Shape jaw = head.oval(0, 0.42f, 0.6f, 0.48f);
        fillFur(layer, blendUnite(head.oval(0, -0.2f, 0.86f, 0.76f), jaw, head.size * 0.3f), patched, head.size * 0.7f,
                0.8f, 3);
        // The open mouth under the muzzle.
        fill(layer, head.oval(0, 0.72f, 0.34f, 0.24f), {96, 32, 48});
        fillSmooth(layer, head.limb({0.03f, 0.75f}, {0.09f, 1.12f}, 0.2f, 0.22f), tongue, head.size * 0.2f);
        stroke(layer, head.at(0.03f, 0.8f), head.at(0.09f, 1.15f), tongue.dark);
        fillFur(layer, bothSides([&](float side) { return head.oval(side * 0.24f, 0.44f, 0.34f, 0.29f, side * 0.2f); }),
                white, head.size * 0.3f, 0.4f, 7);
        fill(layer, head.limb({0, 0.36f}, {0, 0.6f}, 0.025f, 0.025f), white.dark);
        fillSmooth(layer, blendUnite(head.oval(0, 0.19f, 0.24f, 0.14f), head.oval(0, 0.28f, 0.12f, 0.12f), 2), black,
                   head.size * 0.16f);
        const Point shine = head.at(-0.08f, 0.13f);
        fill(layer, ellipse(shine.x, shine.y, head.size * 0.06f, head.size * 0.03f), palette::steelLight);
        for (const float side : {-1.0f, 1.0f}) {
            paintEye(layer, head, side, brown);
            for (const float dot : {0.3f, 0.42f}) {
                const Point root = head.at(side * dot, 0.44f + dot * 0.1f);
                layer.set(static_cast<int>(root.x), static_cast<int>(root.y), white.dark);
            }
        }
    });
    paintEar(scene, head, -1);
    paintEar(scene, head, 1);
}

void paintCollar(Canvas& scene, const Pose& neck) {
    paintLayer(scene, palette::ink, [&](Canvas& layer) {
        fillSmooth(layer, neck.tube({{-0.72f, -0.12f}, {0, 0.16f}, {0.72f, -0.12f}}, 0.13f), rampOf({204, 48, 52}), 3);
        fillSmooth(layer, neck.oval(0, 0.42f, 0.18f, 0.18f), palette::metalGold, 3);
    });
}

Canvas paintParkPortrait() {
    Canvas scene = newScene(palette::leafDark);
    fillGradient(scene, 0, 112, {150, 196, 120}, {56, 108, 70});
    paintBokeh(scene, {{200, 224, 130}, {110, 170, 84}, {70, 130, 76}, {248, 240, 180}}, 90, 0, 112, 7);
    glow(scene, circle(24, 14, 30), palette::fireWhite, 0.4f, 36);
    paintLayer(scene, rimOf(white), [](Canvas& layer) {
        fillFur(layer, taper(75, 88, 75, 124, 24, 40), white, 18, 1.2f, 9);
        fillFur(layer, bothSides([](float side) { return ellipse(75 + side * 36, 122, 16, 26); }), brown, 14, 1.2f, 10);
    });
    paintCollar(scene, {75, 89, 34});
    paintHead(scene, {75, 50, 36, 0.1f});
    return scene;
}

void paintSea(Canvas& scene) {
    fillGradient(scene, 0, 42, {96, 168, 232}, {198, 230, 244});
    paintCloud(scene, 30, 18, 20, {226, 238, 248});
    paintCloud(scene, 118, 12, 14, {226, 238, 248});
    fillGradient(scene, 40, 26, {36, 104, 168}, {88, 188, 196});
    Dice dice(5);
    for (int wave = 0; wave < 60; ++wave) {
        const int x = dice.below(150), y = 42 + dice.below(20);
        scene.fillRect(x, y, 2 + (y - 40) / 5, 1, y % 3 == 0 ? palette::iceWhite : Colour{70, 150, 196});
    }
    for (int y = 64; y < 112; ++y) {
        for (int x = 0; x < 150; ++x) {
            const float grain = pointNoise(x, y, 4);
            scene.set(x, y,
                      grain > 0.86f ? Colour{252, 232, 180}
                                    : (grain < 0.12f ? Colour{204, 170, 116} : Colour{236, 208, 150}));
        }
    }
    for (int x = 0; x < 150; ++x) {
        const auto foam = static_cast<int>(smoothNoise(static_cast<float>(x) / 12, 1, 6) * 6);
        scene.fillRect(x, 61 + foam, 1, 3, palette::white);
        scene.fillRect(x, 64 + foam, 1, 2, {208, 176, 124});
    }
    // A sail far out.
    fill(scene, polygon({{120, 41}, {120, 26}, {130, 41}}), palette::bone);
    fill(scene, polygon({{118, 41}, {118, 29}, {112, 41}}), palette::fireRed);
    scene.fillRect(111, 41, 20, 2, palette::brickDark);
}

Canvas paintBeach() {
    Canvas scene = newScene(palette::bone);
    paintSea(scene);
    const Pose dog{68, 104, 17};
    shade(scene, dog.oval(0.3f, -0.02f, 2.3f, 0.3f), 0.45f, 6);
    paintLayer(scene, rimOf(white), [&](Canvas& layer) {
        fillFur(layer, dog.tube({{1.0f, -0.5f}, {1.7f, -1.0f}, {1.9f, -1.9f}}, 0.2f), white, 4, 1.1f, 3);
    });
    paintLayer(scene, rimOf(white), [&](Canvas& layer) {
        const Material spotted = [dog](float x, float y) {
            return smoothNoise((x - dog.x) / 15 + 4.6f, (y - dog.y) / 15 + 9.2f, 3) > 0.6f ? brown : white;
        };
        fillFur(layer, blendUnite(dog.oval(0.1f, -1.0f, 1.1f, 1.0f), dog.oval(0, -2.0f, 0.78f, 0.8f), 9), spotted, 15,
                0.8f, 4);
        fillFur(layer, bothSides([&](float side) { return dog.oval(side * 0.9f, -0.55f, 0.46f, 0.55f); }), spotted, 8,
                0.6f, 5);
        fillFur(layer, bothSides([&](float side) { return dog.oval(side * 1.0f, -0.14f, 0.36f, 0.18f); }), white, 4,
                0.3f, 6);
    });
    paintLayer(scene, rimOf(white), [&](Canvas& layer) {
        for (const float side : {-1.0f, 1.0f}) {
            fillFur(layer, dog.limb({side * 0.4f, -1.6f}, {side * 0.42f, -0.2f}, 0.32f, 0.23f), white, 6, 0.6f, 7);
            fillFur(layer, dog.oval(side * 0.44f, -0.12f, 0.33f, 0.18f), white, 4, 0.3f, 8);
        }
        fillFur(layer, dog.oval(0, -1.75f, 0.55f, 0.7f), white, 8, 1.3f, 9);
    });
    paintCollar(scene, dog.part(0, -2.3f));
    paintHead(scene, dog.part(0, -3.15f, 1.02f, -0.1f));
    paintLayer(scene, palette::ink, [](Canvas& layer) {
        fillSmooth(layer, circle(117, 97, 8), {{240, 255, 150}, {196, 224, 64}, {120, 150, 40}}, 8);
        fill(layer, intersect(circle(117, 97, 8), ring(circle(107, 91, 10), 1.4f)), palette::white);
    });
    return scene;
}

}  // namespace

Pictures paintFamily() {
    return {{"Django", paintParkPortrait()}, {"Django_01", paintBeach()}};
}

}  // namespace vandrel::art
