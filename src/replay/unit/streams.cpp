#include "replay/unit/streams.h"

#include <fmt/format.h>

#include <array>
#include <fstream>
#include <ios>
#include <stdexcept>
#include <string>

namespace vandrel {

namespace {

// Whether bytes could ever come from here. Asked on failure only: finding out what a stream is takes longer than a
// read.
bool isOpen(std::istream* stream) {
    const auto* file = dynamic_cast<std::ifstream*>(stream);
    return file == nullptr || file->is_open();
}

bool isOpen(std::ostream* stream) {
    const auto* file = dynamic_cast<std::ofstream*>(stream);
    return file == nullptr || file->is_open();
}

[[noreturn, gnu::cold]] void failToRead(std::istream* stream) {
    if (stream == nullptr || !isOpen(stream)) {
        throw std::runtime_error("File not open for reading");
    }
    stream->setstate(std::ios::eofbit | std::ios::failbit);
    throw std::ios_base::failure("end of file", std::make_error_code(std::io_errc::stream));
}

template <class Value>
[[noreturn, gnu::cold]] void failToWrite(std::ostream* stream, const Value& value) {
    if (stream == nullptr || !isOpen(stream)) {
        throw std::runtime_error(fmt::format("File not open for writing - data: {}", value));
    }
    stream->setstate(std::ios::badbit);
    throw std::ios_base::failure("write failed", std::make_error_code(std::io_errc::stream));
}

template <class Value>
void writeBytes(std::ostream* stream, const char* bytes, std::size_t count, const Value& value) {
    const auto size = static_cast<std::streamsize>(count);
    if (stream == nullptr || !stream->good() || stream->rdbuf()->sputn(bytes, size) != size) {
        failToWrite(stream, value);
    }
}

}  // namespace

std::uint8_t readByte(std::istream* stream) {
    using Traits = std::istream::traits_type;
    if (stream == nullptr) [[unlikely]] {
        failToRead(stream);
    }
    const Traits::int_type next = stream->rdbuf()->sbumpc();
    if (Traits::eq_int_type(next, Traits::eof())) [[unlikely]] {
        failToRead(stream);
    }
    return static_cast<std::uint8_t>(Traits::to_char_type(next));
}

bool readBool(std::istream* stream) {
    return readByte(stream) != 0;
}

int readSignedByte(std::istream* stream) {
    return static_cast<signed char>(readByte(stream));
}

int readInt(std::istream* stream) {
    std::uint32_t value = 0;
    for (int shift = 0; shift < 32; shift += 8) {
        value |= static_cast<std::uint32_t>(readByte(stream)) << shift;
    }
    return static_cast<int>(value);
}

void readMarker(std::istream* stream, std::string_view text) {
    std::string found;
    for (std::size_t i = 0; i < text.size(); ++i) {
        found += static_cast<char>(readByte(stream));
    }
    if (found != text) {
        throw std::runtime_error(fmt::format("matchedMarker {} failed:\n{}", text, found));
    }
}

void writeByte(std::ostream* stream, int value) {
    using Traits = std::ostream::traits_type;
    const char byte = static_cast<char>(static_cast<std::uint8_t>(value));
    if (stream == nullptr || !stream->good() || Traits::eq_int_type(stream->rdbuf()->sputc(byte), Traits::eof())) {
        failToWrite(stream, value);
    }
}

void writeBool(std::ostream* stream, bool value) {
    writeByte(stream, value ? 1 : 0);
}

void writeInt(std::ostream* stream, int value) {
    std::array<char, 4> bytes{};
    const auto bits = static_cast<std::uint32_t>(value);
    for (std::size_t i = 0; i < bytes.size(); ++i) {
        bytes[i] = static_cast<char>(static_cast<std::uint8_t>(bits >> (8 * i)));
    }
    writeBytes(stream, bytes.data(), bytes.size(), value);
}

void writeMarker(std::ostream* stream, std::string_view text) {
    writeBytes(stream, text.data(), text.size(), text);
}

void flushWritten(std::ostream* stream) {
    if (stream == nullptr || stream->rdbuf()->pubsync() != 0) {
        failToWrite(stream, "flush");
    }
}

long long replayInputPos(const PackagedReplayData& replayData) {
    return replayData.input == nullptr ? -1 : static_cast<long long>(replayData.input->tellg());
}

}  // namespace vandrel
