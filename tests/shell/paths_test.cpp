#include "shell/paths.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <pwd.h>
#include <sys/stat.h>
#include <unistd.h>

#include <optional>
#include <string>
#include <tuple>

#include "shell/shell_test_tools.h"

namespace vandrel::test {
namespace {

TEST(PathsTest, TheEnvironmentSaysWhereTheDataLies) {
    const ScratchDirectory root;
    const std::string home = root.path + "/home of X";
    const std::tuple<const char*, std::optional<std::string>, std::string> cases[] = {
        {"the data home counts first", root.path + "/data", root.path + "/data/vandrel"},
        {"no data home", std::nullopt, home + "/.local/share/vandrel"},
        {"an empty data home", "", home + "/.local/share/vandrel"},
        {"a relative data home", "data", home + "/.local/share/vandrel"},
    };
    for (const auto& [what, xdgDataHome, expected] : cases) {
        SCOPED_TRACE(what);
        const ScopedEnvironment xdg("XDG_DATA_HOME", xdgDataHome);
        const ScopedEnvironment homeVariable("HOME", home);
        EXPECT_EQ(appDataPath(), expected);
        EXPECT_EQ(appDataDir(), expected);
        EXPECT_EQ(replaysDir(), expected + "/replays");
        EXPECT_TRUE(std::filesystem::is_directory(expected + "/replays"));
        EXPECT_EQ(appDataDir(), expected) << "it may be there already";
    }
    const ScopedEnvironment xdg("XDG_DATA_HOME", std::nullopt);
    const ScopedEnvironment noHome("HOME", std::nullopt);
    EXPECT_EQ(appDataPath(), std::string(getpwuid(getuid())->pw_dir) + "/.local/share/vandrel") << "the user database";
}

TEST(PathsTest, NewFoldersAreForTheUserAlone) {
    const ScratchDirectory root;
    const ScopedEnvironment xdg("XDG_DATA_HOME", root.path + "/a/b");
    replaysDir();
    for (const char* created : {"/a", "/a/b", "/a/b/vandrel", "/a/b/vandrel/replays"}) {
        struct stat status {};
        ASSERT_EQ(stat((root.path + created).c_str(), &status), 0) << created;
        EXPECT_EQ(status.st_mode & 0777U, 0700U) << created;
    }
}

TEST(PathsTest, AFolderThatCannotBeMadeNamesTheOperation) {
    const ScratchDirectory root;
    writeFile(root.path + "/file", "");
    const ScopedEnvironment xdg("XDG_DATA_HOME", root.path + "/file/deeper");
    EXPECT_THAT(appDataDir, testing::ThrowsMessage<std::filesystem::filesystem_error>(testing::AllOf(
                                testing::HasSubstr("create_directory"), testing::HasSubstr("Not a directory"))));
}

}  // namespace
}  // namespace vandrel::test
