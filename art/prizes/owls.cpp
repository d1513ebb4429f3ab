// Owls: one in the barn, one before the moon, one in the snow.
#include <cmath>

#include "images/recipe.h"
#include "painter/noise.h"
#include "prizes/brush.h"
#include "prizes/photo.h"
#include "prizes/scenery.h"

namespace vandrel::art {
namespace {

struct Owl {
    Ramp back;  // head and wings
    Ramp breast;
    Ramp face;
    Colour iris;
    Colour bars;         // the marks on the breast
    bool heart = false;  // one heart-shaped face instead of two discs
    bool tufts = false;
    bool wink = false;
    float eye = 0.3f;
    float headTilt = 0;
};

constexpr Ramp horn{{255, 224, 120}, {224, 164, 64}, {140, 90, 40}};
constexpr Ramp bark{{150, 112, 84}, {104, 74, 62}, {62, 42, 46}};

void paintBody(Canvas& scene, const Owl& owl, const Pose& body) {
    paintLayer(scene, rimOf(owl.back), [&](Canvas& layer) {
        fillScallops(layer, body.corners({{-0.4f, -0.4f}, {0.4f, -0.4f}, {0.25f, 0.6f}, {-0.25f, 0.6f}}), owl.back, 5,
                     5);
        fillScallops(layer, body.oval(0, -1.0f, 1.0f, 1.2f), owl.breast, body.size * 0.22f, body.size * 0.18f);
        // Short bars in rows.
        for (int row = 0; row < 6; ++row) {
            for (int column = -3; column <= 3; ++column) {
                const float dx = (static_cast<float>(column) + (row % 2 == 0 ? 0.0f : 0.5f)) * 0.24f;
                const Point mark = body.at(dx, -1.45f + static_cast<float>(row) * 0.26f);
                if (std::fabs(dx) < 0.7f) {
                    fill(layer, rectangle(mark.x - 1, mark.y, 2, body.size > 24 ? 3.0f : 2.0f), owl.bars);
                }
            }
        }
    });
    paintLayer(scene, rimOf(owl.back), [&](Canvas& layer) {
        for (const float side : {-1.0f, 1.0f}) {
            fillScallops(layer, body.oval(side * 0.88f, -0.85f, 0.36f, 1.05f, side * 0.14f), owl.back, body.size * 0.2f,
                         body.size * 0.2f);
        }
    });
    paintLayer(scene, palette::ink, [&](Canvas& layer) {
        for (const float side : {-1.0f, 1.0f}) {
            for (const float toe : {-0.17f, 0.0f, 0.17f}) {
                fillSmooth(layer,
                           body.limb({side * 0.36f + toe, 0.12f}, {side * 0.36f + toe * 1.2f, 0.34f}, 0.1f, 0.06f),
                           horn, 2);
            }
        }
    });
}

void paintEye(Canvas& layer, const Owl& owl, const Pose& head, float side) {
    if (owl.wink && side > 0) {
        fill(layer, head.tube({{0.2f, -0.02f}, {0.44f, 0.12f}, {0.68f, -0.02f}}, 0.05f), palette::ink);
        return;
    }
    const Shape ball = head.oval(side * 0.44f, 0, owl.eye, owl.eye);
    fill(layer, grown(ball, 1.1f), mix(owl.face.dark, palette::ink, 0.7f));
    fillSmooth(layer, ball, {mix(owl.iris, palette::white, 0.3f), owl.iris, mix(owl.iris, palette::ink, 0.4f)},
               head.size * 0.4f);
    fill(layer, head.oval(side * 0.44f, 0, owl.eye * 0.56f, owl.eye * 0.56f), palette::ink);
    const Point spark = head.at(side * 0.44f - owl.eye * 0.35f, -owl.eye * 0.4f);
    fill(layer, circle(spark.x, spark.y, head.size * 0.07f), palette::white);
}

void paintHead(Canvas& scene, const Owl& owl, const Pose& head) {
    paintLayer(scene, rimOf(owl.back), [&](Canvas& layer) {
        if (owl.tufts) {
            for (const float side : {-1.0f, 1.0f}) {
                fillFur(layer, head.corners({{side * 0.3f, -0.6f}, {side * 1.0f, -1.3f}, {side * 0.95f, -0.2f}}),
                        owl.back, 5, 0.8f, 3);
            }
        }
        fillScallops(layer, head.oval(0, 0, 1.05f, 0.88f), owl.back, head.size * 0.18f, head.size * 0.16f);
        const auto disc = [&](float by) {
            return bothSides([&, by](float side) {
                return owl.heart ? head.oval(side * 0.36f, 0.05f, 0.52f + by, 0.66f + by, side * 0.4f)
                                 : head.oval(side * 0.44f, 0.02f, 0.5f + by, 0.54f + by);
            });
        };
        fillFur(layer, disc(0.06f), rampOf(mix(owl.back.dark, palette::ink, 0.2f)), 3, 0.6f, 4);
        fillFur(layer, disc(0), owl.face, head.size * 0.35f, 0.5f, 5);
        for (const float side : {-1.0f, 1.0f}) {
            paintEye(layer, owl, head, side);
            if (owl.tufts) {
                fillFur(layer, head.limb({side * 0.08f, -0.16f}, {side * 0.8f, -0.62f}, 0.1f, 0.13f), owl.back, 3, 0.4f,
                        6);
            }
        }
        fillSmooth(layer, grown(head.corners({{-0.12f, 0.16f}, {0.12f, 0.16f}, {0, 0.52f}}), head.size * 0.05f), horn,
                   head.size * 0.15f);
    });
}

// In units of half the body's width, the feet's perch at (0, 0.2), 3 high.
void paintOwl(Canvas& scene, const Owl& owl, const Pose& body) {
    paintBody(scene, owl, body);
    shade(scene, body.oval(0, -1.45f, 0.7f, 0.2f), 0.3f, 5);
    paintHead(scene, owl, body.part(0, -2.0f, 1.0f, owl.headTilt));
}

Canvas paintBarnOwl() {
    const Ramp plank{{156, 104, 70}, {112, 70, 54}, {64, 40, 42}};
    Canvas scene = newScene(plank.dark);
    for (int x = 0; x < 150; ++x) {
        const float tone = pointNoise(x / 15, 1, 3);
        for (int y = 0; y < 112; ++y) {
            const float grain = smoothNoise(static_cast<float>(x) * 0.8f, static_cast<float>(y) * 0.05f, 7);
            const Colour wood =
                mix(mix(plank.dark, palette::ink, 0.3f), plank.dark, tone + (grain > 0.6f ? 0.3f : 0.0f));
            scene.set(x, y, x % 15 == 0 ? palette::ink : wood);
        }
    }
    Canvas view(40, 40);
    fillGradient(view, 0, 40, {30, 44, 96}, {84, 92, 150});
    paintStars(view, 40, 14, 4);
    fillSmooth(view, circle(30, 9, 6), {palette::fireWhite, {250, 236, 190}, palette::boneShade}, 6);
    paintWindow(scene, 12, 14, view, plank);
    glow(scene, polygon({{12, 14}, {52, 14}, {120, 112}, {60, 112}}), palette::iceWhite, 0.1f, 10);
    fillFur(scene, ellipse(130, 104, 44, 22), {{244, 212, 120}, {204, 160, 76}, {140, 96, 56}}, 12, 2, 6);
    fillFur(scene, ellipse(20, 112, 50, 16), {{244, 212, 120}, {204, 160, 76}, {140, 96, 56}}, 12, 2, 9);
    paintBranch(scene, {-6, 92}, {156, 88}, 8, 8, plank);
    const Owl owl{{{236, 188, 116}, {196, 140, 80}, {132, 88, 60}},
                  {{255, 250, 236}, {240, 224, 196}, {180, 152, 130}},
                  {{255, 252, 244}, {246, 236, 220}, {196, 172, 156}},
                  {64, 40, 44},
                  {176, 132, 92},
                  true,
                  false,
                  false,
                  0.2f,
                  0.22f};
    paintOwl(scene, owl, {84, 82, 25});
    return scene;
}

Canvas paintMoonOwl() {
    Canvas scene = newScene(palette::ink);
    fillGradient(scene, 0, 112, {18, 20, 58}, {74, 62, 116});
    paintStars(scene, 100, 70, 6);
    glow(scene, circle(58, 44, 44), {250, 240, 200}, 0.35f, 26);
    fillSmooth(scene, circle(58, 44, 36), {{255, 252, 226}, {246, 232, 186}, {214, 190, 150}}, 30);
    for (const Point& crater : {Point{42, 28}, Point{36, 52}, Point{60, 22}, Point{52, 66}}) {
        fill(scene, circle(crater.x, crater.y, 4.5f), {226, 206, 160});
    }
    for (int hill = 0; hill < 150; ++hill) {
        const auto top =
            static_cast<int>(102 - smoothNoise(static_cast<float>(hill) / 16, 3, 2) * 14 - (hill % 5 < 2 ? 3 : 0));
        scene.fillRect(hill, top, 1, 112 - top, {24, 22, 48});
    }
    paintBranch(scene, {-6, 98}, {120, 88}, 7, 3, bark);
    paintBranch(scene, {30, 94}, {14, 62}, 4, 1.5f, bark);
    paintBranch(scene, {112, 88}, {142, 74}, 3, 1, bark);
    for (const Point& leaf : {Point{16, 64}, Point{136, 78}, Point{124, 84}, Point{20, 74}}) {
        paintLeaf(scene, leaf.x, leaf.y, 9, leaf.x * 0.3f, {palette::leafLight, palette::leafDark, {30, 76, 60}});
    }
    const Owl owl{{{186, 140, 100}, {132, 92, 70}, {76, 50, 50}},
                  {{236, 200, 150}, {200, 156, 108}, {134, 94, 74}},
                  {{220, 184, 140}, {180, 140, 104}, {116, 80, 70}},
                  {255, 144, 32},
                  {84, 54, 50},
                  false,
                  true,
                  false,
                  0.32f,
                  -0.05f};
    paintOwl(scene, owl, {88, 85, 23});
    return scene;
}

void paintFir(Canvas& scene, float x, float ground, float height) {
    const Pose fir{x, ground, height};
    for (int tier = 0; tier < 4; ++tier) {
        const float top = -1.0f + static_cast<float>(tier) * 0.2f, wide = 0.14f + static_cast<float>(tier) * 0.07f;
        fillFur(scene, fir.corners({{0, top}, {wide, top + 0.36f}, {-wide, top + 0.36f}}),
                {{92, 150, 120}, {52, 104, 92}, {30, 64, 72}}, 5, 1, static_cast<std::uint32_t>(tier));
        fillFur(scene, fir.corners({{0, top}, {wide * 0.5f, top + 0.16f}, {-wide * 0.6f, top + 0.16f}}),
                {palette::white, palette::iceWhite, palette::steelLight}, 4, 0.8f, 9);
    }
}

Canvas paintSnowOwl() {
    Canvas scene = newScene(palette::iceWhite);
    fillGradient(scene, 0, 90, {128, 176, 226}, {232, 240, 250});
    paintFir(scene, 20, 92, 76);
    paintFir(scene, 132, 94, 84);
    paintFir(scene, 108, 88, 50);
    const Ramp snow{palette::white, {226, 238, 250}, {150, 180, 220}};
    fillSmooth(scene, ellipse(30, 112, 70, 26), snow, 20);
    fillSmooth(scene, ellipse(120, 116, 70, 28), snow, 20);
    paintLayer(scene, rimOf(bark), [](Canvas& layer) {
        fillFur(layer, polygon({{50, 90}, {96, 90}, {102, 114}, {44, 114}}), bark, 14, 0.6f, 4);
    });
    fillSmooth(scene, ellipse(73, 91, 25, 5), snow, 4);
    const Owl owl{{{255, 255, 255}, {232, 236, 244}, {164, 174, 204}},
                  {{255, 255, 255}, {240, 242, 248}, {176, 184, 210}},
                  {{255, 255, 255}, {244, 246, 250}, {190, 198, 218}},
                  {255, 208, 48},
                  {130, 134, 158},
                  false,
                  false,
                  true,
                  0.29f,
                  0.12f};
    paintOwl(scene, owl, {73, 84, 26});
    Dice dice(9);
    for (int flake = 0; flake < 60; ++flake) {
        const float x = dice.between(0, 150), y = dice.between(0, 112);
        fill(scene, circle(x, y, dice.chance(0.3f) ? 1.4f : 0.8f), palette::white);
    }
    return scene;
}

}  // namespace

Pictures paintFamily() {
    return {{"Owl1", paintBarnOwl()}, {"Owl2", paintMoonOwl()}, {"Owl3", paintSnowOwl()}};
}

}  // namespace vandrel::art
