#include "shell/config.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <string>
#include <utility>

#include "shell/accessibility.h"
#include "shell/shell_test_tools.h"

namespace vandrel::test {
namespace {

class ConfigTest : public testing::Test {
  protected:
    void openWith(const std::string& text) {
        writeFile(path, text);
        openConfig(path);
    }

    ScratchDirectory data;
    const std::string path = data.path + "/vandrel.cfg";
};

constexpr const char* firstRunFile =
    "[video]\ncolourdepth=32\nsync=1\nwidth=0\nheight=0\nwindowed=0\nupdaterate=60\n"
    "[sound]\nsoundEffectsVolume=60\nmusicVolume=100\n"
    "[controls]\nmenuControlMode=2\nxinputDpadEnabled=1\n"
    "[other]\ndiagnostic=0\nreplayRecordingEnabled=1\nshowReplayTestOptions=0\nalwaysShowFPS=0\n";

TEST_F(ConfigTest, TheFirstRunWritesItsKeysAndReadsWriteNothing) {
    openConfig(path);
    EXPECT_EQ(fileText(path), firstRunFile);
    EXPECT_EQ(getConfigInt("video", "updaterate", 1), 60);
    EXPECT_FALSE(getConfigBool("video", "vsync", false));
    EXPECT_TRUE(getConfigBool("lootbox", "lootboxesEnabled", true));
    EXPECT_FALSE(hasConfigKey("lootbox", "catsEnabled"));
    AccessibilitySettings record;
    loadAccessibility(record);
    EXPECT_EQ(record, AccessibilitySettings());
    EXPECT_EQ(fileText(path), firstRunFile);
}

TEST_F(ConfigTest, AFileThatIsThereIsKeptAsItIs) {
    const std::string text = "# mine\n[video]\nvsync=1\n[other]\nautoRandomControls=1\n[lootbox]\nlootboxesEnabled=0\n";
    openWith(text);
    EXPECT_EQ(fileText(path), text);
    EXPECT_TRUE(getConfigBool("video", "vsync", false));
    EXPECT_TRUE(getConfigBool("other", "autoRandomControls", false));
    EXPECT_FALSE(getConfigBool("lootbox", "lootboxesEnabled", true));
    EXPECT_EQ(getConfigInt("video", "width", 640), 640) << "no first-run keys in an old file";
}

// The file holds photos and cash: it is never cut short.
TEST_F(ConfigTest, AFullDiskLeavesTheFileAsItWasAndIsLogged) {
    const std::string text = "[lootbox]\ncash=17\n";
    openWith(text);
    std::filesystem::create_symlink("/dev/full", path + ".new");  // what is written beside it first
    CapturedLog log;
    setConfigInt("lootbox", "cash", 18);
    EXPECT_EQ(fileText(path), text);
    EXPECT_EQ(getConfigInt("lootbox", "cash", 0), 18) << "the run goes on with the value in memory";
    EXPECT_EQ(log.text(), "0: cannot write " + path + ": No space left on device\n");
    setConfigInt("lootbox", "cash", 19);
    EXPECT_EQ(fileText(path), "[lootbox]\ncash=19\n") << "nothing is left in the way";
}

TEST_F(ConfigTest, ALinkAndThePermissionsOfTheFileStay) {
    const std::string target = data.path + "/elsewhere.cfg";
    writeFile(target, "[video]\nvsync=1\n");
    std::filesystem::permissions(target, std::filesystem::perms::owner_read | std::filesystem::perms::owner_write);
    std::filesystem::create_symlink(target, path);
    openConfig(path);
    setConfigInt("video", "vsync", 0);
    EXPECT_TRUE(std::filesystem::is_symlink(path));
    EXPECT_EQ(fileText(target), "[video]\nvsync=0\n");
    EXPECT_EQ(std::filesystem::status(target).permissions(),
              std::filesystem::perms::owner_read | std::filesystem::perms::owner_write);
}

TEST_F(ConfigTest, OddValuesReadAsTheirFirstInteger) {
    for (const auto& [text, expected] : {std::pair{"12", 12},
                                         {"12 monkeys", 12},
                                         {"   -7", -7},
                                         {"high", 0},
                                         {"", 0},
                                         {"99999999999", 2147483647},
                                         {"0x10", 0},
                                         {"2.9", 2}}) {
        openWith(std::string("[a]\nplain=") + text + "\n");
        EXPECT_EQ(getConfigInt("a", "plain", 5), expected) << text;
        EXPECT_EQ(getConfigBool("a", "plain", expected == 0), expected != 0) << text;
    }
    EXPECT_EQ(getConfigInt("a", "absent", 5), 5);
    EXPECT_EQ(getConfigInt("nowhere", "plain", 8), 8);
}

TEST_F(ConfigTest, ColoursAreThreeIntegersCutToBytes) {
    openWith("[a]\nfull=1 2 3 \nover=256 -1 511\nshort=9 8\nwords=red 1 2\n");
    const RGB other{7, 7, 7};
    EXPECT_EQ(getConfigColour("a", "full", other), (RGB{1, 2, 3}));
    EXPECT_EQ(getConfigColour("a", "over", other), (RGB{0, 255, 255}));
    EXPECT_EQ(getConfigColour("a", "short", other), (RGB{9, 8, 0}));
    EXPECT_EQ(getConfigColour("a", "words", other), (RGB{0, 0, 0}));
    EXPECT_EQ(getConfigColour("a", "absent", other), other);
    setConfigColour("a", "full", {255, 0, 10});
    // The library drops the last of the three blanks.
    EXPECT_NE(fileText(path).find("full=255 0 10\n"), std::string::npos) << fileText(path);
}

TEST_F(ConfigTest, EveryWriteRewritesTheFileOrLeavesTheValueInMemory) {
    openWith("[video]\nwidth=0\n");
    setConfigInt("video", "width", 1280);
    EXPECT_EQ(fileText(path), "[video]\nwidth=1280\n");
    setConfigInt("sound", "musicVolume", -3);
    EXPECT_EQ(fileText(path), "[video]\nwidth=1280\n[sound]\nmusicVolume=-3\n");

    openConfig(data.path + "/no such folder/vandrel.cfg");
    EXPECT_EQ(getConfigInt("sound", "soundEffectsVolume", 1), 60);
    setConfigInt("sound", "soundEffectsVolume", 30);
    EXPECT_EQ(getConfigInt("sound", "soundEffectsVolume", 1), 30);
}

TEST_F(ConfigTest, RubbishIsReadAsNoKeys) {
    openWith(std::string("\0\x01\xff\xfe[[[\n=\n]==\n\n", 14) + std::string(100'000, 'x'));
    EXPECT_EQ(getConfigInt("video", "width", 3), 3);
    setConfigInt("video", "width", 4);
    EXPECT_EQ(getConfigInt("video", "width", 3), 4);
}

TEST_F(ConfigTest, AnOptionIsReadOnceAndWrittenWhenToggled) {
    openWith("[lootbox]\nowlsEnabled=0\n");
    ConfigOptionWrapper<bool> owls{{}, true, "lootbox", "owlsEnabled", "Owls"};
    ConfigOptionWrapper<bool> dogs{{}, true, "lootbox", "dogsEnabled", "Dogs"};
    EXPECT_FALSE(owls.value.has_value());
    EXPECT_FALSE(owls.get());
    setConfigInt("lootbox", "owlsEnabled", 1);
    EXPECT_FALSE(owls.get()) << "cached";
    EXPECT_TRUE(dogs.get());
    EXPECT_FALSE(hasConfigKey("lootbox", "dogsEnabled"));
    dogs.toggle();
    EXPECT_FALSE(dogs.get());
    EXPECT_EQ(getConfigInt("lootbox", "dogsEnabled", 9), 0);
    dogs.toggle();
    EXPECT_EQ(getConfigInt("lootbox", "dogsEnabled", 9), 1);
}

TEST_F(ConfigTest, AccessibilityComesBackAndMissingKeysChangeNothing) {
    openWith("[accessibility]\nghostOpacity=200\noutlineCol=1 2 3\n");
    AccessibilitySettings record;
    record.bgcol = 3;
    record.recolourBombs = true;
    AccessibilitySettings expected = record;
    expected.ghostOpacity = 200;
    expected.outlineCol = {1, 2, 3};
    loadAccessibility(record);
    EXPECT_EQ(record, expected);

    expected = {.bgcol = 4,
                .ghostOpacity = 0,
                .outlineEnabled = true,
                .recolourBombs = false,
                .outlineCol = {9, 8, 7},
                .newBombCol = {0, 128, 255},
                .flashingEnabled = false};
    openWith("");
    saveAccessibility(expected);
    EXPECT_EQ(fileText(path),
              "[accessibility]\nbgcol=4\nghostOpacity=0\nrecolourBombs=0\noutlineEnabled=1\noutlineCol=9 8 7\n"
              "newBombCol=0 128 255\nflashingEnabled=0\n");
    openConfig(path);
    record = {};
    loadAccessibility(record);
    EXPECT_EQ(record, expected);
}

TEST(AccessibilityTest, BackgroundsOutsideTheTableAreBlack) {
    const std::pair<int, RGB> backgrounds[] = {{-2147483647, {}}, {-1, {}},         {0, {}},
                                               {1, {57, 123, 8}}, {2, {100, 0, 0}}, {3, {20, 20, 123}},
                                               {4, {57, 57, 57}}, {5, {}},          {2147483647, {}}};
    for (const auto& [number, colour] : backgrounds) {
        EXPECT_EQ(backgroundColour(number), colour) << number;
    }
}

}  // namespace
}  // namespace vandrel::test
