// Out in the wood: the squirrel with its acorn, and the Janus bird, which looks both ways.
#include "images/recipe.h"
#include "prizes/brush.h"
#include "prizes/photo.h"
#include "prizes/scenery.h"

namespace vandrel::art {
namespace {

constexpr Ramp bark{{164, 122, 92}, {116, 82, 66}, {70, 46, 48}};
constexpr Ramp redFur{{244, 148, 84}, {204, 94, 48}, {134, 54, 40}};
constexpr Ramp palefur{{255, 248, 232}, {240, 222, 196}, {182, 146, 128}};
constexpr Ramp autumn{{255, 208, 84}, {240, 144, 44}, {176, 72, 40}};

void paintTail(Canvas& scene, const Pose& body) {
    paintLayer(scene, rimOf(redFur), [&](Canvas& layer) {
        const Shape plume = uniteAll({body.tube({{0.7f, -0.2f}, {1.7f, -0.6f}, {2.05f, -1.8f}, {1.5f, -2.9f}}, 0.5f),
                                      body.oval(1.75f, -1.6f, 0.75f, 1.1f),
                                      body.tube({{1.5f, -2.9f}, {1.9f, -3.5f}, {2.5f, -3.4f}}, 0.44f)});
        fillFur(layer, plume, redFur, body.size * 0.55f, 2.2f, 5);
        fillFur(layer, body.tube({{1.2f, -0.6f}, {1.75f, -1.4f}, {1.6f, -2.5f}}, 0.16f), palefur, 4, 1.6f, 6);
    });
}

void paintSquirrelHead(Canvas& scene, const Pose& head) {
    paintLayer(scene, rimOf(redFur), [&](Canvas& layer) {
        for (const float x : {-0.05f, 0.5f}) {
            fillFur(layer, head.corners({{x - 0.2f, -0.5f}, {x + 0.12f, -1.5f}, {x + 0.34f, -0.4f}}), redFur, 4, 0.9f,
                    3);
        }
        const Shape skull =
            blendUnite(head.oval(0.1f, 0, 0.88f, 0.74f), head.oval(-0.62f, 0.18f, 0.42f, 0.34f), head.size * 0.4f);
        fillFur(layer, skull, redFur, head.size * 0.6f, 0.6f, 4);
        fillFur(layer, head.oval(-0.5f, 0.42f, 0.46f, 0.24f), palefur, 4, 0.6f, 5);
        fill(layer, head.oval(-1.0f, 0.08f, 0.12f, 0.1f), palette::ink);
        stroke(layer, head.at(-0.92f, 0.3f), head.at(-0.6f, 0.36f), redFur.dark);
        fill(layer, head.oval(-0.12f, -0.14f, 0.28f, 0.28f), palefur.middle);
        fill(layer, head.oval(-0.12f, -0.14f, 0.21f, 0.22f), palette::ink);
        const Point spark = head.at(-0.2f, -0.24f);
        fill(layer, circle(spark.x, spark.y, 1.1f), palette::white);
    });
    stroke(scene, head.at(-0.7f, 0.28f), head.at(-1.3f, 0.5f), palette::bone);
    stroke(scene, head.at(-0.7f, 0.24f), head.at(-1.4f, 0.16f), palette::bone);
}

void paintAcorn(Canvas& scene, const Pose& nut) {
    paintLayer(scene, palette::ink, [&](Canvas& layer) {
        fillSmooth(layer, unite(nut.oval(0, 0.2f, 0.75f, 0.85f), nut.limb({0, 0.8f}, {0, 1.2f}, 0.2f, 0.05f)),
                   {{248, 200, 116}, {204, 142, 68}, {134, 82, 48}}, nut.size * 0.7f);
        fillScallops(layer,
                     intersect(nut.oval(0, -0.1f, 0.95f, 0.75f), nut.corners({{-1, -1}, {1, -1}, {1, 0}, {-1, 0}})),
                     bark, 3, 2);
        fillSmooth(layer, nut.limb({0, -0.7f}, {0.15f, -1.1f}, 0.1f, 0.1f), bark, 1);
    });
}

Canvas paintSquirrel() {
    Canvas scene = newScene(palette::leafDark);
    fillGradient(scene, 0, 112, {250, 222, 150}, {156, 120, 70});
    paintBokeh(scene, {{255, 236, 160}, {236, 170, 80}, {196, 112, 60}, {150, 150, 80}}, 90, 0, 112, 17);
    paintBranch(scene, {-6, 104}, {156, 94}, 9, 6, bark);
    paintBranch(scene, {18, 100}, {4, 50}, 5, 2, bark);
    for (const Point& leaf :
         {Point{4, 52}, Point{10, 66}, Point{128, 92}, Point{140, 90}, Point{14, 78}, Point{112, 96}}) {
        paintLeaf(scene, leaf.x, leaf.y, 14, leaf.x * 0.21f - 0.6f, autumn);
    }
    const Pose body{70, 96, 21};
    paintTail(scene, body);
    paintLayer(scene, rimOf(redFur), [&](Canvas& layer) {
        fillFur(layer, blendUnite(body.oval(0.15f, -0.9f, 0.86f, 0.95f), body.oval(-0.3f, -1.75f, 0.52f, 0.62f), 8),
                redFur, 13, 0.8f, 7);
        fillFur(layer, body.oval(-0.48f, -1.1f, 0.4f, 0.8f, 0.15f), palefur, 6, 0.8f, 8);
    });
    paintLayer(scene, rimOf(redFur), [&](Canvas& layer) {
        fillFur(layer, body.oval(0.35f, -0.55f, 0.56f, 0.52f), redFur, 9, 0.6f, 9);
        fillFur(layer, body.limb({0.2f, -0.1f}, {-0.6f, -0.06f}, 0.17f, 0.13f), redFur, 3, 0.3f, 10);
    });
    paintSquirrelHead(scene, body.part(-0.55f, -2.45f, 0.82f));
    paintAcorn(scene, {49, 62, 7.5f, 0.5f});
    paintLayer(scene, rimOf(redFur), [&](Canvas& layer) {
        fillFur(layer, body.limb({-0.25f, -1.6f}, {-0.85f, -1.42f}, 0.18f, 0.13f), redFur, 4, 0.4f, 11);
    });
    return scene;
}

constexpr Ramp plume{{128, 220, 214}, {44, 152, 168}, {28, 84, 120}};
constexpr Ramp breast{{255, 190, 110}, {240, 124, 64}, {168, 68, 60}};
constexpr Ramp beak{{255, 240, 140}, {250, 196, 56}, {190, 116, 32}};

// `side` -1 looks left; the left head sings and the right one has heard enough.
void paintBirdHead(Canvas& scene, const Pose& head, bool sings) {
    paintLayer(scene, rimOf(plume), [&](Canvas& layer) {
        for (const float tip : {-0.2f, 0.2f, 0.55f}) {
            fillFur(layer, head.limb({-0.1f, -0.6f}, {-tip - 0.1f, -1.35f + tip * 0.3f}, 0.16f, 0.1f), breast, 2, 0.3f,
                    3);
        }
        if (sings) {
            fillSmooth(layer, head.corners({{0.7f, -0.2f}, {1.55f, -0.55f}, {0.75f, 0.1f}}), beak, 3);
            fillSmooth(layer, head.corners({{0.65f, 0.12f}, {1.35f, 0.45f}, {0.6f, 0.36f}}), beak, 3);
            fill(layer, head.corners({{0.6f, 0.05f}, {1.15f, 0.02f}, {0.65f, 0.25f}}), {150, 40, 60});
        } else {
            fillSmooth(layer, head.corners({{0.7f, -0.2f}, {1.5f, 0.14f}, {0.65f, 0.3f}}), beak, 3);
            stroke(layer, head.at(0.75f, 0.12f), head.at(1.4f, 0.14f), beak.dark);
        }
        fillFur(layer, head.oval(0, 0, 0.88f, 0.8f), plume, head.size * 0.6f, 0.5f, 4);
        fillFur(layer, head.oval(0.32f, 0.36f, 0.42f, 0.3f), rampOf(palette::bone), 4, 0.4f, 5);
        if (sings) {
            fill(layer, head.oval(0.3f, -0.16f, 0.32f, 0.32f), palette::white);
            fill(layer, head.oval(0.36f, -0.16f, 0.19f, 0.2f), palette::ink);
            const Point spark = head.at(0.3f, -0.24f);
            fill(layer, circle(spark.x, spark.y, 1), palette::white);
        } else {
            fill(layer, head.oval(0.3f, -0.08f, 0.32f, 0.3f), palette::white);
            fill(layer, head.oval(0.36f, 0, 0.17f, 0.17f), palette::ink);
            fillFur(layer, head.corners({{-0.1f, -0.5f}, {0.75f, -0.5f}, {0.75f, -0.02f}, {-0.1f, -0.22f}}), plume, 4,
                    0.1f, 6);
            fill(layer, head.limb({-0.05f, -0.2f}, {0.65f, -0.02f}, 0.05f, 0.05f), plume.dark);
        }
    });
}

Canvas paintJanusBird() {
    Canvas scene = newScene(palette::iceWhite);
    fillGradient(scene, 0, 112, {250, 214, 226}, {164, 208, 236});
    paintBokeh(scene, {{255, 240, 246}, {246, 176, 204}, {250, 220, 160}, {196, 226, 190}}, 70, 0, 112, 41);
    paintBranch(scene, {-6, 96}, {156, 100}, 6, 5, bark);
    paintBranch(scene, {126, 98}, {146, 66}, 3, 1.5f, bark);
    for (const Point& bloom :
         {Point{12, 92}, Point{24, 98}, Point{142, 70}, Point{134, 82}, Point{116, 100}, Point{6, 100}}) {
        paintFlower(scene, bloom.x, bloom.y, 5, {252, 176, 204}, palette::gold);
    }
    const Pose body{75, 90, 26};
    paintLayer(scene, rimOf(plume), [&](Canvas& layer) {
        for (const float x : {-0.3f, 0.0f, 0.3f}) {
            fillSmooth(layer, body.limb({x * 0.6f, -0.2f}, {x, 0.75f}, 0.18f, 0.15f), plume, 3);
        }
    });
    paintBranch(scene, {40, 97}, {112, 99}, 6, 6, bark);
    paintLayer(scene, rimOf(plume), [&](Canvas& layer) {
        const Shape necks = bothSides([&](float side) {
            return body.limb({side * 0.2f, -1.1f}, {side * 0.72f, -2.0f}, 0.55f, 0.42f);
        });
        fillScallops(layer, unite(body.oval(0, -0.75f, 1.0f, 0.9f), necks), plume, 6, 5);
        fillScallops(layer, body.oval(0, -0.62f, 0.62f, 0.68f), breast, 5, 4);
    });
    paintLayer(scene, rimOf(plume), [&](Canvas& layer) {
        for (const float side : {-1.0f, 1.0f}) {
            fillScallops(layer, body.oval(side * 0.92f, -0.68f, 0.32f, 0.78f, side * 0.2f),
                         {plume.middle, plume.dark, {24, 52, 88}}, 5, 5);
            for (const float toe : {-0.14f, 0.0f, 0.14f}) {
                fillSmooth(layer, body.limb({side * 0.35f + toe, 0.06f}, {side * 0.35f + toe, 0.32f}, 0.07f, 0.06f),
                           beak, 1);
            }
        }
    });
    paintBirdHead(scene, {75 - 20, 90 - 55, 16.5f, 0.1f, -1}, true);
    paintBirdHead(scene, {75 + 20, 90 - 55, 16.5f, 0.1f, 1}, false);
    for (const Point& note : {Point{14, 32}, Point{20, 16}}) {
        fill(scene, ellipse(note.x, note.y, 2.4f, 1.8f), palette::ink);
        fill(scene, capsule(note.x + 2, note.y, note.x + 2, note.y - 8, 0.6f), palette::ink);
        fill(scene, capsule(note.x + 2, note.y - 8, note.x + 5, note.y - 5, 0.7f), palette::ink);
    }
    return scene;
}

}  // namespace

Pictures paintFamily() {
    return {{"Squirrel", paintSquirrel()}, {"JanusBird", paintJanusBird()}};
}

}  // namespace vandrel::art
