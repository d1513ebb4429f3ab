// Two rooms of a gallery that shows the game's own sprites. No cat, dog, hamster, owl or ferret may hang here, nor
// anything that could pass for one: these two pictures are shown to those who switched all of them off.
#include <filesystem>
#include <string>
#include <vector>

#include "images/recipe.h"
#include "images/recolour.h"
#include "painter/png_file.h"
#include "prizes/brush.h"
#include "prizes/photo.h"
#include "prizes/scenery.h"

namespace vandrel::art {
namespace {

Canvas sprite(const std::string& name) {
    return readPng(std::filesystem::path(VANDREL_IMAGES_DIR) / (name + ".png"));
}

constexpr Ramp gilt{{255, 236, 150}, {226, 172, 72}, {140, 88, 36}};
constexpr Ramp walnut{{176, 116, 72}, {124, 76, 54}, {70, 42, 44}};
constexpr Ramp silver = palette::steel;

// Hangs the exhibit, enlarged, on a coloured ground in a frame whose top left corner is (x, y), with a plate under it.
void hang(Canvas& scene, int x, int y, const Canvas& exhibit, int scale, Colour ground, const Ramp& frame) {
    const int width = exhibit.width() * scale + 4, height = exhibit.height() * scale + 4;
    shade(scene,
          rectangle(static_cast<float>(x), static_cast<float>(y + 1), static_cast<float>(width + 8),
                    static_cast<float>(height + 8)),
          0.4f, 3);
    scene.fillRect(x, y, width + 6, height + 6, mix(frame.dark, palette::ink, 0.5f));
    scene.fillRect(x + 1, y + 1, width + 4, height + 4, frame.middle);
    scene.fillRect(x + 1, y + 1, width + 4, 1, frame.light);
    scene.fillRect(x + 1, y + 1, 1, height + 4, frame.light);
    scene.fillRect(x + 2, y + height + 4, width + 3, 1, frame.dark);
    scene.fillRect(x + 3, y + 3, width, height, mix(ground, palette::ink, 0.25f));
    scene.fillRect(x + 4, y + 4, width - 1, height - 1, ground);
    scene.draw(exhibit.scaled(scale), x + 5, y + 5);
    // The brass plate.
    scene.fillRect(x + width / 2 - 1, y + height + 8, 8, 3, gilt.middle);
    scene.fillRect(x + width / 2, y + height + 9, 6, 1, gilt.dark);
}

void paintSpotlight(Canvas& scene, float x, float reach) {
    glow(scene, polygon({{x - 4, 0}, {x + 4, 0}, {x + reach, 90}, {x - reach, 90}}), palette::fireWhite, 0.16f, 6);
    fillSmooth(scene, polygon({{x - 4, 4}, {x + 4, 4}, {x + 6, 9}, {x - 6, 9}}), palette::steel, 3);
}

void paintRope(Canvas& scene, float left, float right, float ground) {
    for (const float x : {left, right}) {
        fillSmooth(scene, capsule(x, ground, x, ground - 18, 1.2f), gilt, 1.5f);
        fillSmooth(scene, circle(x, ground - 20, 2.4f), gilt, 2);
        fillSmooth(scene, ellipse(x, ground, 5, 1.8f), gilt, 2);
    }
    const float middle = (left + right) / 2;
    fillSmooth(scene, curve({{left, ground - 17}, {middle, ground - 9}, {right, ground - 17}}, 1.4f),
               rampOf({190, 36, 60}), 1.5f);
}

// A visitor, seen from behind, the soles at `ground`.
void paintVisitor(Canvas& scene, int x, int ground, const std::string& head, Colour colour) {
    shade(scene, ellipse(static_cast<float>(x) + 16, static_cast<float>(ground), 13, 3), 0.5f, 3);
    scene.draw(recoloured(sprite("bodies/Body0_U_0"), colour), x, ground - 28);
    scene.draw(recoloured(sprite("heads/" + head + "_U_014"), colour), x, ground - 28 - 32);
}

Canvas paintPortraits() {
    Canvas scene = newScene(palette::bone);
    paintWall(scene, {70, 96, 112}, {78, 104, 120}, Wallpaper::Stripes);
    paintBoards(scene, 92, {{206, 150, 98}, {172, 116, 72}, {112, 70, 50}}, {226, 218, 200});
    paintSpotlight(scene, 40, 30);
    paintSpotlight(scene, 110, 30);
    struct Exhibit {
        const char* head;
        Colour colour;
        Colour ground;
        const Ramp* frame;
    };
    const Exhibit upper[]{{"Head2", {60, 110, 240}, {236, 206, 140}, &gilt},
                          {"Head9", {240, 190, 60}, {120, 60, 70}, &walnut},
                          {"Head8", {230, 50, 40}, {190, 200, 220}, &silver}};
    int x = 9;
    for (const Exhibit& exhibit : upper) {
        const Canvas face = recoloured(sprite(std::string("heads/") + exhibit.head + "_D_014"), exhibit.colour);
        hang(scene, x, 8, face, 1, exhibit.ground, *exhibit.frame);
        x += 46;
    }
    hang(scene, 100, 58, sprite("arena/R_Right").cropped(0, 8, 32, 16), 1, {150, 196, 224}, walnut);
    paintVisitor(scene, 14, 108, "Head0", {70, 200, 70});
    paintVisitor(scene, 58, 109, "Head10", {240, 120, 200});
    paintRope(scene, 100, 138, 102);
    return scene;
}

Canvas paintStillLifes() {
    Canvas scene = newScene(palette::bone);
    paintWall(scene, {140, 62, 66}, {148, 70, 72}, Wallpaper::Diamonds);
    paintBoards(scene, 92, {{150, 116, 96}, {112, 82, 76}, {66, 46, 54}}, {90, 40, 52});
    paintSpotlight(scene, 44, 34);
    paintSpotlight(scene, 118, 26);
    hang(scene, 8, 9, sprite("arena/Bomb1"), 2, {246, 220, 150}, gilt);
    hang(scene, 96, 8, sprite("arena/Explo1").cropped(0, 6, 32, 20), 1, {60, 40, 60}, walnut);
    // The pride of the house, on a pedestal.
    const Ramp marble{{250, 246, 240}, {216, 210, 208}, {140, 134, 150}};
    shade(scene, ellipse(60, 106, 24, 4), 0.5f, 4);
    paintLayer(scene, palette::ink, [&](Canvas& layer) {
        fillSmooth(layer, rectangle(98, 84, 30, 20), marble, 4);
        fillSmooth(layer, rectangle(94, 80, 38, 5, 1), marble, 2);
        fillSmooth(layer, rectangle(94, 101, 38, 6, 1), marble, 2);
    });
    scene.draw(sprite("arena/Snail"), 97, 80 - 44);
    paintVisitor(scene, 34, 107, "Head3", {60, 210, 220});
    return scene;
}

}  // namespace

Pictures paintFamily() {
    return {{"ArtWall1", paintPortraits()}, {"ArtWall2", paintStillLifes()}};
}

}  // namespace vandrel::art
