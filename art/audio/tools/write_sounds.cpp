// Writes one family of sounds: the build makes this program once for each, with the family's name as a definition.
// Usage: PROGRAM FOLDER
#include <fmt/format.h>

#include <cstdio>
#include <exception>
#include <filesystem>

#include "audio/sounds/sound.h"
#include "audio/synth/wav_file.h"

int main(int argc, char** argv) try {
    if (argc != 2) {
        fmt::print(stderr, "usage: {} FOLDER\n", argv[0]);
        return 2;
    }
    for (const vandrel::Sound& sound : vandrel::VANDREL_SOUND_FAMILY()) {
        vandrel::writeWav(std::filesystem::path(argv[1]) / fmt::format("{}.wav", sound.name), sound.make());
    }
    return 0;
} catch (const std::exception& error) {
    fmt::print(stderr, "{}\n", error.what());
    return 1;
}
