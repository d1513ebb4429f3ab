// Compression of verification texts, in memory, with bounds that keep a forged file from eating it.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace vandrel {

// One gzip member that holds `bytes`. Throws std::runtime_error above 2,000,000,000 bytes, or if the compressor fails.
std::string gzipCompress(std::string_view bytes);

// The most that is ever decompressed, in bytes.
inline constexpr std::size_t largestDecompressed = 1'000'000'000;

struct GzipContents {
    std::string bytes;
    bool whole = false;    // the member's end was there, its check too
    std::size_t left = 0;  // bytes behind the member
};

// What the gzip member, or zlib stream, holds. A member that is cut short gives what can be had of it. Throws
// std::runtime_error for more bytes than half of `limit`, or that would come to more than `limit`, and with the
// library's own text for damaged ones.
GzipContents gzipUnpack(std::string_view bytes, std::size_t limit = largestDecompressed);
// Its bytes alone.
std::string gzipDecompress(std::string_view bytes, std::size_t limit = largestDecompressed);

}  // namespace vandrel
