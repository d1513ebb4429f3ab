// PNG files from canvases and back. The bytes depend on the pixels alone (no time stamp, fixed filter and compression),
// so a build repeated gives the same files.
#pragma once

#include <cstdint>
#include <filesystem>
#include <functional>
#include <string>
#include <vector>

#include "painter/canvas.h"

namespace vandrel::art {

// The file's bytes. Throws std::runtime_error when the library refuses.
std::string encodePng(const Canvas& canvas);
// Writes the file, making its directory if need be. Throws std::runtime_error with the path when it cannot be written.
void writePng(const Canvas& canvas, const std::filesystem::path& path);
// Reads any PNG as eight bits a channel with alpha. Throws std::runtime_error with the path when it is none.
Canvas readPng(const std::filesystem::path& path);

// The encoder itself, for pictures that are no canvas of their own.
enum class PngFilter { None, Up, All };
struct PngForm {
    int width;
    int height;
    bool alpha;
    PngFilter filter;
};
// `appendRow` appends the bytes of row `y` to the empty `row`: red, green, blue and, where the form has it, alpha of
// each pixel.
std::string encodePng(const PngForm& form, const std::function<void(int y, std::vector<std::uint8_t>& row)>& appendRow);

}  // namespace vandrel::art
