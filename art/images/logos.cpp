// The game's logo, the maker's seal, the trophy, and the keg that nobody has found a use for yet.
#include <array>
#include <cmath>
#include <numbers>
#include <string_view>

#include "images/recipe.h"
#include "painter/pixel_map.h"
#include "painter/shapes.h"

namespace vandrel::art {
namespace {

constexpr int logoWidth = 160, logoHeight = 40, logoScale = 4;
constexpr int letterScale = 3, letterColumns = 7, letterRows = 9;

using LetterMap = std::array<std::string_view, letterRows>;

constexpr LetterMap letterV{"##...##", "##...##", "##...##", "##...##", "##...##",
                            "###.###", ".##.##.", ".#####.", "..###.."};
constexpr LetterMap letterA{"..###..", ".#####.", "###.###", "##...##", "##...##",
                            "#######", "#######", "##...##", "##...##"};
constexpr LetterMap letterN{"##...##", "###..##", "####.##", "#######", "##.####",
                            "##..###", "##...##", "##...##", "##...##"};
constexpr LetterMap letterD{"#####..", "######.", "##..###", "##...##", "##...##",
                            "##...##", "##..###", "######.", "#####.."};
constexpr LetterMap letterR{"######.", "#######", "##...##", "##...##", "######.",
                            "#####..", "##.###.", "##..###", "##...##"};
constexpr LetterMap letterE{"#######", "#######", "##.....", "#####..", "#####..",
                            "##.....", "##.....", "#######", "#######"};
constexpr LetterMap letterL{"##.....", "##.....", "##.....", "##.....", "##.....",
                            "##.....", "##.....", "#######", "#######"};
constexpr std::array<LetterMap, 7> word{letterV, letterA, letterN, letterD, letterR, letterE, letterL};

bool inLetter(const LetterMap& letter, int column, int row) {
    return column >= 0 && row >= 0 && column < letterColumns && row < letterRows &&
           letter[static_cast<std::size_t>(row)][static_cast<std::size_t>(column)] == '#';
}

// The letters glow like embers: bright above, red below, with a bevel along every edge.
Colour emberAt(int y) {
    static constexpr std::array<Colour, 5> embers{
        palette::fireWhite, palette::fireYellow, {255, 172, 48}, palette::fireOrange, {232, 84, 28}};
    return embers[static_cast<std::size_t>(y * static_cast<int>(embers.size()) / (letterRows * letterScale))];
}

void layLetter(Canvas& canvas, const LetterMap& letter, int left, int top) {
    for (int y = 0; y < letterRows * letterScale; ++y) {
        for (int x = 0; x < letterColumns * letterScale; ++x) {
            const int column = x / letterScale, row = y / letterScale;
            if (!inLetter(letter, column, row)) {
                continue;
            }
            const bool lit = (y % letterScale == 0 && !inLetter(letter, column, row - 1)) ||
                             (x % letterScale == 0 && !inLetter(letter, column - 1, row));
            const bool shade = (y % letterScale == letterScale - 1 && !inLetter(letter, column, row + 1)) ||
                               (x % letterScale == letterScale - 1 && !inLetter(letter, column + 1, row));
            canvas.set(left + x, top + y, lit ? palette::white : (shade ? palette::fireRed : emberAt(y)));
        }
    }
}

Canvas logo() {
    constexpr int advance = letterColumns * letterScale + 1;
    constexpr int left = (logoWidth - advance * 7 + 1) / 2, top = 9;
    Canvas face(logoWidth, logoHeight);
    for (std::size_t i = 0; i < word.size(); ++i) {
        // The letters hop a little, as if the ground had shaken.
        static constexpr std::array<int, 7> hop{0, -1, 1, 0, 1, -1, 0};
        layLetter(face, word[i], left + static_cast<int>(i) * advance, top + hop[i]);
    }
    Canvas canvas(logoWidth, logoHeight);
    Canvas slab = face;
    slab.outline();
    for (int y = 0; y < logoHeight; ++y) {
        for (int x = 0; x < logoWidth; ++x) {
            if (slab.visible(x, y)) {
                slab.set(x, y, palette::ink);
            }
        }
    }
    Canvas depth = slab;
    depth.replace(palette::ink, palette::mortar);
    depth.outline();
    canvas.draw(depth, 0, 2);
    canvas.draw(depth, 0, 1);
    canvas.draw(slab);
    canvas.draw(face);
    // The bomb in the counter of the second letter, its fuse out over the top.
    const float bombX = static_cast<float>(left + advance) + 10.5f, bombY = static_cast<float>(top) + 11.0f;
    fill(canvas, circle(bombX, bombY, 7.0f), palette::ink);
    fill(canvas, circle(bombX, bombY, 6.0f), palette::steelDark);
    fill(canvas, circle(bombX + 0.6f, bombY + 0.6f, 5.4f), {40, 32, 56});
    fill(canvas, ellipse(bombX - 2.2f, bombY - 2.4f, 1.7f, 1.2f), palette::white);
    const std::vector<Point> fuse{
        {bombX + 2, bombY - 6}, {bombX + 4, bombY - 11}, {bombX + 9, bombY - 13}, {bombX + 13, bombY - 14}};
    fill(canvas, curve(fuse, 1.6f), palette::ink);
    fill(canvas, curve(fuse, 0.7f), palette::bone);
    fill(canvas, star(bombX + 14, bombY - 13.5f, 8, 5.8f, 2.2f), palette::fireOrange);
    fill(canvas, star(bombX + 14, bombY - 13.5f, 4, 5.0f, 1.6f), palette::fireYellow);
    fill(canvas, circle(bombX + 14, bombY - 13.5f, 1.5f), palette::white);
    return canvas.scaled(logoScale);
}

// A round seal that reads at every angle: a toothed ring of gold around a burning bomb.
Canvas makersSeal() {
    Canvas canvas(96, 96);
    fill(canvas, star(48, 48, 24, 47, 42), palette::ink);
    fill(canvas, star(48, 48, 24, 45.4f, 40.6f), palette::goldDark);
    fillLit(canvas, circle(48, 48, 40), palette::metalGold, 6);
    fill(canvas, circle(48, 48, 34.5f), palette::ink);
    fill(canvas, circle(48, 48, 33), {56, 40, 104});
    for (int dot = 0; dot < 24; ++dot) {
        const float turn = static_cast<float>(dot) * std::numbers::pi_v<float> / 12;
        fill(canvas, circle(48 + 37.2f * std::cos(turn), 48 + 37.2f * std::sin(turn), 1.4f), palette::goldDark);
    }
    for (int ray = 0; ray < 12; ++ray) {
        const float turn = static_cast<float>(ray) * std::numbers::pi_v<float> / 6;
        fill(canvas, taper(48, 48, 48 + 31 * std::cos(turn), 48 + 31 * std::sin(turn), 2.0f, 4.4f), palette::violet);
    }
    fill(canvas, circle(48, 50, 20.5f), palette::ink);
    fillLit(canvas, circle(48, 50, 19), {palette::steelDark, {48, 40, 68}, {36, 28, 48}}, 12);
    fill(canvas, curve({{56, 33}, {60, 25}, {67, 24}, {71, 28}}, 3.0f), palette::ink);
    fill(canvas, curve({{56, 33}, {60, 25}, {67, 24}, {71, 28}}, 1.6f), palette::bone);
    fill(canvas, star(72, 28, 8, 9.5f, 3.6f), palette::fireOrange);
    fill(canvas, star(72, 28, 8, 6.5f, 2.6f), palette::fireYellow);
    fill(canvas, circle(72, 28, 2.6f), palette::white);
    const Shape letter =
        unite(polygon({{36, 40}, {43, 40}, {51, 62}, {45, 62}}), polygon({{60, 40}, {53, 40}, {45, 62}, {51, 62}}));
    fill(canvas, grown(letter, 1.4f), palette::ink);
    fill(canvas, letter, palette::fireYellow);
    fill(canvas, polygon({{36, 40}, {39, 40}, {47, 62}, {45, 62}}), palette::fireWhite);
    return canvas;
}

Canvas trophy() {
    Canvas canvas(48, 48);
    for (const float x : {11.0f, 37.0f}) {
        fill(canvas, ring(ellipse(x, 15, 4.2f, 6.0f), 2.4f), palette::gold);
    }
    const Shape bowl =
        unite(intersect(ellipse(24, 9, 12.5f, 19), rectangle(0, 8, 48, 24)), rectangle(10.5f, 6, 27, 4, 1));
    fillLit(canvas, unite(bowl, rectangle(22, 26, 4, 9)), palette::metalGold, 7);
    fillLit(canvas, polygon({{24, 32}, {30, 37}, {18, 37}}), palette::metalGold, 3);
    fill(canvas, rectangle(14, 37, 20, 6, 1), {120, 72, 48});
    fill(canvas, rectangle(14, 37, 20, 2, 1), {176, 112, 72});
    canvas.outline();
    fill(canvas, rectangle(19, 39, 10, 3), palette::gold);
    fill(canvas, star(24, 16, 5, 5.4f, 2.2f, -std::numbers::pi_v<float> / 2), palette::goldDark);
    fill(canvas, star(23.4f, 15.5f, 5, 4.6f, 1.9f, -std::numbers::pi_v<float> / 2), palette::white);
    canvas.line(14, 11, 15, 17, palette::white);
    canvas.line(11, 7, 35, 7, palette::fireWhite);
    return canvas;
}

Canvas keg() {
    Canvas canvas(32, 32);
    fillLit(canvas, unite(rectangle(7, 6, 18, 21, 3), ellipse(16, 16.5f, 10.5f, 9)), palette::brick, 6);
    for (const float y : {8.0f, 22.0f}) {
        fill(canvas, intersect(rectangle(5, y, 22, 3), unite(rectangle(7, 6, 18, 21, 3), ellipse(16, 16.5f, 10.5f, 9))),
             palette::steelMiddle);
    }
    canvas.outline();
    fill(canvas, circle(16, 15.5f, 3.4f), palette::ink);
    fill(canvas, circle(16, 15.5f, 2.4f), palette::bone);
    return canvas;
}

}  // namespace

Pictures paintFamily() {
    return {{"VLogo3", logo()}, {"MKR", makersSeal()}, {"Trophy", trophy()}, {"Pilsbry", keg()}};
}

}  // namespace vandrel::art
