// game/vandrel.ico: the icon in four sizes.
#include <cstdint>
#include <filesystem>
#include <string>
#include <vector>

#include "files/program.h"
#include "files/whole_file.h"
#include "images/icon_pictures.h"
#include "painter/png_file.h"

namespace {

using namespace vandrel::art;

void appendNumber(std::string& bytes, std::size_t value, int count) {
    for (int i = 0; i < count; ++i) {
        bytes.push_back(static_cast<char>(static_cast<std::uint8_t>(value >> (8 * i))));
    }
}

// The icon file: a directory of entries, then one PNG for each.
std::string iconFile(const std::vector<Canvas>& pictures) {
    std::vector<std::string> encoded;
    encoded.reserve(pictures.size());
    for (const Canvas& picture : pictures) {
        encoded.push_back(encodePng(picture));
    }
    std::string bytes;
    appendNumber(bytes, 0, 2);
    appendNumber(bytes, 1, 2);
    appendNumber(bytes, pictures.size(), 2);
    std::size_t offset = 6 + 16 * pictures.size();
    for (std::size_t i = 0; i < pictures.size(); ++i) {
        // A side of 256 is written as 0.
        appendNumber(bytes, static_cast<std::size_t>(pictures[i].width()) % 256, 1);
        appendNumber(bytes, static_cast<std::size_t>(pictures[i].height()) % 256, 1);
        appendNumber(bytes, 0, 2);
        appendNumber(bytes, 1, 2);
        appendNumber(bytes, 32, 2);
        appendNumber(bytes, encoded[i].size(), 4);
        appendNumber(bytes, offset, 4);
        offset += encoded[i].size();
    }
    for (const std::string& picture : encoded) {
        bytes += picture;
    }
    return bytes;
}

void writeIcon(const std::filesystem::path& path) {
    const Canvas small = smallIcon(), large = largeIcon();
    writeWholeFile(path, iconFile({small, large, small.scaled(3), large.scaled(8)}));
}

}  // namespace

int main(int argc, char** argv) {
    return runProgram(argc, argv, 1, 1, "FILE", [](const std::vector<std::string>& words) { writeIcon(words[0]); });
}
