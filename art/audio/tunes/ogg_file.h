// Ogg Vorbis files: the tunes as the game streams them. Read back by the measuring tool and the tests.
#pragma once

#include <filesystem>
#include <string>

#include "audio/synth/signal.h"

namespace vandrel::art {

// Writes `signal` with Vorbis at quality 4.5 and the title as its only remark. The same signal gives the same bytes.
// Folders are made as needed. Throws std::runtime_error with the path when the encoder or the disk refuses.
void writeOgg(const std::filesystem::path& path, const StereoSignal& signal, const std::string& title);

// Decodes a stereo file of 44,100 frames a second. Throws std::runtime_error with the path for anything else.
StereoSignal readOgg(const std::filesystem::path& path);

}  // namespace vandrel::art
