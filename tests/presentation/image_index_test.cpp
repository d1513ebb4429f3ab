#include "presentation/image_index.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <stdexcept>
#include <string>

#include "shell/shell_test_tools.h"

namespace vandrel {
namespace {

namespace fs = std::filesystem;

class ImageIndexTest : public ::testing::Test {
  protected:
    void touch(const std::string& path) const {
        fs::create_directories((root_ / path).parent_path());
        std::ofstream(root_ / path) << "x";
    }
    std::string find(const std::string& name) const {
        return fs::relative(ImageIndex(root_).pathOf(name), root_).string();
    }

    test::ScratchDirectory folder_;
    fs::path root_ = folder_.path;
};

TEST_F(ImageIndexTest, SearchesSubdirectoriesOnly) {
    touch("Deep.png");
    touch("a/b/Deep.png");
    EXPECT_EQ(find("Deep"), "a/b/Deep.png");

    touch("Top.png");
    EXPECT_THAT([this] { find("Top"); }, testing::ThrowsMessage<std::runtime_error>("Image not found: Top"));
}

TEST_F(ImageIndexTest, TakesTheFirstDirectoryAndThereTheFirstExtension) {
    for (const char* extension : {".jpeg", ".jpg", ".png", ".bmp", ".tga"}) {
        touch(std::string("a/Many") + extension);
    }
    EXPECT_EQ(find("Many"), "a/Many.tga");

    touch("b/Twice.tga");
    touch("a/z/Twice.jpeg");
    touch("c/Twice.png");
    EXPECT_EQ(find("Twice"), "a/z/Twice.jpeg");

    touch("d/Parent.jpg");
    touch("d/child/Parent.tga");
    EXPECT_EQ(find("Parent"), "d/Parent.jpg");
}

TEST_F(ImageIndexTest, PassesOverWhatIsNoImageOfThatName) {
    touch("a/Name.gif");
    touch("a/Name2.png");
    touch("a/name.png");
    touch(".hidden/Name.png");
    fs::create_directories(root_ / "elsewhere/.inner");
    touch("elsewhere/.inner/Name.png");
    fs::create_directory_symlink(root_ / ".hidden", root_ / "link");
    EXPECT_THROW(find("Name"), std::runtime_error);
    EXPECT_EQ(find("Name2"), "a/Name2.png");
}

}  // namespace
}  // namespace vandrel
