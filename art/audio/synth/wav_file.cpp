#include "audio/synth/wav_file.h"

#include <fmt/format.h>

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <fstream>
#include <iterator>
#include <stdexcept>
#include <string>

#include "files/whole_file.h"

namespace vandrel {

namespace {

constexpr std::size_t headerSize = 44;

void appendNumber(std::string& bytes, std::uint32_t value, int count) {
    for (int i = 0; i < count; ++i) {
        bytes.push_back(static_cast<char>(value >> (8 * i) & 0xFFU));
    }
}

std::uint32_t numberAt(const std::string& bytes, std::size_t place, std::size_t count) {
    std::uint32_t value = 0;
    for (std::size_t i = 0; i < count; ++i) {
        value |= static_cast<std::uint32_t>(static_cast<unsigned char>(bytes[place + i])) << (8 * i);
    }
    return value;
}

std::string header(std::uint32_t frames, std::uint32_t channels) {
    const std::uint32_t frameBytes = channels * 2;
    std::string bytes = "RIFF";
    appendNumber(bytes, 36 + frames * frameBytes, 4);
    bytes += "WAVEfmt ";
    appendNumber(bytes, 16, 4);
    appendNumber(bytes, 1, 2);  // plain numbers, not compressed
    appendNumber(bytes, channels, 2);
    appendNumber(bytes, sampleRate, 4);
    appendNumber(bytes, sampleRate * frameBytes, 4);
    appendNumber(bytes, frameBytes, 2);
    appendNumber(bytes, 16, 2);
    bytes += "data";
    appendNumber(bytes, frames * frameBytes, 4);
    return bytes;
}

void appendFrame(std::string& bytes, double value) {
    const auto step = static_cast<std::int32_t>(std::lround(std::clamp(value * 32768.0, -32768.0, 32767.0)));
    appendNumber(bytes, static_cast<std::uint32_t>(step), 2);
}

}  // namespace

void writeWav(const std::filesystem::path& path, const Signal& signal) {
    std::string bytes = header(static_cast<std::uint32_t>(signal.size()), 1);
    for (const double value : signal) {
        appendFrame(bytes, value);
    }
    art::writeWholeFile(path, bytes);
}

void writeWav(const std::filesystem::path& path, const StereoSignal& signal) {
    std::string bytes = header(static_cast<std::uint32_t>(signal.left.size()), 2);
    for (std::size_t frame = 0; frame < signal.left.size(); ++frame) {
        appendFrame(bytes, signal.left[frame]);
        appendFrame(bytes, signal.right[frame]);
    }
    art::writeWholeFile(path, bytes);
}

Signal readMonoWav(const std::filesystem::path& path) {
    std::ifstream file(path, std::ios::binary);
    const std::string bytes{std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
    const auto frames = bytes.size() < headerSize ? 0 : (bytes.size() - headerSize) / 2;
    if (frames == 0 || bytes.compare(0, headerSize, header(static_cast<std::uint32_t>(frames), 1)) != 0) {
        throw std::runtime_error(
            fmt::format("{} is not a mono WAV file of 16 bits and 44,100 frames a second", path.string()));
    }
    Signal result(frames);
    for (std::size_t frame = 0; frame < frames; ++frame) {
        result[frame] = static_cast<std::int16_t>(numberAt(bytes, headerSize + 2 * frame, 2)) / 32768.0;
    }
    return result;
}

}  // namespace vandrel
