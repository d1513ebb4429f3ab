// Draws every prize at a quarter of its size with its name under it, for looking at.
//
//     draw_prize_sheet PRIZES_DIRECTORY SHEET.png
#include <algorithm>
#include <filesystem>
#include <vector>

#include "files/program.h"
#include "painter/letters.h"
#include "painter/png_file.h"
#include "prizes/photo.h"

namespace {

using namespace vandrel::art;
namespace fs = std::filesystem;

constexpr int scale = 2;
constexpr int columns = 5;
constexpr int gap = 10, nameHeight = 14;
constexpr Colour wallColour{57, 60, 76};

// One pixel of each enlarged one, which loses nothing.
Canvas sceneOf(const Canvas& photo) {
    Canvas scene(photo.width() / photoScale, photo.height() / photoScale);
    for (int y = 0; y < scene.height(); ++y) {
        for (int x = 0; x < scene.width(); ++x) {
            scene.set(x, y, photo.at(x * photoScale, y * photoScale));
        }
    }
    return scene;
}

void drawSheet(const fs::path& directory, const fs::path& file) {
    std::vector<fs::path> photos;
    for (const fs::directory_entry& entry : fs::directory_iterator(directory)) {
        photos.push_back(entry.path());
    }
    std::sort(photos.begin(), photos.end());
    const int rows = (static_cast<int>(photos.size()) + columns - 1) / columns;
    const int cellWidth = photoWidth * scale + gap, cellHeight = photoHeight * scale + gap + nameHeight;
    Canvas sheet(columns * cellWidth + gap, rows * cellHeight + gap, wallColour);
    for (std::size_t i = 0; i < photos.size(); ++i) {
        const int x = gap + static_cast<int>(i) % columns * cellWidth;
        const int y = gap + static_cast<int>(i) / columns * cellHeight;
        sheet.draw(sceneOf(readPng(photos[i])).scaled(scale), x, y);
        writeText(sheet, x, y + photoHeight * scale + 4, photos[i].stem().string(), palette::white);
    }
    writePng(sheet, file);
}

}  // namespace

int main(int argc, char** argv) {
    return runProgram(argc, argv, 2, 2, "PRIZES_DIRECTORY SHEET.png",
                      [](const std::vector<std::string>& words) { drawSheet(words[0], words[1]); });
}
