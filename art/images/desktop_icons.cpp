// The icons by which desktops show the installed game: PNG files from 16 to 256 pixels and one that scales, laid out as
// the icon theme wants them, <size>/apps/vandrel.<type>.
#include <array>
#include <filesystem>
#include <string>
#include <vector>

#include "files/program.h"
#include "files/whole_file.h"
#include "images/icon_pictures.h"
#include "painter/png_file.h"

namespace {

using namespace vandrel::art;

constexpr std::array<int, 7> sizes{16, 32, 48, 64, 96, 128, 256};

// The picture in squares: each run of one colour in a row is a rectangle of its own.
std::string scalable(const Canvas& picture) {
    std::string text = "<svg xmlns=\"http://www.w3.org/2000/svg\" viewBox=\"0 0 " + std::to_string(picture.width()) +
                       " " + std::to_string(picture.height()) + "\" shape-rendering=\"crispEdges\">\n";
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width();) {
            const Colour colour = picture.at(x, y);
            int end = x + 1;
            while (end < picture.width() && picture.at(end, y) == colour) {
                ++end;
            }
            if (colour.alpha != 0) {
                text += "<rect x=\"" + std::to_string(x) + "\" y=\"" + std::to_string(y) + "\" width=\"" +
                        std::to_string(end - x) + "\" height=\"1\" fill=\"rgb(" + std::to_string(colour.red) + "," +
                        std::to_string(colour.green) + "," + std::to_string(colour.blue) + ")\"/>\n";
            }
            x = end;
        }
    }
    return text + "</svg>\n";
}

void writeIcons(const std::filesystem::path& directory) {
    const Canvas small = smallIcon(), large = largeIcon();
    for (const int size : sizes) {
        const std::string side = std::to_string(size);
        const std::filesystem::path folder = directory / std::string(side).append("x").append(side) / "apps";
        const Canvas picture =
            size % large.width() == 0 ? large.scaled(size / large.width()) : small.scaled(size / small.width());
        writePng(picture, folder / "vandrel.png");
    }
    writeWholeFile(directory / "scalable" / "apps" / "vandrel.svg", scalable(large));
}

}  // namespace

int main(int argc, char** argv) {
    return runProgram(argc, argv, 1, 1, "DIRECTORY",
                      [](const std::vector<std::string>& words) { writeIcons(words[0]); });
}
