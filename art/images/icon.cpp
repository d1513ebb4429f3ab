// game/vandrel.ico: the icon in four sizes.
#include <cstdint>
#include <cstdio>
#include <exception>
#include <filesystem>
#include <fstream>
#include <stdexcept>
#include <vector>

#include "images/icon_pictures.h"
#include "painter/png_file.h"

namespace {

using namespace vandrel::art;

void appendNumber(std::vector<std::uint8_t>& bytes, std::size_t value, int count) {
    for (int i = 0; i < count; ++i) {
        bytes.push_back(static_cast<std::uint8_t>(value >> (8 * i)));
    }
}

// The icon file: a directory of entries, then one PNG for each.
std::vector<std::uint8_t> iconFile(const std::vector<Canvas>& pictures) {
    std::vector<std::vector<std::uint8_t>> encoded;
    encoded.reserve(pictures.size());
    for (const Canvas& picture : pictures) {
        encoded.push_back(encodePng(picture));
    }
    std::vector<std::uint8_t> bytes;
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
    for (const std::vector<std::uint8_t>& picture : encoded) {
        bytes.insert(bytes.end(), picture.begin(), picture.end());
    }
    return bytes;
}

void writeIcon(const std::filesystem::path& path) {
    const Canvas small = smallIcon(), large = largeIcon();
    const std::vector<std::uint8_t> bytes = iconFile({small, large, small.scaled(3), large.scaled(8)});
    if (path.has_parent_path()) {
        std::filesystem::create_directories(path.parent_path());
    }
    std::ofstream file(path, std::ios::binary | std::ios::trunc);
    file.write(reinterpret_cast<const char*>(bytes.data()), static_cast<std::streamsize>(bytes.size()));
    file.close();
    if (!file) {
        throw std::runtime_error("Could not write " + path.string());
    }
}

}  // namespace

int main(int argc, char** argv) {
    if (argc != 2) {
        std::fprintf(stderr, "usage: %s FILE\n", argv[0]);
        return 2;
    }
    try {
        writeIcon(argv[1]);
    } catch (const std::exception& error) {
        std::fprintf(stderr, "%s: %s\n", argv[0], error.what());
        return 1;
    }
    return 0;
}
