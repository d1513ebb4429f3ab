// A prize is a pixel picture of 150 x 112, shown eight times enlarged like a framed photograph. Every recipe in this
// folder paints scenes of that size; write_prizes.cpp frames, enlarges and writes them.
#pragma once

#include <filesystem>

#include "painter/canvas.h"

namespace vandrel::art {

inline constexpr int photoWidth = 150;
inline constexpr int photoHeight = 112;
inline constexpr int photoScale = 8;
// The frame covers this many pixels of the scene on each side.
inline constexpr int frameThickness = 4;

// An empty scene.
Canvas newScene(Colour fill);
// The scene with the corners darkened as by an old lens, and the frame laid over its rim.
Canvas framed(const Canvas& scene);
// Writes the framed scene, enlarged, without an alpha channel. The rows repeat, so such a file is small and quick to
// write. Throws std::runtime_error with the path when it cannot be written.
void writePhoto(const Canvas& scene, const std::filesystem::path& path);

}  // namespace vandrel::art
