// The prize pictures under game/images/prizes as the loot box room will show them: of a size that leaves room for the
// words, opaque, framed alike, and no two of them alike.
#include <gtest/gtest.h>

#include <cstdint>
#include <cstdlib>
#include <filesystem>
#include <iterator>
#include <map>
#include <set>
#include <string>
#include <tuple>
#include <utility>

#include "art/each_pixel.h"
#include "images/recolour.h"
#include "painter/png_file.h"
#include "prizes/photo.h"

namespace vandrel::art {
namespace {

namespace fs = std::filesystem;

// The scene inside the frame.
constexpr int innerLeft = frameThickness, innerTop = frameThickness;
constexpr int innerRight = photoWidth - frameThickness, innerBottom = photoHeight - frameThickness;

// Every prize as one pixel for each enlarged one. What the enlarged file itself must hold is asked while it is read.
const std::map<std::string, Canvas>& photos() {
    static const std::map<std::string, Canvas> all = [] {
        std::map<std::string, Canvas> found;
        for (const fs::directory_entry& entry :
             fs::directory_iterator(fs::path(VANDREL_GAME_DIR) / "images" / "prizes")) {
            const Canvas large = readPng(entry.path());
            Canvas small(photoWidth, photoHeight);
            forEachPixel(small,
                         [&](int x, int y, Colour) { small.set(x, y, large.at(x * photoScale, y * photoScale)); });
            EXPECT_TRUE(large == small.scaled(photoScale)) << entry.path() << " is not made of whole enlarged pixels";
            found.insert({entry.path().stem().string(), small});
        }
        return found;
    }();
    return all;
}

int difference(Colour a, Colour b) {
    return std::abs(a.red - b.red) + std::abs(a.green - b.green) + std::abs(a.blue - b.blue);
}

// The share of the inner pixels, in hundredths, that a viewer sees to be of another colour.
int differingShare(const Canvas& one, const Canvas& other) {
    int differing = 0;
    const Canvas scene = one.cropped(innerLeft, innerTop, innerRight - innerLeft, innerBottom - innerTop);
    forEachPixel(scene, [&](int x, int y, Colour colour) {
        differing += difference(colour, other.at(innerLeft + x, innerTop + y)) > 60 ? 1 : 0;
    });
    return differing * 100 / (scene.width() * scene.height());
}

std::size_t coloursWithin(const Canvas& photo, int left, int top, int right, int bottom) {
    std::set<std::tuple<int, int, int>> colours;
    forEachPixel(photo.cropped(left, top, right - left, bottom - top), [&](int, int, Colour colour) {
        colours.insert({colour.red, colour.green, colour.blue});
    });
    return colours.size();
}

// Whether the visible pixels of the sprite stand somewhere in the picture, unchanged.
bool shows(const Canvas& photo, const Canvas& sprite) {
    bool found = false;
    forEachPixel(photo, [&](int left, int top, Colour) {
        Canvas drawn = photo.cropped(left, top, sprite.width(), sprite.height());
        const Canvas before = drawn;
        drawn.draw(sprite);
        found = found || drawn == before;
    });
    return found;
}

TEST(Prizes, LeaveRoomForTheWordsAndAreOpaque) {
    // Centred on a screen 1080 high, between the caption's last row and the prompt's first.
    constexpr int captionEnd = 78, promptStart = 1026, screenHeight = 1080;
    constexpr int height = photoHeight * photoScale;
    static_assert((screenHeight - height) / 2 >= captionEnd && (screenHeight + height) / 2 <= promptStart);
    for (const auto& [name, photo] : photos()) {
        forEachPixel(photo, [&, &title = name](int x, int y, Colour colour) {
            if (colour.alpha != 255 || (colour.red > 240 && colour.green < 16 && colour.blue > 240)) {
                ADD_FAILURE() << title << " at " << x << ", " << y;
            }
        });
    }
}

TEST(Prizes, HangInOneKindOfFrame) {
    const Canvas& pattern = photos().begin()->second;
    for (const auto& [name, photo] : photos()) {
        int foreign = 0;
        forEachPixel(photo, [&](int x, int y, Colour colour) {
            const bool inside = x >= innerLeft && x < innerRight && y >= innerTop && y < innerBottom;
            foreign += !inside && colour != pattern.at(x, y) ? 1 : 0;
        });
        EXPECT_EQ(foreign, 0) << name;
    }
    EXPECT_GT(difference(pattern.at(0, 50), pattern.at(2, 50)), 100) << "the edge and the paper";
    EXPECT_GT(difference(pattern.at(2, 50), pattern.at(3, 50)), 100) << "the paper and the scene's edge";
}

TEST(Prizes, AreScenesOfTheirOwn) {
    for (auto one = photos().begin(); one != photos().end(); ++one) {
        for (auto other = std::next(one); other != photos().end(); ++other) {
            EXPECT_GE(differingShare(one->second, other->second), 40) << one->first << " and " << other->first;
        }
    }
}

TEST(Prizes, HaveSomethingToLookAt) {
    constexpr int middleX = photoWidth / 2, middleY = photoHeight / 2;
    for (const auto& [name, photo] : photos()) {
        // The subject stands in the middle, and no quarter is left empty.
        EXPECT_GE(coloursWithin(photo, middleX - 30, middleY - 25, middleX + 30, middleY + 25), 16U) << name;
        for (const auto& [left, right] : {std::pair{innerLeft, middleX}, {middleX, innerRight}}) {
            for (const auto& [top, bottom] : {std::pair{innerTop, middleY}, {middleY, innerBottom}}) {
                EXPECT_GE(coloursWithin(photo, left, top, right, bottom), 20U)
                    << name << " from " << left << ", " << top;
            }
        }
    }
}

TEST(Prizes, GalleriesHangTheGamesOwnSprites) {
    const auto sprite = [](const char* name) { return readPng(fs::path(VANDREL_GAME_DIR) / "images" / name); };
    EXPECT_TRUE(shows(photos().at("ArtWall2"), sprite("arena/Snail.png").cropped(0, 0, 32, 36)));
    EXPECT_TRUE(shows(photos().at("ArtWall1"), recoloured(sprite("heads/Head9_D_014.png"), {240, 190, 60})));
    EXPECT_FALSE(shows(photos().at("Timothy"), sprite("arena/Snail.png").cropped(0, 0, 32, 36)));
}

}  // namespace
}  // namespace vandrel::art
