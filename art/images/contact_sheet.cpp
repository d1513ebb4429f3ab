// Draws every sprite four times enlarged with its name under it, on a middle grey-green like a floor, for looking at.
//
//     draw_contact_sheet IMAGES_DIRECTORY SHEET.png
#include <algorithm>
#include <filesystem>
#include <string>
#include <vector>

#include "files/program.h"
#include "painter/letters.h"
#include "painter/png_file.h"

namespace {

using namespace vandrel::art;
namespace fs = std::filesystem;

constexpr int scale = 4;
constexpr int cellWidth = 152, cellHeight = 148;
constexpr int columns = 14;
constexpr Colour floorColour{57, 72, 57};

struct Sprite {
    std::string name;
    Canvas canvas;
};

// The number at the end of a name sorts as a number: Bomb9 before Bomb10.
std::string sortKey(const std::string& name) {
    std::string key;
    for (std::size_t i = 0; i < name.size();) {
        std::size_t end = i;
        while (end < name.size() && name[end] >= '0' && name[end] <= '9') {
            ++end;
        }
        if (end == i) {
            key += name[i++];
        } else {
            key += std::string(4 - std::min<std::size_t>(4, end - i), '0') + name.substr(i, end - i);
            i = end;
        }
    }
    return key;
}

std::vector<Sprite> spritesIn(const fs::path& directory) {
    std::vector<fs::path> files;
    for (const fs::directory_entry& entry : fs::directory_iterator(directory)) {
        if (entry.path().extension() == ".png") {
            files.push_back(entry.path());
        }
    }
    std::sort(files.begin(), files.end(),
              [](const fs::path& a, const fs::path& b) { return sortKey(a.stem()) < sortKey(b.stem()); });
    std::vector<Sprite> sprites;
    sprites.reserve(files.size());
    for (const fs::path& file : files) {
        sprites.push_back({file.stem().string(), readPng(file)});
    }
    return sprites;
}

void drawSheet(const fs::path& images, const fs::path& file) {
    // The logos are shown at their own size, being large already.
    std::vector<Sprite> small, large;
    for (const char* directory : {"arena", "powerups", "bodies", "heads", "logo"}) {
        for (Sprite& sprite : spritesIn(images / directory)) {
            (sprite.canvas.width() > 32 ? large : small).push_back(std::move(sprite));
        }
    }
    const int rows = (static_cast<int>(small.size()) + columns - 1) / columns;
    constexpr int largeHeight = 190;
    Canvas sheet(columns * cellWidth, rows * (cellHeight + 44) + largeHeight, floorColour);
    int x = 12;
    for (const Sprite& sprite : large) {
        sheet.draw(sprite.canvas, x, 12);
        writeText(sheet, x, 176, sprite.name, palette::white);
        x += std::max(sprite.canvas.width(), textWidth(sprite.name)) + 24;
    }
    for (std::size_t i = 0; i < small.size(); ++i) {
        const int left = static_cast<int>(i) % columns * cellWidth + 12;
        const int bottom = largeHeight + static_cast<int>(i) / columns * (cellHeight + 44) + 178;
        sheet.draw(small[i].canvas.scaled(scale), left, bottom - small[i].canvas.height() * scale);
        writeText(sheet, left, bottom + 3, small[i].name, palette::white);
    }
    writePng(sheet, file);
}

}  // namespace

int main(int argc, char** argv) {
    return runProgram(argc, argv, 2, 2, "IMAGES_DIRECTORY SHEET.png",
                      [](const std::vector<std::string>& words) { drawSheet(words[0], words[1]); });
}
