// Santa on a snowy night, and the portrait of a gentleman in a gilt oval.
#include <cmath>

#include "images/recipe.h"
#include "painter/letters.h"
#include "painter/noise.h"
#include "prizes/brush.h"
#include "prizes/photo.h"
#include "prizes/scenery.h"

namespace vandrel::art {
namespace {

constexpr Ramp skin{{255, 214, 180}, {236, 174, 140}, {172, 108, 92}};
constexpr Ramp redCloth{{248, 96, 84}, {204, 40, 48}, {126, 20, 48}};
constexpr Ramp fleece{{255, 255, 255}, {236, 236, 242}, {176, 178, 204}};
constexpr Ramp fir{{92, 160, 96}, {44, 108, 76}, {26, 62, 60}};

void paintTree(Canvas& scene) {
    for (int tier = 3; tier >= 0; --tier) {
        const auto step = static_cast<float>(tier);
        const float top = 14 + step * 20, wide = 14 + step * 8;
        fillFur(scene, polygon({{124, top}, {124 + wide, top + 32}, {124 - wide, top + 32}}), fir, 6, 1.5f,
                static_cast<std::uint32_t>(tier));
    }
    constexpr Colour lights[]{{255, 80, 72}, {255, 216, 80}, {96, 176, 255}, {250, 140, 220}};
    Dice dice(14);
    for (int light = 0; light < 26; ++light) {
        const float down = dice.between(0.12f, 1.0f);
        const float x = 124 + dice.between(-1, 1) * down * 34, y = 16 + down * 86;
        const Colour colour = lights[light % 4];
        glow(scene, circle(x, y, 2), colour, 0.5f, 4);
        fill(scene, circle(x, y, 1.2f), mix(colour, palette::white, 0.4f));
    }
    fill(scene, star(124, 14, 5, 7, 3, -1.57f), palette::fireYellow);
}

void paintSantaFace(Canvas& scene, const Pose& head) {
    paintLayer(scene, rimOf(skin), [&](Canvas& layer) {
        fillSmooth(layer, head.oval(0, 0, 0.86f, 0.85f), skin, head.size * 0.7f);
        for (const float side : {-1.0f, 1.0f}) {
            fillSmooth(layer, head.oval(side * 0.5f, 0.2f, 0.24f, 0.2f),
                       {{255, 170, 150}, {240, 128, 116}, {200, 92, 92}}, 6);
            fill(layer, head.oval(side * 0.32f, -0.14f, 0.1f, 0.13f), palette::ink);
            const Point spark = head.at(side * 0.32f - 0.04f, -0.2f);
            fill(layer, circle(spark.x, spark.y, 0.8f), palette::white);
            fill(layer, ring(head.oval(side * 0.34f, -0.1f, 0.27f, 0.25f), 1.1f), palette::gold);
        }
        fill(layer, head.limb({-0.08f, -0.12f}, {0.08f, -0.12f}, 0.03f, 0.03f), palette::gold);
    });
}

void paintSantaBeard(Canvas& scene, const Pose& head) {
    paintLayer(scene, rimOf(fleece), [&](Canvas& layer) {
        const Shape beard =
            uniteAll({head.oval(0, 0.85f, 0.9f, 0.75f), head.oval(-0.7f, 0.45f, 0.35f, 0.5f),
                      head.oval(0.7f, 0.45f, 0.35f, 0.5f), head.limb({0, 1.1f}, {0.1f, 1.75f}, 0.55f, 0.12f)});
        fillFur(layer, beard, fleece, head.size * 0.5f, 1.6f, 6);
        fill(layer, head.oval(0, 0.56f, 0.2f, 0.12f), {150, 40, 56});
        fillFur(layer, bothSides([&](float side) { return head.oval(side * 0.32f, 0.4f, 0.38f, 0.17f, side * 0.3f); }),
                fleece, 5, 0.8f, 7);
    });
    paintLayer(scene, rimOf(skin), [&](Canvas& layer) {
        fillSmooth(layer, head.oval(0, 0.2f, 0.19f, 0.17f), {{255, 186, 160}, {232, 128, 112}, {178, 80, 84}}, 5);
    });
    paintLayer(scene, rimOf(fleece), [&](Canvas& layer) {
        fillFur(layer, bothSides([&](float side) {
                    return head.limb({side * 0.16f, -0.42f}, {side * 0.52f, -0.4f}, 0.1f, 0.07f);
                }),
                fleece, 2, 0.6f, 8);
    });
}

Canvas paintSanta() {
    Canvas scene = newScene({20, 28, 72});
    fillGradient(scene, 0, 112, {16, 22, 64}, {70, 84, 146});
    paintStars(scene, 80, 50, 3);
    paintTree(scene);
    fillSmooth(scene, ellipse(75, 116, 110, 16), {palette::white, {216, 228, 248}, {140, 164, 216}}, 12);
    const Ramp jute{{190, 146, 96}, {146, 102, 70}, {88, 58, 52}};
    paintLayer(scene, rimOf(jute), [&](Canvas& layer) { fillFur(layer, ellipse(18, 88, 24, 28), jute, 16, 0.5f, 5); });
    fillSmooth(scene, rectangle(8, 50, 14, 14), rampOf(palette::iceBlue), 3);
    scene.fillRect(14, 50, 2, 14, palette::gold);
    fillSmooth(scene, rectangle(24, 54, 11, 11), rampOf(palette::leafLight), 3);
    scene.fillRect(29, 54, 2, 11, palette::fireRed);
    paintLayer(scene, rimOf(redCloth), [](Canvas& layer) {
        fillFur(layer, ellipse(70, 122, 42, 46), redCloth, 24, 0.5f, 4);
        fillFur(layer, capsule(100, 96, 112, 62, 9), redCloth, 8, 0.4f, 4);
    });
    paintLayer(scene, rimOf(fleece), [](Canvas& layer) {
        fillFur(layer, rotated(rectangle(101, 56, 22, 9, 4), 112, 60, 0.3f), fleece, 4, 1, 4);
    });
    paintLayer(scene, palette::ink, [](Canvas& layer) {
        fillSmooth(layer, unite(circle(115, 46, 8), capsule(108, 50, 104, 43, 3)), fir, 6);
    });
    const Pose head{68, 56, 25, -0.05f};
    paintSantaFace(scene, head);
    paintSantaBeard(scene, head);
    paintLayer(scene, rimOf(redCloth), [&](Canvas& layer) {
        const Shape cap =
            unite(head.corners({{-0.9f, -0.5f}, {-0.5f, -1.35f}, {0.3f, -1.6f}, {1.1f, -1.1f}, {0.9f, -0.45f}}),
                  head.limb({0.7f, -1.25f}, {1.4f, -0.75f}, 0.3f, 0.16f));
        fillFur(layer, grown(cap, 1), redCloth, 11, 0.3f, 9);
    });
    paintLayer(scene, rimOf(fleece), [&](Canvas& layer) {
        fillFur(layer, head.limb({-0.85f, -0.58f}, {0.85f, -0.58f}, 0.2f, 0.2f), fleece, 4, 1.2f, 10);
        fillFur(layer, head.oval(1.45f, -0.6f, 0.28f, 0.28f), fleece, 5, 1.2f, 11);
    });
    Dice dice(77);
    for (int flake = 0; flake < 70; ++flake) {
        const float x = dice.between(0, 150), y = dice.between(0, 112);
        fill(scene, circle(x, y, dice.chance(0.25f) ? 1.3f : 0.7f), palette::white);
    }
    return scene;
}

void paintGentleman(Canvas& scene) {
    const Ramp coat{{84, 100, 88}, {50, 66, 60}, {28, 36, 42}};
    const Ramp hair{{140, 96, 68}, {92, 58, 48}, {50, 32, 38}};
    fill(scene, ellipse(75, 52, 31, 40), {66, 58, 52});
    glow(scene, ellipse(66, 44, 14, 18), {176, 148, 104}, 0.7f, 30);
    const Shape oval = ellipse(75, 52, 31, 40);
    Canvas sitter(photoWidth, photoHeight);
    paintLayer(sitter, rimOf(coat),
               [&](Canvas& layer) { fillFur(layer, ellipse(75, 104, 31, 30), coat, 14, 0.2f, 4); });
    fill(sitter, polygon({{66, 72}, {84, 72}, {75, 96}}), palette::bone);
    const Pose head{75, 50, 16};
    paintLayer(sitter, rimOf(skin), [&](Canvas& layer) {
        fillSmooth(layer, head.limb({0, 0.8f}, {0, 1.4f}, 0.36f, 0.42f), skin, 5);
        fillSmooth(layer, bothSides([&](float side) { return head.oval(side * 0.86f, 0.05f, 0.18f, 0.26f); }), skin, 3);
        fillSmooth(layer, blendUnite(head.oval(0, -0.1f, 0.8f, 0.86f), head.oval(0, 0.5f, 0.55f, 0.5f), 5), skin, 12);
    });
    paintLayer(sitter, rimOf(hair), [&](Canvas& layer) {
        // Curls that have given up the parting.
        for (const Point& curl :
             {Point{-0.8f, -0.4f}, Point{-0.66f, -0.78f}, Point{-0.3f, -1.0f}, Point{0.12f, -1.08f},
              Point{0.5f, -0.95f}, Point{0.78f, -0.62f}, Point{0.86f, -0.28f}, Point{-0.86f, -0.1f}}) {
            fillFur(layer, head.oval(curl.x, curl.y, 0.28f, 0.26f), hair, 4, 0.6f, 6);
        }
    });
    fillFur(sitter, bothSides([&](float side) {
                return head.limb({side * 0.06f, 0.42f}, {side * 0.5f, 0.36f}, 0.11f, 0.04f);
            }),
            hair, 2, 0.2f, 7);
    for (const float side : {-1.0f, 1.0f}) {
        fill(sitter, head.oval(side * 0.34f, -0.08f, 0.1f, 0.11f), palette::ink);
        fill(sitter, ring(head.oval(side * 0.34f, -0.06f, 0.27f, 0.26f), 1.0f), palette::ink);
        fill(sitter, head.limb({side * 0.16f, -0.46f}, {side * 0.52f, -0.5f - side * 0.06f}, 0.06f, 0.04f), hair.dark);
    }
    fill(sitter, head.limb({-0.07f, -0.1f}, {0.07f, -0.1f}, 0.03f, 0.03f), palette::ink);
    fillSmooth(sitter, head.limb({0, -0.02f}, {-0.04f, 0.24f}, 0.07f, 0.13f), skin, 2);
    fill(sitter, head.tube({{-0.16f, 0.62f}, {0.05f, 0.68f}, {0.24f, 0.58f}}, 0.045f), skin.dark);
    paintLayer(sitter, palette::ink, [&](Canvas& layer) {
        fillSmooth(layer, head.corners({{0, 1.5f}, {-0.6f, 1.2f}, {-0.6f, 1.85f}}), redCloth, 4);
        fillSmooth(layer, head.corners({{0, 1.5f}, {0.6f, 1.2f}, {0.6f, 1.85f}}), redCloth, 4);
        fillSmooth(layer, head.oval(0, 1.52f, 0.14f, 0.17f), redCloth, 2);
    });
    forEachCovered(scene, oval, 1, [&](int x, int y, float coverage) {
        if (coverage > 0.5f && sitter.visible(x, y)) {
            scene.set(x, y, sitter.at(x, y));
        }
    });
}

Canvas paintPortrait() {
    Canvas scene = newScene(palette::bone);
    // Damask: every motif a small sprig.
    paintWall(scene, {92, 34, 52}, {110, 46, 62}, Wallpaper::Plain);
    for (int row = 0; row < 7; ++row) {
        for (int column = 0; column < 9; ++column) {
            const float x = static_cast<float>(column * 18 + (row % 2) * 9), y = static_cast<float>(row * 17 + 6);
            fill(scene, star(x, y, 4, 6, 2.2f), {112, 46, 62});
            fill(scene, circle(x, y, 1.4f), {142, 70, 76});
        }
    }
    shade(scene, ellipse(79, 57, 40, 49), 0.5f, 8);
    const Ramp gilt{{255, 236, 150}, {226, 172, 72}, {140, 88, 36}};
    paintLayer(scene, palette::ink, [&](Canvas& layer) {
        fillSmooth(layer, ellipse(75, 52, 39, 48), gilt, 4);
        for (int bead = 0; bead < 40; ++bead) {
            const float turn = static_cast<float>(bead) * 0.15708f;
            fillSmooth(layer, circle(75 + std::cos(turn) * 35, 52 + std::sin(turn) * 44, 2), gilt, 2);
        }
    });
    paintGentleman(scene);
    fill(scene, ring(ellipse(75, 52, 31.5f, 40.5f), 1.6f), gilt.dark);
    paintLayer(scene, palette::ink, [&](Canvas& layer) { fillSmooth(layer, rectangle(46, 97, 58, 11, 2), gilt, 2); });
    writeText(scene, 55, 99, "TIMOTHY", palette::brickDark);
    return scene;
}

}  // namespace

Pictures paintFamily() {
    return {{"Santa", paintSanta()}, {"Timothy", paintPortrait()}};
}

}  // namespace vandrel::art
