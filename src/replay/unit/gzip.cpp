#include "replay/unit/gzip.h"

#include <zlib.h>

#include <cstddef>
#include <memory>
#include <stdexcept>

namespace vandrel {

namespace {

constexpr std::size_t largestInput = 2'000'000'000;
constexpr int gzipWindowBits = 15 + 16;
constexpr int anyWrappingWindowBits = 15 + 32;
constexpr int memoryLevel = 8;
constexpr std::size_t spareOutput = 1024;
constexpr const char* inputTooLarge = "size may use more memory than intended when decompressing";
constexpr const char* outputTooLarge = "size of output string will use more memory then intended when decompressing";

// The library takes its input by a pointer to what it never writes.
void setInput(z_stream& stream, std::string_view bytes) {
    stream.next_in = reinterpret_cast<Bytef*>(const_cast<char*>(bytes.data()));
    stream.avail_in = static_cast<uInt>(bytes.size());
}

// Gives the stream the rest of `output` to write to.
void setOutput(z_stream& stream, std::string& output) {
    stream.next_out = reinterpret_cast<Bytef*>(output.data()) + stream.total_out;
    stream.avail_out = static_cast<uInt>(output.size() - stream.total_out);
}

std::string messageOf(const z_stream& stream, int result) {
    return stream.msg != nullptr ? stream.msg : zError(result);
}

}  // namespace

std::string gzipCompress(std::string_view bytes) {
    if (bytes.size() > largestInput) {
        throw std::runtime_error(inputTooLarge);
    }
    z_stream stream{};
    if (deflateInit2(&stream, Z_DEFAULT_COMPRESSION, Z_DEFLATED, gzipWindowBits, memoryLevel, Z_DEFAULT_STRATEGY) !=
        Z_OK) {
        throw std::runtime_error("deflate init failed");
    }
    const std::unique_ptr<z_stream, int (*)(z_stream*)> end(&stream, deflateEnd);
    setInput(stream, bytes);
    std::string output;
    int result = Z_OK;
    while (result == Z_OK) {
        output.resize(output.size() + bytes.size() / 2 + spareOutput);
        setOutput(stream, output);
        result = deflate(&stream, Z_FINISH);
    }
    if (result != Z_STREAM_END) {
        throw std::runtime_error(messageOf(stream, result));
    }
    output.resize(stream.total_out);
    return output;
}

GzipContents gzipUnpack(std::string_view bytes, std::size_t limit) {
    if (bytes.size() > limit || bytes.size() * 2 > limit) {
        throw std::runtime_error(inputTooLarge);
    }
    z_stream stream{};
    if (inflateInit2(&stream, anyWrappingWindowBits) != Z_OK) {
        throw std::runtime_error("inflate init failed");
    }
    const std::unique_ptr<z_stream, int (*)(z_stream*)> end(&stream, inflateEnd);
    setInput(stream, bytes);
    GzipContents contents;
    do {
        if (contents.bytes.size() + bytes.size() * 2 > limit) {
            throw std::runtime_error(outputTooLarge);
        }
        contents.bytes.resize(contents.bytes.size() + bytes.size() * 2);
        setOutput(stream, contents.bytes);
        const int result = inflate(&stream, Z_FINISH);
        if (result != Z_OK && result != Z_STREAM_END && result != Z_BUF_ERROR) {
            throw std::runtime_error(messageOf(stream, result));
        }
        contents.whole = result == Z_STREAM_END;
    } while (!contents.whole && stream.avail_out == 0 && !bytes.empty());
    contents.bytes.resize(stream.total_out);
    contents.left = stream.avail_in;
    return contents;
}

std::string gzipDecompress(std::string_view bytes, std::size_t limit) {
    return gzipUnpack(bytes, limit).bytes;
}

}  // namespace vandrel
