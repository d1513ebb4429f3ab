// Compression of verification texts, in memory, with bounds that keep a forged file from eating it.
#pragma once

#include <string>
#include <string_view>

namespace vandrel {

// One gzip member that holds `bytes`. Throws std::runtime_error above 2,000,000,000 bytes, or if the compressor cannot
// start.
std::string gzipCompress(std::string_view bytes);

// What the gzip member, or zlib stream, holds. A member that is cut short gives what can be had of it. Throws
// std::runtime_error for bytes above half of 1,000,000,000 or that would come to more than that, and with the library's
// own text for damaged ones.
std::string gzipDecompress(std::string_view bytes);

}  // namespace vandrel
