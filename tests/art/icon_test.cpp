// The icon of the window, as the game will find it.
#include <gtest/gtest.h>

#include <cstring>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <vector>

namespace vandrel::art {
namespace {

TEST(Icon, HoldsFourPictures) {
    std::ifstream file(std::filesystem::path(VANDREL_GAME_DIR) / "vandrel.ico", std::ios::binary);
    const std::vector<char> bytes{std::istreambuf_iterator<char>(file), {}};
    ASSERT_GT(bytes.size(), 6U + 4 * 16);
    const auto byteAt = [&](std::size_t index) {
        return static_cast<unsigned>(static_cast<unsigned char>(bytes[index]));
    };
    EXPECT_EQ(byteAt(2), 1U);
    EXPECT_EQ(byteAt(4), 4U);
    std::vector<unsigned> sides;
    for (std::size_t entry = 0; entry < 4; ++entry) {
        const std::size_t at = 6 + entry * 16;
        sides.push_back(byteAt(at));
        EXPECT_EQ(byteAt(at + 1), byteAt(at));
        const std::size_t length = byteAt(at + 8) + byteAt(at + 9) * 256 + byteAt(at + 10) * 65536;
        const std::size_t offset = byteAt(at + 12) + byteAt(at + 13) * 256 + byteAt(at + 14) * 65536;
        ASSERT_LE(offset + length, bytes.size());
        EXPECT_EQ(std::memcmp(bytes.data() + offset, "\x89PNG\r\n", 6), 0) << entry;
    }
    EXPECT_EQ(sides, (std::vector<unsigned>{16, 32, 48, 0})) << "0 stands for 256";
}

}  // namespace
}  // namespace vandrel::art
