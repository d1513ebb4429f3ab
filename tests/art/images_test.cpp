// The sprites under game/images as the game will load them: every name there, of its size, in the colours that the
// recolouring relies on, and with heads and bodies that fit together. What prizes show has tests of its own.
#include <gtest/gtest.h>

#include <filesystem>
#include <iterator>
#include <map>
#include <set>
#include <string>
#include <tuple>
#include <utility>

#include "art/each_pixel.h"
#include "painter/png_file.h"
#include "presentation/bitmap_ids.h"

namespace vandrel::art {
namespace {

namespace fs = std::filesystem;

constexpr const char* directories[] = {"logo", "arena", "powerups", "bodies", "heads"};
constexpr Colour magenta{255, 0, 255};
constexpr const char* neck = "11-20";  // as `extentOfRow` tells it
constexpr const char* shoulder = "14-26";

const fs::path imagesDirectory = fs::path(VANDREL_GAME_DIR) / "images";

struct Sprite {
    std::string directory;
    Canvas canvas;
};

const std::map<std::string, Sprite>& sprites() {
    static const std::map<std::string, Sprite> all = [] {
        std::map<std::string, Sprite> found;
        for (const char* directory : directories) {
            for (const fs::directory_entry& entry : fs::directory_iterator(imagesDirectory / directory)) {
                found.insert({entry.path().stem().string(), {directory, readPng(entry.path())}});
            }
        }
        return found;
    }();
    return all;
}

const Canvas& sprite(const std::string& name) {
    return sprites().at(name).canvas;
}

// The columns of the visible pixels in a row, as "first-last", with an asterisk when there is a gap between,
// or "none".
std::string extentOfRow(const Canvas& canvas, int y) {
    int first = -1, last = -1, count = 0;
    for (int x = 0; x < canvas.width(); ++x) {
        if (canvas.visible(x, y)) {
            first = first < 0 ? x : first;
            last = x;
            ++count;
        }
    }
    const std::string gap = count == last - first + 1 ? "" : "*";
    return count == 0 ? "none" : std::to_string(first) + "-" + std::to_string(last) + gap;
}

std::string extentOfColumn(const Canvas& canvas, int x) {
    return extentOfRow(canvas.turned().mirrored(), x);
}

int lowestRow(const Canvas& canvas) {
    int lowest = -1;
    forEachPixel(canvas, [&](int, int y, Colour colour) { lowest = colour.alpha != 0 ? y : lowest; });
    return lowest;
}

TEST(Images, AreThoseOfTheBitmapTableBothWays) {
    std::set<std::string> found;
    std::uintmax_t bytesOfPrizes = 0;
    for (const fs::directory_entry& entry : fs::recursive_directory_iterator(imagesDirectory)) {
        if (entry.is_directory()) {
            continue;
        }
        EXPECT_EQ(entry.path().extension(), ".png") << entry.path();
        EXPECT_TRUE(found.insert(entry.path().stem().string()).second) << "two files for " << entry.path();
        bytesOfPrizes += entry.path().parent_path().filename() == "prizes" ? entry.file_size() : 0;
    }
    EXPECT_EQ(found, std::set<std::string>(bitmapNames.begin(), bitmapNames.end()));
    EXPECT_LT(bytesOfPrizes, 2U * 1024 * 1024) << "all of them together";
}

TEST(Sprites, HaveTheirSizesPlainAlphaAndNoMagenta) {
    const std::map<std::string, std::pair<int, int>> special{
        {"VLogo3", {640, 160}}, {"MKR", {96, 96}}, {"Trophy", {48, 48}}, {"Snail", {32, 44}}, {"SnailDown", {32, 44}}};
    for (const auto& [name, entry] : sprites()) {
        const auto size = special.contains(name) ? special.at(name) : std::pair{32, 32};
        EXPECT_EQ(std::pair(entry.canvas.width(), entry.canvas.height()), size) << name;
        forEachPixel(entry.canvas, [&, &title = name](int x, int y, Colour colour) {
            if ((colour.alpha != 0 && colour.alpha != 255) || colour == magenta) {
                ADD_FAILURE() << title << " at " << x << ", " << y;
            }
        });
        EXPECT_GT(entry.canvas.countVisible(), 40U) << name;
    }
}

TEST(Sprites, HoldTheSpecialColoursWhereTheyBelongAndNowhereElse) {
    for (const auto& [name, entry] : sprites()) {
        const bool black = name.starts_with("Bomb") || name.starts_with("R_");
        const bool flag = name.starts_with("Flag");
        const bool player = name.starts_with("Head") || name.starts_with("Body");
        EXPECT_EQ(entry.canvas.count(palette::black) > 0, black) << name;
        EXPECT_EQ(entry.canvas.count(palette::flagRed) > 0, flag) << name;
        std::size_t lit = 0, shaded = 0;
        forEachPixel(entry.canvas, [&, &title = name](int x, int y, Colour colour) {
            const bool neutral = colour.alpha != 0 && colour.red == colour.green && colour.green == colour.blue;
            if (!player || !neutral || colour == palette::white) {
                return;
            }
            lit += colour == palette::playerLit ? 1 : 0;
            shaded += colour == palette::playerLit ? 0 : 1;
            EXPECT_TRUE(colour == palette::playerLit || colour == palette::playerShade || colour == palette::playerFold)
                << title << " at " << x << ", " << y << ": " << int(colour.red);
        });
        if (player) {
            EXPECT_GT(lit, 20U) << name;
        }
        // Only the lit grey turns white when a shield runs out, so it must be most of the figure.
        if (name.starts_with("Body")) {
            EXPECT_GE(lit * 3, (lit + shaded) * 2) << name << ": " << lit << " lit, " << shaded << " shaded";
        }
    }
}

TEST(Heads, LeaveRoomForTheirOutlineAndStandOnTheNeck) {
    for (const auto& [name, entry] : sprites()) {
        if (!name.starts_with("Head")) {
            continue;
        }
        const Canvas& head = entry.canvas;
        EXPECT_EQ(extentOfRow(head, 0), "none") << name;
        const bool crawlsRight = name.ends_with("_Crawl_R"), crawlsLeft = name.ends_with("_Crawl_L");
        EXPECT_EQ(extentOfColumn(head, 0), crawlsRight ? shoulder : "none") << name;
        EXPECT_EQ(extentOfColumn(head, 31), crawlsLeft ? shoulder : "none") << name;
        if (!crawlsRight && !crawlsLeft) {
            EXPECT_EQ(extentOfRow(head, 31), neck) << name;
        }
    }
}

TEST(Heads, MoveAPixelAtMostAndBlink) {
    for (int file = 0; file < 13; ++file) {
        const std::string name = "Head" + std::to_string(file) + "_D_";
        const Canvas& still = sprite(name + "014");
        EXPECT_NE(still, sprite(name + "23")) << name;
        EXPECT_NE(still, sprite(name + "56")) << name;
        // Above the neck the first stride is the still head, a pixel aside.
        const Canvas above = still.cropped(1, 0, 30, 24).shifted(-1, 0).cropped(1, 2, 27, 20);
        EXPECT_EQ(above, sprite(name + "23").cropped(1, 0, 30, 24).cropped(1, 2, 27, 20)) << name;
        // The second stride is more than the still head moved the other way: the eyes are shut.
        EXPECT_NE(still.shifted(1, 0).cropped(4, 4, 24, 18), sprite(name + "56").cropped(4, 4, 24, 18)) << name;
    }
}

TEST(Heads, CanBeToldApart) {
    // From each side no two skins may share more than nine tenths of their pixels.
    for (const char* side : {"_D_014", "_R_0"}) {
        for (int one = 0; one < 13; ++one) {
            for (int other = one + 1; other < 13; ++other) {
                const Canvas& first = sprite("Head" + std::to_string(one) + side);
                const Canvas& second = sprite("Head" + std::to_string(other) + side);
                int differing = 0;
                forEachPixel(first,
                             [&](int x, int y, Colour colour) { differing += colour == second.at(x, y) ? 0 : 1; });
                EXPECT_GT(differing, 102) << one << " and " << other << side;
            }
        }
    }
}

struct WalkFrame {
    int bob;
    int frontHandX, frontHandY;  // in pixels of the cell, as a carried flag is placed
    int sideHandX, sideHandY;
};

constexpr WalkFrame walk[] = {
    {0, 28, 10, 13, 10},  {-2, 28, 10, 13, 10}, {0, 26, 11, 7, 8},  {-1, 28, 11, 8, 9},
    {-2, 28, 10, 12, 10}, {0, 26, 8, 21, 8},    {-1, 28, 9, 19, 9},
};

TEST(Bodies, JoinTheHeadStandOnTheGroundAndHoldAFistWhereAFlagIsCarried) {
    const auto check = [](const std::string& name, int bob) {
        const Canvas& body = sprite(name);
        EXPECT_EQ(extentOfRow(body, 0), neck) << name;
        EXPECT_EQ(extentOfRow(body, 1), neck) << name << ": shoulders start in row 2, below the neck's outline";
        EXPECT_EQ(lowestRow(body), 27 - bob) << name << ": soles stand in the cell's last row";
        EXPECT_EQ(extentOfColumn(body, 0), "none") << name;
        EXPECT_EQ(extentOfColumn(body, 31), "none") << name;
    };
    for (std::size_t frame = 0; frame < std::size(walk); ++frame) {
        const WalkFrame& step = walk[frame];
        for (const char* side : {"Body0_D_", "Body0_U_", "Body0_R_"}) {
            const std::string name = side + std::to_string(frame);
            check(name, step.bob);
            const bool front = name[6] != 'R';
            const Canvas fist = sprite(name).cropped((front ? step.frontHandX : step.sideHandX) - 1,
                                                     (front ? step.frontHandY : step.sideHandY) - step.bob - 5, 3, 3);
            EXPECT_EQ(fist.count(palette::bone), 9U) << name;
        }
    }
    check("Body0_Ctrl", 0);
}

TEST(Bodies, CrawlWithTheShoulderAgainstTheHead) {
    for (const char* name : {"Body0_Crawl_R_0", "Body0_Crawl_R_1"}) {
        EXPECT_EQ(extentOfColumn(sprite(name), 31), shoulder) << name;
        EXPECT_EQ(extentOfColumn(sprite(name), 0), "none") << name;
        EXPECT_EQ(lowestRow(sprite(name)), 31) << name;
    }
    EXPECT_NE(sprite("Body0_Crawl_R_0"), sprite("Body0_Crawl_R_1"));
}

TEST(Arena, BlockingSquaresAreFullAndBreakingOnesLoseTheirShare) {
    for (const char* name : {"Block1", "Block2", "Block3", "Block4", "Wall3", "Wall3CrumbleNew", "Wall3CrumbleNew2"}) {
        EXPECT_EQ(sprite(name).countVisible(), 1024U) << name;
    }
    // The fewest and the most visible pixels, in hundredths of the square.
    const std::tuple<const char*, int, int> shares[] = {
        {"W3NDth1", 50, 80},
        {"W3NDth2", 15, 40},
        {"Wall3CrumbleNewDeath", 83, 87},
        {"Wall3CrumbleNewDeath2", 58, 62},
        {"Wall3CrumbleNewDeath3", 33, 37},
        {"Wall3CrumbleNewDeath4", 10, 14},
    };
    for (const auto& [name, least, most] : shares) {
        const auto share = static_cast<int>(sprite(name).countVisible() * 100 / 1024);
        EXPECT_TRUE(share >= least && share <= most) << name << ": " << share;
    }
    EXPECT_NE(sprite("Wall3"), sprite("Wall3CrumbleNew"));
    EXPECT_NE(sprite("Wall3CrumbleNew"), sprite("Wall3CrumbleNew2"));
}

TEST(Arena, FlamesAreTheSameFromAllSidesAndReachTheirNeighbours) {
    for (const char* name : {"Explo1", "Explo2", "Explo3", "Explo1A", "Explo2A", "Explo3A"}) {
        const Canvas& flame = sprite(name);
        EXPECT_EQ(flame, flame.turned()) << name;
        EXPECT_TRUE(flame.visible(15, 0) && flame.visible(16, 0)) << name;
        EXPECT_FALSE(flame.visible(0, 0)) << name;
    }
    EXPECT_LT(sprite("Explo1").countVisible(), sprite("Explo2").countVisible());
    EXPECT_LT(sprite("Explo2").countVisible(), sprite("Explo3").countVisible());
}

TEST(Arena, FlagsHaveTheirFootInTheHandAndTheirClothAtThePole) {
    for (int frame = 0; frame < 6; ++frame) {
        const std::string name = "Flag" + std::to_string(frame);
        const Canvas& flag = sprite(name);
        EXPECT_EQ(flag.at(12, 31), palette::bone) << name;
        EXPECT_GT(flag.count(palette::flagRed), 100U) << name;
        EXPECT_EQ(flag.cropped(13, 2, 18, 15).count(palette::flagRed), flag.count(palette::flagRed)) << name;
        EXPECT_NE(flag, sprite("Flag" + std::to_string((frame + 1) % 6))) << name;
    }
}

TEST(Arena, BombsStandOnTheirRowAndGlowInTheEnd) {
    const auto count = [](int frame, Colour colour, int firstRow) {
        std::size_t found = 0;
        forEachPixel(sprite("Bomb" + std::to_string(frame)),
                     [&](int, int y, Colour pixel) { found += y >= firstRow && pixel == colour ? 1 : 0; });
        return found;
    };
    const auto glow = [&](int frame) {
        return count(frame, palette::fireRed, 24) + count(frame, palette::fireOrange, 24) +
               count(frame, palette::fireYellow, 24);
    };
    for (int frame = 1; frame <= 21; ++frame) {
        EXPECT_EQ(lowestRow(sprite("Bomb" + std::to_string(frame))), 29) << frame;
        EXPECT_GT(count(frame, palette::black, 0), 200U) << frame;
        EXPECT_EQ(glow(frame) > 0, frame > 15) << frame;
        if (frame > 2) {
            // The spark hides more of the fuse in every other frame, so frames of one kind are compared.
            EXPECT_LE(count(frame, palette::boneShade, 0), count(frame - 2, palette::boneShade, 0)) << frame;
        }
    }
    EXPECT_GT(glow(21), glow(16));
}

TEST(Arena, RocketsPointTheirWay) {
    const Canvas& right = sprite("R_Right");
    EXPECT_EQ(sprite("R_Left"), right.mirrored());
    EXPECT_EQ(sprite("R_Down"), right.turned());
    EXPECT_EQ(sprite("R_Up"), right.turned().flipped());
    EXPECT_TRUE(right.visible(28, 15)) << "the nose";
    EXPECT_GT(right.count(palette::fireYellow), 0U);
}

}  // namespace
}  // namespace vandrel::art
