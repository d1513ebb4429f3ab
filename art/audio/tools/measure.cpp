// Prints what can be measured of sounds (WAV) and tunes (Ogg): length, peak, direct current, where it starts, how it
// ends, loudness and the step at the loop's seam. Usage: measure FILE...
#include <fmt/format.h>

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <exception>
#include <filesystem>
#include <numeric>

#include "audio/synth/wav_file.h"
#include "audio/tunes/loudness.h"
#include "audio/tunes/ogg_file.h"

namespace {

using vandrel::Signal;

double decibels(double factor) {
    return 20.0 * std::log10(std::max(factor, 1e-9));
}

void measureSound(const std::filesystem::path& path) {
    const Signal sound = vandrel::readMonoWav(path);
    const double peak = vandrel::peakOf(sound);
    const auto heard =
        std::find_if(sound.begin(), sound.end(), [&](double value) { return std::abs(value) > 0.02 * peak; });
    const double start = static_cast<double>(heard - sound.begin()) / vandrel::sampleRate;
    const double mean = std::accumulate(sound.begin(), sound.end(), 0.0) / static_cast<double>(sound.size());
    const Signal end(sound.end() - std::min<std::ptrdiff_t>(220, std::ssize(sound)), sound.end());
    fmt::print("{:<24} {:7.3f} s  peak {:6.2f} dB  mean {:9.6f}  heard after {:5.2f} ms  last 5 ms {:6.1f} dB\n",
               path.filename().string(), static_cast<double>(sound.size()) / vandrel::sampleRate, decibels(peak), mean,
               start * 1000.0, decibels(vandrel::peakOf(end)));
}

void measureTune(const std::filesystem::path& path) {
    const vandrel::StereoSignal tune = vandrel::readOgg(path);
    const double seam =
        std::max(std::abs(tune.left.back() - tune.left.front()), std::abs(tune.right.back() - tune.right.front()));
    fmt::print("{:<24} {:>9} frames  {:6.2f} LUFS  peak {:6.2f} dB  seam {:.4f}\n", path.filename().string(),
               tune.left.size(), vandrel::integratedLoudness(tune),
               decibels(std::max(vandrel::peakOf(tune.left), vandrel::peakOf(tune.right))), seam);
}

}  // namespace

int main(int argc, char** argv) try {
    for (int i = 1; i < argc; ++i) {
        const std::filesystem::path path(argv[i]);
        if (path.extension() == ".ogg") {
            measureTune(path);
        } else {
            measureSound(path);
        }
    }
    return 0;
} catch (const std::exception& error) {
    fmt::print(stderr, "{}\n", error.what());
    return 1;
}
