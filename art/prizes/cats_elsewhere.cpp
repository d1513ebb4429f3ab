// Cats with a view: in the garden, on the rug, on the window sill, among the books.
#include <string_view>

#include "images/recipe.h"
#include "painter/letters.h"
#include "painter/noise.h"
#include "prizes/cat.h"
#include "prizes/photo.h"
#include "prizes/scenery.h"

namespace vandrel::art {
namespace {

// The camera of those days wrote the date into the corner.
void stampDate(Canvas& scene, std::string_view date) {
    const int x = photoWidth - textWidth(date) - 8, y = photoHeight - 16;
    writeText(scene, x + 1, y + 1, date, mix(palette::fireRed, palette::ink, 0.6f));
    writeText(scene, x, y, date, palette::fireOrange);
}

Canvas paintGardenCat() {
    Canvas scene = newScene(palette::leafDark);
    fillGradient(scene, 0, 60, {170, 212, 236}, {150, 196, 130});
    paintBokeh(scene, {{84, 140, 76}, {120, 176, 84}, {200, 220, 140}, {60, 110, 70}}, 70, 14, 64, 3);
    paintGrass(scene, 62, {{160, 208, 92}, {96, 160, 68}, {48, 104, 56}}, 5);
    Dice dice(12);
    for (int flower = 0; flower < 16; ++flower) {
        const float x = dice.between(4, 146), y = dice.between(66, 106);
        const Colour petals =
            flower % 3 == 0 ? Colour{248, 232, 120} : (flower % 3 == 1 ? palette::white : Colour{236, 130, 160});
        paintFlower(scene, x, y, 2.2f + (y - 60) * 0.04f, petals, palette::goldDark);
    }
    paintSittingCat(scene, tabbyCat, {Eyes::Open, 0.7f, -0.6f, 0.16f}, {50, 103, 19.5f});
    // What it looks at.
    paintLayer(scene, palette::ink, [](Canvas& layer) {
        fillSmooth(layer, ellipse(112, 23, 6, 7), palette::fire, 5);
        fillSmooth(layer, ellipse(123, 22, 6, 7), palette::fire, 5);
        fillSmooth(layer, ellipse(114, 33, 4, 5), palette::fire, 4);
        fillSmooth(layer, ellipse(121, 33, 4, 5), palette::fire, 4);
        fill(layer, capsule(117.5f, 20, 117.5f, 35, 1.1f), palette::ink);
    });
    paintGrass(scene, 106, {{160, 208, 92}, {96, 160, 68}, {48, 104, 56}}, 9);
    stampDate(scene, "04 8 28");
    return scene;
}

Canvas paintFloorCat() {
    Canvas scene = newScene(palette::bone);
    paintWall(scene, {120, 150, 176}, {132, 162, 188}, Wallpaper::Dots);
    paintBoards(scene, 44, {{214, 160, 104}, {180, 124, 78}, {122, 76, 54}}, {236, 230, 216});
    paintWallPicture(scene, 22, 8, 38, 24, {{255, 250, 240}, {222, 210, 196}, {150, 136, 140}}, {250, 206, 150},
                     {176, 104, 92});
    paintPlant(scene, 122, 50, 17, palette::leaf, rampOf(palette::goldDark));
    const Ramp red{{214, 96, 72}, {172, 56, 56}, {110, 32, 48}};
    const Shape rug = polygon({{22, 62}, {128, 62}, {146, 106}, {4, 106}});
    fillFur(scene, rug, red, 3, 0.2f, 5);
    fill(scene, ring(grown(rug, -5), 1.6f), palette::gold);
    fill(scene, ring(grown(rug, -9), 1.0f), {60, 84, 140});
    for (int tile = 0; tile < 6; ++tile) {
        const float x = 26 + static_cast<float>(tile) * 20;
        fill(scene, star(x, 98, 4, 4, 1.8f), palette::bone);
        fill(scene, star(34 + static_cast<float>(tile) * 16.5f, 69, 4, 3, 1.4f), palette::bone);
    }
    for (int x = 6; x < 146; x += 3) {
        scene.fillRect(x, 106, 1, 3, palette::bone);
    }
    // Sun through a window.
    for (const float left : {60.0f, 96.0f}) {
        glow(scene, polygon({{left, 46}, {left + 26, 46}, {left + 10, 112}, {left - 24, 112}}), palette::fireWhite,
             0.24f, 2);
    }
    paintStretchedCat(scene, tabbyCat, {Eyes::Half, 0, 0, -0.1f}, {66, 94, 18});
    return scene;
}

Canvas sunnyView(int width, int height) {
    Canvas view(width, height);
    fillGradient(view, 0, height, {116, 180, 240}, {206, 232, 246});
    paintCloud(view, 24, 20, 16, {228, 240, 250});
    paintCloud(view, 82, 12, 12, {228, 240, 250});
    fillSmooth(view, ellipse(20, static_cast<float>(height) + 6, 50, 26), rampOf({120, 180, 90}), 20);
    fillSmooth(view, ellipse(90, static_cast<float>(height) + 10, 50, 24), rampOf({92, 156, 84}), 20);
    return view;
}

void paintCurtain(Canvas& scene, int left, int width, const Ramp& cloth) {
    for (int x = left; x < left + width; ++x) {
        const int fold = (x - left) % 7;
        const Colour tone = fold < 2 ? cloth.light : (fold < 5 ? cloth.middle : cloth.dark);
        scene.fillRect(x, 0, 1, 86 - (fold == 3 ? 2 : 0), tone);
    }
    scene.fillRect(left, 84, width, 2, cloth.dark);
}

Canvas paintYuffy() {
    Canvas scene = newScene(palette::bone);
    paintWall(scene, {226, 206, 214}, {218, 192, 204}, Wallpaper::Stripes);
    paintWindow(scene, 22, 8, sunnyView(106, 76), {{255, 255, 250}, {226, 222, 214}, {164, 156, 164}});
    paintCurtain(scene, 4, 20, {{250, 170, 170}, {222, 124, 136}, {160, 80, 104}});
    paintCurtain(scene, 127, 20, {{250, 170, 170}, {222, 124, 136}, {160, 80, 104}});
    paintLedge(scene, 88, 14, {{255, 250, 240}, {228, 220, 206}, {158, 146, 150}});
    paintPlant(scene, 112, 92, 15, palette::leaf, palette::brick);
    paintSittingCat(scene, whiteCat, {Eyes::Open, 0, 0.1f, 0.07f}, {66, 93, 19});
    return scene;
}

void paintBooks(Canvas& scene, int left, int right, int shelf, std::uint32_t seed) {
    constexpr Colour covers[]{{168, 60, 56},  {56, 92, 140},  {72, 120, 84},
                              {196, 152, 72}, {110, 70, 120}, {206, 190, 160}};
    Dice dice(seed);
    for (int x = left; x < right;) {
        const int width = 5 + dice.below(6), height = 24 + dice.below(11);
        const Ramp cover = rampOf(covers[dice.below(6)]);
        const int drawn = x + width > right ? right - x : width;
        scene.fillRect(x, shelf - height, drawn, height, cover.middle);
        scene.fillRect(x, shelf - height, 1, height, cover.light);
        scene.fillRect(x + drawn - 1, shelf - height, 1, height, cover.dark);
        scene.fillRect(x + 1, shelf - height + 4, drawn - 2, 2, palette::gold);
        scene.fillRect(x + 1, shelf - 7, drawn - 2, 1, palette::gold);
        x += width;
    }
}

Canvas paintIsolde() {
    const Ramp oak{{190, 132, 84}, {142, 92, 60}, {84, 50, 44}};
    Canvas scene = newScene({64, 40, 44});
    fillGradient(scene, 0, 112, {78, 50, 50}, {52, 32, 40});
    paintBooks(scene, 4, 46, 44, 3);
    paintBooks(scene, 108, 146, 44, 8);
    paintBooks(scene, 4, 40, 98, 15);
    paintBooks(scene, 112, 146, 98, 23);
    // The middle is the bay that the cat has taken, under a small brass lamp.
    glow(scene, ellipse(76, 50, 36, 50), palette::fireYellow, 0.25f, 40);
    scene.fillRect(0, 44, 40, 5, oak.middle);
    scene.fillRect(0, 44, 40, 1, oak.light);
    scene.fillRect(112, 44, 38, 5, oak.middle);
    scene.fillRect(112, 44, 38, 1, oak.light);
    for (const int x : {38, 110}) {
        scene.fillRect(x, 0, 4, 98, oak.middle);
        scene.fillRect(x, 0, 1, 98, oak.light);
        scene.fillRect(x + 3, 0, 1, 98, oak.dark);
    }
    paintLedge(scene, 98, 14, oak);
    paintSittingCat(scene, siameseCat, {Eyes::Open, 0, 0, -0.05f}, {74, 101, 19.5f});
    paintLayer(scene, palette::ink, [](Canvas& layer) {
        fill(layer, curve({{63, 58}, {74, 63}, {85, 58}}, 1.6f), palette::fireRed);
        fillSmooth(layer, circle(74, 65, 3), palette::metalGold, 3);
    });
    return scene;
}

}  // namespace

Pictures paintFamily() {
    return {{"Sasha2004082811", paintGardenCat()},
            {"SashaFloor", paintFloorCat()},
            {"Yuffy", paintYuffy()},
            {"Isolde", paintIsolde()}};
}

}  // namespace vandrel::art
