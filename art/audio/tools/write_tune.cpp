// Plays a score into a file: Ogg Vorbis as the game wants it, or WAV for listening while a score is being written.
// Usage: write_tune SCORE FILE.ogg|FILE.wav
#include <filesystem>

#include "audio/synth/wav_file.h"
#include "audio/tunes/ogg_file.h"
#include "audio/tunes/render.h"
#include "files/program.h"

int main(int argc, char** argv) {
    return vandrel::art::runProgram(argc, argv, 2, 2, "SCORE FILE.ogg|FILE.wav",
                                    [](const std::vector<std::string>& words) {
                                        const vandrel::art::Score score = vandrel::art::readScore(words[0]);
                                        const std::filesystem::path target(words[1]);
                                        const vandrel::art::StereoSignal tune = vandrel::art::renderScore(score);
                                        if (target.extension() == ".wav") {
                                            vandrel::art::writeWav(target, tune);
                                        } else {
                                            vandrel::art::writeOgg(target, tune, score.title);
                                        }
                                    });
}
