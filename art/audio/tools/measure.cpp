// Prints what can be measured of sounds (WAV) and tunes (Ogg): length, peak, direct current, where it starts, how it
// ends, loudness and the step at the loop's seam. Usage: measure FILE...
#include <fmt/format.h>

#include <algorithm>
#include <cmath>
#include <filesystem>
#include <limits>
#include <numeric>

#include "audio/synth/wav_file.h"
#include "audio/tunes/loudness.h"
#include "audio/tunes/ogg_file.h"
#include "files/program.h"

namespace {

using vandrel::art::Signal;

double decibels(double factor) {
    return 20.0 * std::log10(std::max(factor, 1e-9));
}

void measureSound(const std::filesystem::path& path) {
    const Signal sound = vandrel::art::readMonoWav(path);
    const double peak = vandrel::art::peakOf(sound);
    const auto heard =
        std::find_if(sound.begin(), sound.end(), [&](double value) { return std::abs(value) > 0.02 * peak; });
    const double start = static_cast<double>(heard - sound.begin()) / vandrel::art::sampleRate;
    const double mean = std::accumulate(sound.begin(), sound.end(), 0.0) / static_cast<double>(sound.size());
    const Signal end(sound.end() - std::min<std::ptrdiff_t>(220, std::ssize(sound)), sound.end());
    fmt::print("{:<24} {:7.3f} s  peak {:6.2f} dB  mean {:9.6f}  heard after {:5.2f} ms  last 5 ms {:6.1f} dB\n",
               path.filename().string(), static_cast<double>(sound.size()) / vandrel::art::sampleRate, decibels(peak),
               mean, start * 1000.0, decibels(vandrel::art::peakOf(end)));
}

void measureTune(const std::filesystem::path& path) {
    const vandrel::art::StereoSignal tune = vandrel::art::readOgg(path);
    const double seam =
        std::max(std::abs(tune.left.back() - tune.left.front()), std::abs(tune.right.back() - tune.right.front()));
    fmt::print("{:<24} {:>9} frames  {:6.2f} LUFS  peak {:6.2f} dB  seam {:.4f}\n", path.filename().string(),
               tune.left.size(), vandrel::art::integratedLoudness(tune),
               decibels(std::max(vandrel::art::peakOf(tune.left), vandrel::art::peakOf(tune.right))), seam);
}

}  // namespace

int main(int argc, char** argv) {
    constexpr std::size_t anyNumber = std::numeric_limits<std::size_t>::max();
    return vandrel::art::runProgram(argc, argv, 1, anyNumber, "FILE...", [](const std::vector<std::string>& words) {
        for (const std::string& word : words) {
            const std::filesystem::path path(word);
            if (path.extension() == ".ogg") {
                measureTune(path);
            } else {
                measureSound(path);
            }
        }
    });
}
