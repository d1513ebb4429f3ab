// WAV files of 16 bits: written for the game's sounds, which are mono, and for a score in the making; sounds are read
// back by the measuring tool and the tests.
#pragma once

#include <filesystem>

#include "audio/synth/signal.h"

namespace vandrel::art {

// Writes `signal` at 44,100 frames a second, rounded to the nearest of 65,536 steps; beyond full scale is clipped.
// Folders are made as needed. Throws std::runtime_error with the path when the file cannot be written.
void writeWav(const std::filesystem::path& path, const Signal& signal);
void writeWav(const std::filesystem::path& path, const StereoSignal& signal);

// Reads what writeWav wrote for one channel. Throws std::runtime_error with the path for anything else.
Signal readMonoWav(const std::filesystem::path& path);

}  // namespace vandrel::art
