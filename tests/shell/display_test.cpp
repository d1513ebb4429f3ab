#include "shell/display.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <memory>
#include <stdexcept>
#include <string>
#include <tuple>
#include <utility>
#include <vector>

#include "shell/display_mode.h"
#include "shell/frame_counter.h"
#include "shell/letterbox.h"
#include "shell/shell_test_tools.h"
#include "shell/window_icon.h"

namespace vandrel::test {
namespace {

TEST(LetterboxTest, ThePictureIsAsLargeAsFitsAndInTheMiddle) {
    const std::tuple<int, int, int, int, ScreenRectangle> cases[] = {
        {1920, 1080, 1920, 1080, {0, 0, 1920, 1080}},  // the same
        {3840, 2160, 1920, 1080, {0, 0, 3840, 2160}},  // the same shape
        {1280, 720, 1920, 1080, {0, 0, 1280, 720}},    // smaller
        {1920, 1080, 640, 480, {240, 0, 1440, 1080}},  // wider display
        {1920, 1080, 640, 960, {600, 0, 720, 1080}},   // much wider
        {1024, 768, 1920, 1080, {0, 96, 1024, 576}},   // higher display
        {1366, 768, 1920, 1080, {0, 0, 1365, 768}},    // half a pixel is cut, the odd one stands right
        {1920, 1080, 608, 352, {27, 0, 1865, 1080}},   // an arena of 19 by 11 squares
        {1920, 1080, 3808, 2144, {1, 0, 1918, 1080}},  // and of 119 by 67
        {80, 200, 40, 30, {0, 70, 80, 60}},
    };
    for (const auto& [displayWidth, displayHeight, width, height, expected] : cases) {
        const ScreenRectangle r = letterboxRectangle(displayWidth, displayHeight, width, height);
        EXPECT_EQ(r, expected) << width << "x" << height << " on " << displayWidth << "x" << displayHeight << ": "
                               << r.x << " " << r.y << " " << r.width << " " << r.height;
    }
}

const std::vector<DisplayMode> fiveModes{
    {1920, 1080, 60}, {640, 480, 60}, {1280, 1024, 60}, {800, 600, 75}, {1280, 720, 60}};

TEST(DisplayModeTest, WhatIsConfiguredWhatIsListedAndTheDesktopDecide) {
    const DisplayChoice desktop{1920, 1080, false};
    const std::tuple<const char*, DisplayChoice, std::vector<DisplayMode>, DisplayChoice, bool> cases[] = {
        {"listed, windowed", {800, 600, true}, fiveModes, {800, 600, true}, false},
        {"listed, fullscreen", {800, 600, false}, fiveModes, {800, 600, false}, false},
        {"the first run", {0, 0, false}, fiveModes, desktop, true},
        {"not listed, fullscreen", {801, 600, false}, fiveModes, desktop, true},
        {"not listed, windowed: the largest below", {801, 600, true}, fiveModes, {1280, 1024, true}, true},
        {"the last of the sorted list is never taken",
         {1, 1, true},
         {{640, 480, 60}, {800, 600, 60}},
         {640, 480, true},
         true},
        {"as wide as the desktop is not below it", {1, 1, true}, {{1920, 200, 60}, {2560, 1440, 60}}, desktop, true},
        {"as high as the desktop is not below it", {1, 1, true}, {{300, 1080, 60}, {2560, 1440, 60}}, desktop, true},
        {"one mode only", {801, 600, true}, {{640, 480, 60}}, desktop, true},
        {"no mode", {801, 600, true}, {}, desktop, true},
        {"absurd", {-5, 2147483647, true}, fiveModes, {1280, 1024, true}, true},
        {"a listed mode of no size", {0, 0, true}, {{0, 0, 0}}, desktop, false},
    };
    for (const auto& [what, configured, modes, expected, logged] : cases) {
        SCOPED_TRACE(what);
        const CapturedLog log;
        const DisplayChoice choice = chooseDisplayMode(configured, modes, 1920, 1080);
        EXPECT_EQ(choice, expected) << choice.width << "x" << choice.height << " " << choice.windowed;
        const std::string line =
            "Config screen resolution is invalid - trying desktop res (fullscreen) or first resolution below desktop "
            "(windowed)\n";
        EXPECT_EQ(log.text().size() > line.size() && log.text().ends_with(line), logged);
    }
}

class GameScreenTest : public testing::Test {
  protected:
    GameScreenTest() {
        installAllegroHeadless();
        displayBitmap = std::make_shared<BitmapWrapper>(100, 40, false);
        al_set_target_bitmap(displayBitmap->bitmap);
        al_clear_to_color(al_map_rgb(0, 0, 255));
    }
    ~GameScreenTest() override {
        screen.reset();
        displayBitmap.reset();
        gameScreenWidth = 0;
        gameScreenHeight = 0;
    }

    static std::string colourAt(int x, int y) {
        const ALLEGRO_COLOR colour = al_get_pixel(displayBitmap->bitmap, x, y);
        return std::string(colour.r > 0.5f ? "R" : "") + (colour.g > 0.5f ? "G" : "") + (colour.b > 0.5f ? "B" : "");
    }
};

TEST_F(GameScreenTest, ASlotIsASizeAndAClearedDisplay) {
    int slot = 0;
    for (const auto& size : {std::pair{1920, 1080}, {640, 480}, {640, 640}, {640, 720}, {640, 960}}) {
        setGameScreenSlot(slot++);
        EXPECT_EQ(std::pair(gameScreenWidth, gameScreenHeight), size);
        EXPECT_EQ(std::pair(screen->width(), screen->height()), size);
    }
    EXPECT_EQ(colourAt(50, 20), "");
    EXPECT_THROW(setGameScreenSlot(5), std::out_of_range);
    setGameScreenSize(19 * 32, 11 * 32);
    EXPECT_EQ(screen->width(), 608);
}

TEST_F(GameScreenTest, APresentedFrameHasBlackBorders) {
    setGameScreenSize(20, 20);
    al_set_target_bitmap(displayBitmap->bitmap);
    al_clear_to_color(al_map_rgb(0, 0, 255));
    al_set_target_bitmap(screen->bitmap);
    al_clear_to_color(al_map_rgb(255, 0, 0));
    presentFrame();
    for (const int x : {0, 29, 70, 99}) {
        EXPECT_EQ(colourAt(x, 20), "") << x;
    }
    for (const int x : {30, 50, 69}) {
        EXPECT_EQ(colourAt(x, 0), "R") << x;
        EXPECT_EQ(colourAt(x, 39), "R") << x;
    }
}

// Mixed pixels keep the strokes of letters, and take their time.
TEST_F(GameScreenTest, PixelsAreMixedOnlyWhereThePictureShrinks) {
    for (const auto& [width, height, mixed] :
         {std::tuple{100, 40, false}, {20, 20, false}, {104, 40, true}, {90, 42, true}}) {
        setGameScreenSize(width, height);
        EXPECT_EQ((al_get_bitmap_flags(screen->bitmap) & ALLEGRO_MIN_LINEAR) != 0, mixed) << width << "x" << height;
    }
}

TEST(SetVideoModeTest, WithoutADisplayServerThereIsNoDisplay) {
    installAllegroHeadless();
    ASSERT_EQ(al_get_num_video_adapters(), 0);
    frameCounter = 0;
    const std::tuple<bool, int, int> cases[] = {{true, -1, -1},
                                                {true, 7, -1},  // not there
                                                {true, 0, -1},  // not there either: none is
                                                {false, -1, -1}};
    for (const auto& [windowed, adapter, taken] : cases) {
        SCOPED_TRACE(adapter);
        const CapturedLog captured;
        const auto create = [window = windowed, number = adapter] { setVideoMode(640, 480, window, number); };
        EXPECT_THAT(create, testing::ThrowsMessage<std::runtime_error>("Failed to create display"));
        EXPECT_EQ(captured.text(),
                  std::string("0: Changing video mode to ") + (windowed ? "640x480, windowed" : "fullscreen window") +
                      "\n0: Setting display flags\n" +
                      (adapter == taken
                           ? ""
                           : "0: Adapter " + std::to_string(adapter) + " is not there: the default one is taken\n") +
                      "0: Adapter: " + std::to_string(taken) + "\n0: Create display: 640 480\n");
        EXPECT_EQ(theDisplay, nullptr);
        EXPECT_EQ((al_get_new_display_flags() & ALLEGRO_FULLSCREEN_WINDOW) == 0, windowed);
        EXPECT_TRUE(al_get_new_display_flags() & ALLEGRO_WINDOWED) << "in both cases";
    }
}

// An icon file with these widths (0 stands for 256), the bytes of each image ten behind the one before.
std::vector<std::uint8_t> iconFile(const std::vector<std::uint8_t>& widths) {
    std::vector<std::uint8_t> file{0, 0, 1, 0, static_cast<std::uint8_t>(widths.size()), 0};
    for (std::size_t i = 0; i < widths.size(); ++i) {
        const auto offset = static_cast<std::uint8_t>(6 + 16 * widths.size() + 10 * i);
        const std::uint8_t entry[16] = {widths[i], widths[i], 0, 0, 1, 0, 32, 0, 10, 0, 0, 0, offset, 0, 0, 0};
        file.insert(file.end(), std::begin(entry), std::end(entry));
    }
    file.resize(file.size() + 10 * widths.size());
    return file;
}

TEST(WindowIconTest, TheNearestImagesOfTheFileAreFound) {
    const std::vector<IconEntry> entries = readIconDirectory(iconFile({16, 32, 0, 64}));
    ASSERT_EQ(entries.size(), 4U);
    EXPECT_EQ(entries[2], (IconEntry{.size = 256, .offset = 6 + 64 + 20, .length = 10}));
    EXPECT_EQ(nearestIcon(entries, 256)->size, 256);
    EXPECT_EQ(nearestIcon(entries, 16)->size, 16);
    EXPECT_EQ(nearestIcon(readIconDirectory(iconFile({48, 64})), 256)->size, 64);
    EXPECT_EQ(nearestIcon(readIconDirectory(iconFile({8, 24})), 16)->size, 8) << "the first of equals";
    EXPECT_FALSE(nearestIcon({}, 16).has_value());
}

TEST(WindowIconTest, ABrokenFileHasNoImages) {
    std::vector<std::uint8_t> file = iconFile({16, 32});
    for (std::size_t length = 0; length < 6 + 32; ++length) {
        EXPECT_TRUE(readIconDirectory(std::span(file).first(length)).empty()) << length;
    }
    EXPECT_EQ(readIconDirectory(std::span(file).first(file.size() - 1)).size(), 1U) << "the second runs over the end";
    file[6 + 15] = 0xff;
    EXPECT_EQ(readIconDirectory(file).size(), 1U) << "the first lies far behind the end";
    file[2] = 2;
    EXPECT_TRUE(readIconDirectory(file).empty()) << "a cursor is no icon";
}

TEST(WindowIconTest, AMissingOrBrokenFileIsSkipped) {
    installAllegroHeadless();
    const ScratchDirectory data;
    const std::vector<std::uint8_t> file = iconFile({16});
    writeFile(data.path + "/broken.ico", std::string(file.begin(), file.end()));
    const int flags = al_get_new_bitmap_flags();
    EXPECT_NO_THROW(setWindowIcon(nullptr, data.path + "/missing.ico"));
    EXPECT_NO_THROW(setWindowIcon(nullptr, data.path + "/broken.ico"));
    EXPECT_EQ(al_get_new_bitmap_flags(), flags);
}

}  // namespace
}  // namespace vandrel::test
