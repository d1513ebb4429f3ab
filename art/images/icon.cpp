// game/vandrel.ico: a face under a red cap before a bomb, in four sizes. The two small ones are maps of their own,
// since a reduced picture of that size is mud.
#include <cstdint>
#include <cstdio>
#include <exception>
#include <filesystem>
#include <fstream>
#include <stdexcept>
#include <vector>

#include "painter/pixel_map.h"
#include "painter/png_file.h"
#include "painter/shapes.h"

namespace {

using namespace vandrel::art;

constexpr Colour cap{232, 64, 48};
constexpr Colour capShade{168, 40, 40};

Canvas smallIcon() {
    static const Legend legend{{'k', palette::ink},
                               {'r', cap},
                               {'d', capShade},
                               {'s', palette::skinLight},
                               {'m', palette::skinMiddle},
                               {'w', palette::white},
                               {'y', palette::fireYellow},
                               {'o', palette::fireOrange}};
    return canvasFromMap(legend, {"............o.y.", "....kkkkkk...yo.", "..kkrrrrrrkkywyo", ".krrrrrrrrrdkoy.",
                                  ".krwrrrrrrrdkk.o", "krrwrrrrrrrrdk..", "krrrrrrrrrrrdk..", "kddddddddddddk..",
                                  "kkkkkkkkkkkkkkk.", ".kswwkswwksmkk..", ".kswkksswkksmkk.", ".kswkksswkksmkk.",
                                  ".kssssssssssmk..", "..ksskkkkssmk...", "...kkssssmkk....", ".....kkkkk......"});
}

Canvas largeIcon() {
    Canvas canvas(32, 32);
    // The bomb behind.
    fill(canvas, circle(19, 20, 11.4f), palette::steelDark);
    fill(canvas, circle(19, 20, 10.4f), palette::ink);
    fill(canvas, curve({{25, 11}, {26, 7}, {28, 5}}, 1.7f), palette::ink);
    fill(canvas, curve({{25, 11}, {26, 7}, {28, 5}}, 0.8f), palette::bone);
    fill(canvas, star(27.5f, 4.5f, 8, 4.4f, 2.0f), palette::fireOrange);
    fill(canvas, star(27.5f, 4.5f, 4, 3.6f, 1.4f), palette::fireYellow);
    fill(canvas, circle(27.5f, 4.5f, 1.1f), palette::white);
    // The face before it.
    Canvas head(32, 32);
    fillLit(head, ellipse(12.5f, 19, 10.4f, 10.6f), palette::skin, 6);
    for (const int x : {6, 14}) {
        fill(head, rectangle(static_cast<float>(x), 17, 5, 7, 2), palette::white);
        head.fillRect(x + 2, 19, 3, 4, palette::ink);
        head.set(x + 2, 19, palette::white);
    }
    head.line(10, 26, 14, 26, palette::ink);
    head.set(15, 25, palette::ink);
    fillLit(head, intersect(ellipse(12.5f, 14, 11, 11), rectangle(0, 0, 32, 14)), {{255, 128, 104}, cap, capShade}, 6);
    fill(head, rectangle(1.2f, 12.4f, 23, 4.6f, 2), palette::ink);
    fill(head, rectangle(2, 13, 21.4f, 3, 1.4f), cap);
    fill(head, rectangle(2, 15, 21, 1), capShade);
    head.outline();
    canvas.draw(head);
    return canvas;
}

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
