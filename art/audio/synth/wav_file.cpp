#include "audio/synth/wav_file.h"

#include <fmt/format.h>

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <sndfile.hh>
#include <stdexcept>
#include <vector>

namespace vandrel::art {

namespace {

constexpr int format = SF_FORMAT_WAV | SF_FORMAT_PCM_16;

std::int16_t toStep(double value) {
    return static_cast<std::int16_t>(std::lround(std::clamp(value * 32768.0, -32768.0, 32767.0)));
}

void writeSteps(const std::filesystem::path& path, int channels, const std::vector<std::int16_t>& steps) {
    if (path.has_parent_path()) {
        std::filesystem::create_directories(path.parent_path());
    }
    SndfileHandle file(path.string(), SFM_WRITE, format, channels, sampleRate);
    const auto count = static_cast<sf_count_t>(steps.size());
    if (file.error() != SF_ERR_NO_ERROR || file.write(steps.data(), count) != count) {
        throw std::runtime_error(fmt::format("cannot write {}: {}", path.string(), file.strError()));
    }
}

}  // namespace

void writeWav(const std::filesystem::path& path, const Signal& signal) {
    std::vector<std::int16_t> steps;
    std::ranges::transform(signal, std::back_inserter(steps), toStep);
    writeSteps(path, 1, steps);
}

void writeWav(const std::filesystem::path& path, const StereoSignal& signal) {
    std::vector<std::int16_t> steps;
    for (std::size_t frame = 0; frame < signal.left.size(); ++frame) {
        steps.push_back(toStep(signal.left[frame]));
        steps.push_back(toStep(signal.right[frame]));
    }
    writeSteps(path, 2, steps);
}

Signal readMonoWav(const std::filesystem::path& path) {
    SndfileHandle file(path.string());
    if (file.error() != SF_ERR_NO_ERROR || file.format() != format || file.channels() != 1 ||
        file.samplerate() != sampleRate || file.frames() == 0) {
        throw std::runtime_error(
            fmt::format("{} is not a mono WAV file of 16 bits and 44,100 frames a second", path.string()));
    }
    std::vector<std::int16_t> steps(static_cast<std::size_t>(file.frames()));
    steps.resize(static_cast<std::size_t>(file.readf(steps.data(), file.frames())));
    Signal result;
    std::ranges::transform(steps, std::back_inserter(result), [](std::int16_t step) { return step / 32768.0; });
    return result;
}

}  // namespace vandrel::art
