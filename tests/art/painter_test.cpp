// The painter's promises: what a shape covers, where the light falls, where the outline goes, and that a file is the
// picture.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <stdexcept>
#include <string>
#include <tuple>
#include <vector>

#include "art/each_pixel.h"
#include "painter/letters.h"
#include "painter/noise.h"
#include "painter/pixel_map.h"
#include "painter/png_file.h"
#include "painter/shapes.h"

namespace vandrel::art {
namespace {

constexpr Colour red{200, 10, 20};
constexpr Colour blue{10, 20, 200};
constexpr Ramp tones{{30, 0, 0}, {20, 0, 0}, {10, 0, 0}};

class ScratchFile {
  public:
    explicit ScratchFile(const std::string& name)
        : path_(std::filesystem::path(testing::TempDir()) / ("painter_test_" + name)) {}
    ~ScratchFile() { std::filesystem::remove(path_); }
    ScratchFile(const ScratchFile&) = delete;
    ScratchFile& operator=(const ScratchFile&) = delete;
    const std::filesystem::path& path() const { return path_; }

  private:
    std::filesystem::path path_;
};

const Legend legend{{'r', red}, {'b', blue}};

Canvas canvasOf(const PixelRows& rows) {
    return canvasFromMap(legend, rows);
}

// The canvas as such rows; a question mark is a colour that the legend has not.
std::vector<std::string> rowsOf(const Canvas& canvas) {
    std::vector<std::string> rows(static_cast<std::size_t>(canvas.height()));
    forEachPixel(canvas, [&rows](int /*x*/, int y, Colour colour) {
        rows[static_cast<std::size_t>(y)] += colour == clear ? '.' : colour == red ? 'r' : colour == blue ? 'b' : '?';
    });
    return rows;
}

TEST(Canvas, IsTransparentOutsideAndIgnoresWritesThere) {
    Canvas canvas(3, 2, red);
    for (const auto& [x, y] : {std::pair{-1, 0}, {3, 0}, {0, -1}, {0, 2}}) {
        canvas.set(x, y, blue);
        EXPECT_EQ(canvas.at(x, y), clear);
    }
    EXPECT_EQ(canvas.count(red), 6U);
    EXPECT_THROW(Canvas(0, 4), std::invalid_argument);
}

TEST(Canvas, IsTurnedResizedOutlinedAndDrawnOver) {
    const Canvas corners = canvasOf({"r..", "..b"});
    const auto changed = [](Canvas canvas, const auto& change) {
        change(canvas);
        return canvas;
    };
    const Canvas dot = canvasOf({"...", ".r.", "..."});
    const Canvas stamp(1, 1, blue);
    const std::tuple<const char*, Canvas, std::vector<std::string>> cases[] = {
        {"mirrored", corners.mirrored(), {"..r", "b.."}},
        {"flipped", corners.flipped(), {"..b", "r.."}},
        {"turned: top left goes to top right", corners.turned(), {".r", "..", "b."}},
        {"turned all round", corners.turned().turned().turned().turned(), {"r..", "..b"}},
        {"shifted: what leaves is lost", corners.shifted(1, 1), {"...", ".r."}},
        {"scaled", canvasOf({"r."}).scaled(2), {"rr..", "rr.."}},
        {"reduced", canvasOf({"rr..", "rr.."}).reduced(2, 1), {"r."}},
        {"outlined, without corners", changed(dot, [](Canvas& c) { c.outline(blue); }), {".b.", "brb", ".b."}},
        {"outlined, but for a row",
         changed(dot, [](Canvas& c) { c.outlineWhere(blue, [](int, int y) { return y != 2; }); }),
         {".b.", "brb", "..."}},
        {"drawn over", changed(canvasOf({"rr"}), [&](Canvas& c) { c.draw(stamp, 1, 0); }), {"rb"}},
        {"erased", changed(canvasOf({"rr"}), [&](Canvas& c) { c.erase(stamp, 0, 0); }), {".r"}},
    };
    for (const auto& [what, canvas, rows] : cases) {
        EXPECT_EQ(rowsOf(canvas), rows) << what;
    }
}

TEST(Canvas, MixesColoursByTheirShare) {
    const Colour half = canvasOf({"r."}).reduced(1, 1).at(0, 0);
    EXPECT_EQ(half.red, red.red) << "transparent pixels must not darken the rest";
    EXPECT_NEAR(half.alpha, 128, 1);
    Canvas under(1, 1, red);
    under.blend(0, 0, {0, 0, 0}, 0.5f);
    EXPECT_NEAR(under.at(0, 0).red, red.red / 2, 1);
    EXPECT_EQ(under.at(0, 0).alpha, 255);
}

TEST(Shapes, CoverWhatTheyShould) {
    // With the pixels covered, and how many more or less there may be.
    const std::tuple<const char*, Shape, double, double> cases[] = {
        {"circle", circle(20, 20, 10), 314.2, 10},
        {"ellipse", ellipse(20, 20, 15, 6), 282.7, 12},
        {"rectangle", rectangle(5, 6, 20, 10), 200, 0},
        {"rounded box", roundedBox(20, 20, 10, 8, 4), 320 - 13.7, 6},
        {"capsule", capsule(10, 20, 30, 20, 4), 160 + 50.3, 8},
        {"taper", taper(10, 20, 30, 20, 4, 2), 120 + 31.4, 10},
        {"triangle", polygon({{5, 5}, {35, 5}, {5, 35}}), 450, 18},
        {"union", unite(rectangle(5, 5, 10, 10), rectangle(10, 5, 10, 10)), 150, 0},
        {"difference", subtract(rectangle(5, 5, 10, 10), rectangle(10, 5, 10, 10)), 50, 0},
        {"intersection", intersect(rectangle(5, 5, 10, 10), rectangle(10, 5, 10, 10)), 50, 0},
        {"grown", grown(circle(20, 20, 8), 2), 314.2, 10},
        {"moved", moved(rectangle(0, 0, 6, 6), 12, 12), 36, 0},
        {"quarter turn", rotated(rectangle(10, 18, 20, 4), 20, 20, 1.5707964f), 80, 0},
        {"ring", ring(circle(20, 20, 10), 2), 125.7, 10},
        {"clipped by the canvas", rectangle(-10, -10, 20, 20), 100, 0},
    };
    for (const auto& [name, shape, area, tolerance] : cases) {
        Canvas canvas(40, 40);
        fill(canvas, shape, red);
        EXPECT_NEAR(static_cast<double>(canvas.countVisible()), area, tolerance) << name;
    }
    EXPECT_THROW(polygon({{0, 0}, {1, 1}}), std::invalid_argument);
}

TEST(Shapes, LightComesFromTheTopLeft) {
    Canvas ball(41, 41);
    fillLit(ball, circle(20.5f, 20.5f, 18), tones, 18);
    EXPECT_EQ(ball.at(12, 10), tones.light);
    EXPECT_EQ(ball.at(31, 32), tones.dark);
    EXPECT_GT(ball.count(tones.middle), 100U);
    // Along the diagonal of the light it only gets darker.
    int before = 255;
    for (int step = 9; step <= 32; ++step) {
        EXPECT_LE(ball.at(step, step).red, before) << "at " << step;
        before = ball.at(step, step).red;
    }
}

TEST(Shapes, DitherMixesByShareAndHardFillsKeepAlphaPlain) {
    Canvas canvas(16, 16);
    fillDithered(canvas, rectangle(0, 0, 16, 16), red, blue, 0.25f);
    EXPECT_EQ(canvas.count(blue), 64U);
    EXPECT_EQ(canvas.count(red), 192U);

    Canvas soft(16, 16);
    fillSoft(soft, circle(8, 8, 5), red, 3);
    EXPECT_EQ(soft.at(8, 8).alpha, 255);
    EXPECT_GT(soft.at(13, 8).alpha, 0);
    EXPECT_LT(soft.at(13, 8).alpha, 255);
    soft.hardenAlpha();
    EXPECT_EQ(soft.count(clear) + soft.count(red), 256U);
}

TEST(PixelMap, ReadsItsLegendAndRefusesUnknownLetters) {
    EXPECT_EQ(rowsOf(canvasOf({"rb.", "..r"})), (std::vector<std::string>{"rb.", "..r"}));
    Canvas mirrored(3, 2, blue);
    drawMapMirrored(mirrored, 0, 0, legend, {"r_.", "..r"});
    EXPECT_EQ(rowsOf(mirrored), (std::vector<std::string>{"b.r", "rbb"})) << "an underscore cuts a hole";
    EXPECT_THROW(canvasFromMap(legend, {"rx"}), std::invalid_argument);
}

TEST(Letters, HaveTheWidthTheySay) {
    Canvas canvas(textWidth("A1_", 2) + 4, letterHeight * 2);
    writeText(canvas, 0, 0, "A1_", red, 2);
    int rightmost = 0;
    forEachPixel(canvas, [&rightmost](int x, int /*y*/, Colour colour) {
        rightmost = colour.alpha != 0 ? std::max(rightmost, x) : rightmost;
    });
    EXPECT_EQ(rightmost, textWidth("A1_", 2) - 1);
    Canvas small(6, 7), capital(6, 7);
    writeText(small, 0, 0, "g", red);
    writeText(capital, 0, 0, "G", red);
    EXPECT_EQ(small, capital);
}

TEST(Noise, IsTheSameForTheSameSeedAndStaysInRange) {
    Dice first(7), again(7), other(8);
    bool differs = false;
    for (int i = 0; i < 200; ++i) {
        const int value = first.below(6);
        EXPECT_EQ(value, again.below(6));
        EXPECT_TRUE(value >= 0 && value < 6);
        differs = differs || value != other.below(6);
    }
    EXPECT_TRUE(differs);
    float lowest = 1.0f, highest = 0.0f;
    for (int i = 0; i < 500; ++i) {
        const float value = cloudNoise(static_cast<float>(i) * 0.37f, static_cast<float>(i) * -0.21f, 3);
        lowest = std::min(lowest, value);
        highest = std::max(highest, value);
    }
    EXPECT_GE(lowest, 0.0f);
    EXPECT_LE(highest, 1.0f);
    EXPECT_GT(highest - lowest, 0.4f);
    EXPECT_NEAR(smoothNoise(4.999f, 2.0f, 5), smoothNoise(5.001f, 2.0f, 5), 0.01f) << "no step between grid cells";
}

TEST(PngFile, RoundTripKeepsEveryPixelAndTheBytesRepeat) {
    Canvas canvas(300, 9);
    forEachPixel(canvas, [&canvas](int x, int y, Colour /*colour*/) {
        const auto byte = [](int value) { return static_cast<std::uint8_t>(value); };
        canvas.set(x, y, {byte(x), byte(y * 20), byte(x * y), byte(x % 3 == 0 ? 0 : 255 - y)});
    });
    const ScratchFile file("round_trip.png");
    writePng(canvas, file.path());
    EXPECT_EQ(readPng(file.path()), canvas);
    EXPECT_EQ(encodePng(canvas), encodePng(canvas));
    EXPECT_EQ(std::filesystem::file_size(file.path()), encodePng(canvas).size());
}

TEST(PngFile, SaysWhichFileIsAtFault) {
    const ScratchFile file("broken.png");
    std::ofstream(file.path()) << "no picture";
    for (const std::filesystem::path& path : {file.path(), std::filesystem::path("/no/such/picture.png")}) {
        EXPECT_THAT([&path] { readPng(path); },
                    testing::ThrowsMessage<std::runtime_error>(testing::HasSubstr(path.string())));
    }
    EXPECT_THROW(writePng(Canvas(1, 1), file.path() / "below_a_file.png"), std::exception);
}

}  // namespace
}  // namespace vandrel::art
