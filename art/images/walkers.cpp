// Draws the 13 skins, each walking in four directions in eight colours, head over body as the game composes them, and
// the same skins crawling and as the head alone that computer players and snakes show.
//
//     draw_walkers IMAGES_DIRECTORY SHEET.png
#include <array>
#include <filesystem>
#include <string>
#include <vector>

#include "files/program.h"
#include "images/recolour.h"
#include "painter/letters.h"
#include "painter/png_file.h"

namespace {

using namespace vandrel::art;
namespace fs = std::filesystem;

struct Skin {
    const char* name;
    int file;
    bool ownBack;
    bool ownLeft;
};

constexpr std::array<Skin, 13> skins{{{"Pip", 0, true, false},
                                      {"Biscuit", 1, false, false},
                                      {"Quill", 2, true, false},
                                      {"Topper", 3, true, false},
                                      {"Moss", 4, false, false},
                                      {"Sleet", 5, false, false},
                                      {"Patch", 6, false, true},
                                      {"Dial", 7, false, true},
                                      {"Flint", 9, true, false},
                                      {"Tansy", 10, true, false},
                                      {"Grin", 8, false, false},
                                      {"Volt", 11, true, false},
                                      {"Nib", 12, false, false}}};

constexpr std::array<Colour, 8> colours{{{230, 50, 40},
                                         {60, 110, 240},
                                         {70, 200, 70},
                                         {250, 220, 50},
                                         {240, 120, 200},
                                         {250, 250, 250},
                                         {60, 210, 220},
                                         {150, 80, 220}}};
constexpr std::array<int, 7> bob{0, -2, 0, -1, -2, 0, -1};
constexpr std::array<const char*, 7> facingHead{"014", "014", "23", "23", "014", "56", "56"};
constexpr std::array<const char*, 7> sideHead{"0", "14", "23", "23", "14", "56", "56"};

class Wardrobe {
  public:
    explicit Wardrobe(fs::path images) : images_(std::move(images)) {}

    Canvas head(const Skin& skin, char facing, int frame) const {
        const auto index = static_cast<std::size_t>(frame);
        if (facing == 'U' || facing == 'D') {
            const int file = facing == 'U' && !skin.ownBack ? 0 : skin.file;
            return named("heads", "Head" + std::to_string(file) + "_" + facing + "_" + facingHead[index]);
        }
        const std::string number = "Head" + std::to_string(skin.file);
        if (facing == 'L' && !skin.ownLeft) {
            return named("heads", number + "_R_" + sideHead[index]).mirrored();
        }
        return named("heads", number + "_" + facing + "_" + sideHead[index]);
    }

    Canvas body(char facing, int frame) const {
        const std::string number = std::to_string(frame);
        if (facing == 'U' || facing == 'D') {
            return named("bodies", "Body0_D_" + number);
        }
        const Canvas right = named("bodies", "Body0_R_" + number);
        return facing == 'L' ? right.mirrored() : right;
    }

    Canvas named(const std::string& directory, const std::string& name) const {
        return readPng(images_ / directory / (name + ".png"));
    }

  private:
    fs::path images_;
};

Canvas walker(const Wardrobe& wardrobe, const Skin& skin, char facing, int frame, Colour colour) {
    Canvas figure(32, 64);
    figure.draw(wardrobe.head(skin, facing, frame), 0, 0);
    figure.draw(wardrobe.body(facing, frame), 0, 32);
    return recoloured(figure, colour);
}

Canvas crawler(const Wardrobe& wardrobe, const Skin& skin, int frame, Colour colour) {
    Canvas figure(64, 32);
    figure.draw(wardrobe.named("bodies", "Body0_Crawl_R_" + std::to_string(frame)), 0, 0);
    figure.draw(wardrobe.named("heads", "Head" + std::to_string(skin.file) + "_Crawl_R"), 32, 0);
    return recoloured(figure, colour);
}

void drawSheet(const fs::path& images, const fs::path& file) {
    constexpr int scale = 2;
    constexpr int step = 36, rowHeight = 74, left = 48;
    const Wardrobe wardrobe(images);
    Canvas sheet(left + 28 * step + 2 * 68 + step, static_cast<int>(skins.size()) * rowHeight, {57, 72, 57});
    for (std::size_t row = 0; row < skins.size(); ++row) {
        const int ground = static_cast<int>(row) * rowHeight + 4;
        writeText(sheet, 2, ground + 30, skins[row].name, palette::white);
        int x = left;
        std::size_t turn = row;
        for (const char facing : {'D', 'R', 'U', 'L'}) {
            for (int frame = 0; frame < 7; ++frame, ++turn) {
                const Canvas figure = walker(wardrobe, skins[row], facing, frame, colours[turn % colours.size()]);
                sheet.draw(figure, x, ground + bob[static_cast<std::size_t>(frame)] + 2);
                x += step;
            }
        }
        for (const int frame : {0, 1}) {
            sheet.draw(crawler(wardrobe, skins[row], frame, colours[turn++ % colours.size()]), x, ground + 32);
            x += 68;
        }
        sheet.draw(recoloured(wardrobe.head(skins[row], 'D', 0), colours[turn % colours.size()]), x, ground + 32);
    }
    writePng(sheet.scaled(scale), file);
}

}  // namespace

int main(int argc, char** argv) {
    return runProgram(argc, argv, 2, 2, "IMAGES_DIRECTORY SHEET.png",
                      [](const std::vector<std::string>& words) { drawSheet(words[0], words[1]); });
}
