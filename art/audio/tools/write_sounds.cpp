// Writes one family of sounds: the build makes this program once for each, with the family's name as a definition.
// Usage: PROGRAM FOLDER
#include <fmt/format.h>

#include <filesystem>

#include "audio/sounds/sound.h"
#include "audio/synth/wav_file.h"
#include "files/program.h"

int main(int argc, char** argv) {
    return vandrel::art::runProgram(argc, argv, 1, 1, "FOLDER", [](const std::vector<std::string>& words) {
        for (const vandrel::art::Sound& sound : vandrel::art::VANDREL_SOUND_FAMILY()) {
            vandrel::art::writeWav(std::filesystem::path(words[0]) / fmt::format("{}.wav", sound.name), sound.make());
        }
    });
}
