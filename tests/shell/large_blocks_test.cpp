#include "shell/large_blocks.h"

#include <gtest/gtest.h>
#include <malloc.h>

#include <cstddef>
#include <vector>

namespace vandrel {
namespace {

#if !defined(__SANITIZE_ADDRESS__) && !defined(__SANITIZE_THREAD__)
// The sanitizers have an allocator of their own.
TEST(LargeBlocks, StayApartBehindTheFirstThatWasFreed) {
    keepLargeBlocksApart();
    constexpr std::size_t first = 28U << 20U;
    constexpr std::size_t second = 24U << 20U;
    std::vector<char>(first, 'a');
    const std::size_t apart = mallinfo2().hblks;
    const std::vector<char> later(second, 'a');
    EXPECT_EQ(mallinfo2().hblks, apart + 1) << later.size();
}
#endif

}  // namespace
}  // namespace vandrel
