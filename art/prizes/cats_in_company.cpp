// A cat at the piano, and a cat with its friend the ferret.
#include "images/recipe.h"
#include "prizes/cat.h"
#include "prizes/photo.h"
#include "prizes/scenery.h"

namespace vandrel::art {
namespace {

void paintKeys(Canvas& scene, int top, int bottom) {
    scene.fillRect(0, top - 2, photoWidth, 2, {150, 30, 44});
    scene.fillRect(0, top, photoWidth, bottom - top, palette::bone);
    for (int key = 0; key * 8 < photoWidth; ++key) {
        scene.fillRect(key * 8, top, 1, bottom - top, palette::boneShade);
        scene.fillRect(key * 8 + 1, top, 1, bottom - top, palette::white);
        const int inOctave = key % 7;
        if (inOctave != 2 && inOctave != 6) {
            scene.fillRect(key * 8 + 6, top, 5, (bottom - top) * 3 / 5, palette::ink);
            scene.fillRect(key * 8 + 7, top, 1, (bottom - top) * 3 / 5 - 2, palette::steelDark);
        }
    }
    scene.fillRect(0, bottom - 2, photoWidth, 2, palette::boneShade);
}

void paintSheetMusic(Canvas& scene, int x, int y) {
    fill(scene, rectangle(static_cast<float>(x), static_cast<float>(y), 36, 30), palette::bone);
    scene.fillRect(x + 17, y, 2, 30, palette::boneShade);
    for (int line = 0; line < 2; ++line) {
        for (int row = 0; row < 4; ++row) {
            scene.fillRect(x + 3, y + 5 + line * 12 + row * 2, 13, 1, palette::boneShade);
            scene.fillRect(x + 20, y + 5 + line * 12 + row * 2, 13, 1, palette::boneShade);
        }
        for (int note = 0; note < 6; ++note) {
            const int noteX = x + 4 + note * 5 + (note > 2 ? 2 : 0),
                      noteY = y + 6 + line * 12 + (note * 5 + line * 3) % 6;
            scene.fillRect(noteX, noteY, 2, 1, palette::ink);
            scene.fillRect(noteX + 1, noteY - 3, 1, 3, palette::ink);
        }
    }
}

Canvas paintPianoCat() {
    const Ramp lacquer{{120, 76, 64}, {74, 42, 44}, {40, 22, 34}};
    Canvas scene = newScene(palette::bone);
    paintWall(scene, {150, 120, 150}, {164, 134, 162}, Wallpaper::Diamonds);
    paintLayer(scene, palette::ink, [&](Canvas& layer) {
        fillSmooth(layer, rectangle(6, 30, 138, 60, 3), lacquer, 6);
        fillSmooth(layer, rectangle(0, 26, 150, 6, 2), lacquer, 3);
    });
    paintSheetMusic(scene, 104, 36);
    paintSheetMusic(scene, 10, 36);
    paintSittingCat(scene, tuxedoCat, {Eyes::Open, 0, 0.6f, 0.1f}, {75, 107, 20});
    // The keyboard stands before it; only the paws come over.
    scene.fillRect(0, 76, photoWidth, 36, lacquer.middle);
    paintKeys(scene, 80, 104);
    scene.fillRect(0, 104, photoWidth, 2, lacquer.light);
    shade(scene, ellipse(62, 86, 9, 4), 0.4f, 4);
    shade(scene, ellipse(92, 90, 9, 4), 0.4f, 4);
    for (const Pose& paw : {Pose{61, 78, 20, 0.2f}, Pose{91, 82, 20, -0.1f}}) {
        paintLayer(scene, rimOf(blackFur), [&](Canvas& layer) {
            fillFur(layer, paw.limb({0, -0.75f}, {0, 0}, 0.28f, 0.28f), blackFur, 6, 0.4f, 4);
        });
        paintCatPaw(scene, tuxedoCat, paw);
    }
    // Notes in the air: it has just struck up.
    for (const Point& note : {Point{38, 18}, Point{112, 14}, Point{126, 22}}) {
        fill(scene, ellipse(note.x, note.y, 2.4f, 1.8f), palette::ink);
        fill(scene, capsule(note.x + 2, note.y, note.x + 2, note.y - 8, 0.6f), palette::ink);
        fill(scene, capsule(note.x + 2, note.y - 8, note.x + 5, note.y - 5, 0.7f), palette::ink);
    }
    return scene;
}

constexpr Ramp ferretCream{{252, 236, 204}, {224, 196, 152}, {156, 120, 96}};
constexpr Ramp ferretSable{{128, 92, 72}, {88, 58, 50}, {48, 30, 36}};

void paintFerretHead(Canvas& scene, const Pose& head) {
    paintLayer(scene, rimOf(ferretSable), [&](Canvas& layer) {
        fillFur(layer, bothSides([&](float side) { return head.oval(side * 0.62f, -0.6f, 0.3f, 0.28f); }), ferretSable,
                4, 0.3f, 3);
        fillSmooth(layer, bothSides([&](float side) { return head.oval(side * 0.62f, -0.56f, 0.15f, 0.14f); }),
                   rampOf({232, 168, 150}), 2);
        fillFur(layer,
                blendUnite(head.oval(0, -0.1f, 0.86f, 0.7f), head.oval(0, 0.42f, 0.42f, 0.42f), head.size * 0.4f),
                ferretCream, head.size * 0.6f, 0.5f, 4);
        // The bandit's mask.
        fillFur(layer, bothSides([&](float side) { return head.oval(side * 0.4f, -0.1f, 0.36f, 0.26f, side * 0.45f); }),
                ferretSable, 4, 0.3f, 5);
        fillSmooth(layer, head.oval(0, 0.46f, 0.17f, 0.12f), rampOf({224, 128, 128}), 2);
        stroke(layer, head.at(0, 0.56f), head.at(0, 0.68f), ferretSable.dark);
        for (const float side : {-1.0f, 1.0f}) {
            fill(layer, head.oval(side * 0.38f, -0.08f, 0.15f, 0.15f), palette::ink);
            const Point spark = head.at(side * 0.38f - 0.06f, -0.14f);
            layer.set(static_cast<int>(spark.x), static_cast<int>(spark.y), palette::white);
            stroke(layer, head.at(side * 0.1f, 0.68f), head.at(side * 0.22f, 0.62f), ferretSable.dark);
        }
    });
    for (const float side : {-1.0f, 1.0f}) {
        stroke(scene, head.at(side * 0.3f, 0.42f), head.at(side * 1.05f, 0.3f), palette::bone);
        stroke(scene, head.at(side * 0.3f, 0.5f), head.at(side * 1.0f, 0.62f), palette::bone);
    }
}

// Long and low, curled round the cat's side.
void paintFerret(Canvas& scene, const Pose& ferret) {
    shade(scene, ferret.oval(0.4f, 0, 3.0f, 0.3f), 0.5f, 5);
    paintLayer(scene, rimOf(ferretSable), [&](Canvas& layer) {
        fillFur(layer, ferret.tube({{1.8f, -0.6f}, {2.4f, -0.8f}, {2.5f, -1.5f}, {2.2f, -2.0f}}, 0.28f), ferretSable, 5,
                1.2f, 6);
    });
    const Material sides = [ferret](float x, float y) {
        return y > ferret.y - ferret.size * 0.75f && x < ferret.x + ferret.size * 1.3f ? ferretCream
                                                                                       : rampOf({164, 120, 88});
    };
    paintLayer(scene, rimOf(ferretSable), [&](Canvas& layer) {
        fillFur(layer, ferret.tube({{-1.0f, -1.1f}, {-0.2f, -1.0f}, {0.8f, -1.05f}, {1.7f, -0.75f}}, 0.72f), sides, 8,
                0.8f, 7);
        for (const float x : {-1.1f, -0.4f, 1.4f}) {
            fillFur(layer, ferret.limb({x, -0.5f}, {x - 0.15f, -0.16f}, 0.24f, 0.2f), ferretSable, 4, 0.3f, 8);
        }
    });
    paintFerretHead(scene, ferret.part(-1.15f, -1.7f, 1.0f, -0.1f));
}

Canvas paintFriends() {
    Canvas scene = newScene(palette::bone);
    paintWall(scene, {176, 196, 206}, {190, 208, 216}, Wallpaper::Stripes);
    const Ramp sofa{{176, 108, 140}, {132, 70, 108}, {82, 40, 76}};
    paintLayer(scene, rimOf(sofa), [&](Canvas& layer) {
        fillFur(layer, roundedBox(40, 66, 38, 38, 9), sofa, 9, 0.2f, 4);
        fillFur(layer, roundedBox(113, 66, 38, 38, 9), sofa, 9, 0.2f, 4);
    });
    paintLayer(scene, rimOf(sofa),
               [&](Canvas& layer) { fillFur(layer, roundedBox(75, 101, 80, 16, 7), sofa, 8, 0.2f, 5); });
    for (const float x : {22.0f, 126.0f}) {
        const Ramp silk = rampOf(x < 75 ? Colour{232, 190, 96} : Colour{110, 176, 160});
        paintLayer(scene, rimOf(silk), [&](Canvas& layer) {
            fillFur(layer, rotated(roundedBox(x, 56, 15, 15, 4), x, 56, x < 75 ? 0.6f : 0.9f), silk, 8, 0.2f, 9);
        });
        fill(scene, circle(x, 56, 1.5f), silk.dark);
    }
    // A crocheted blanket of squares under both.
    for (int square = 0; square < 15; ++square) {
        constexpr Colour wool[]{{240, 200, 90}, {110, 180, 150}, {236, 130, 90}};
        const int x = square * 10;
        scene.fillRect(x, 91, 10, 11, rampOf(wool[square % 3]).middle);
        scene.fillRect(x + 2, 93, 6, 6, rampOf(wool[(square + 1) % 3]).light);
        scene.fillRect(x + 4, 95, 2, 2, palette::white);
        scene.fillRect(x, 91, 10, 1, palette::bone);
        scene.fillRect(x, 91, 1, 11, palette::bone);
        scene.fillRect(x + 2, 102, 1, 3, palette::bone);
        scene.fillRect(x + 7, 102, 1, 3, palette::bone);
    }
    paintLoafingCat(scene, gingerCat, {Eyes::Shut, 0, 0, 0.12f}, {44, 98, 18});
    paintFerret(scene, {97, 100, 17});
    return scene;
}

}  // namespace

Pictures paintFamily() {
    return {{"CatrickPiano", paintPianoCat()}, {"CatFerret", paintFriends()}};
}

}  // namespace vandrel::art
