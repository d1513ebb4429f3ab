// Plays a score into a file: Ogg Vorbis as the game wants it, or WAV for listening while a score is being written.
// Usage: write_tune SCORE FILE.ogg|FILE.wav
#include <fmt/format.h>

#include <cstdio>
#include <exception>
#include <filesystem>

#include "audio/synth/wav_file.h"
#include "audio/tunes/ogg_file.h"
#include "audio/tunes/render.h"

int main(int argc, char** argv) try {
    if (argc != 3) {
        fmt::print(stderr, "usage: {} SCORE FILE.ogg|FILE.wav\n", argv[0]);
        return 2;
    }
    const vandrel::Score score = vandrel::readScore(argv[1]);
    const std::filesystem::path target(argv[2]);
    const vandrel::StereoSignal tune = vandrel::renderScore(score);
    if (target.extension() == ".wav") {
        vandrel::writeWav(target, tune);
    } else {
        vandrel::writeOgg(target, tune, score.title);
    }
    return 0;
} catch (const std::exception& error) {
    fmt::print(stderr, "{}\n", error.what());
    return 1;
}
