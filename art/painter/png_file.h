// PNG files from canvases and back. The bytes depend on the pixels alone (no time stamp, fixed filter and compression),
// so a build repeated gives the same files.
#pragma once

#include <cstdint>
#include <filesystem>
#include <vector>

#include "painter/canvas.h"

namespace vandrel::art {

// The file's bytes. Throws std::runtime_error when the library refuses.
std::vector<std::uint8_t> encodePng(const Canvas& canvas);
// Writes the file, making its directory if need be. Throws std::runtime_error with the path when it cannot be written.
void writePng(const Canvas& canvas, const std::filesystem::path& path);
// Reads any PNG as eight bits a channel with alpha. Throws std::runtime_error with the path when it is none.
Canvas readPng(const std::filesystem::path& path);

}  // namespace vandrel::art
