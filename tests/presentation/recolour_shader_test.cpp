// The shader and the composed pictures of players on a real display.
#include "presentation/recolour_shader.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <memory>
#include <stdexcept>
#include <string>
#include <utility>

#include "players/sprites_drawing.h"
#include "presentation/atlas.h"
#include "presentation/bitmaps.h"
#include "presentation/drawing.h"
#include "presentation/ink.h"
#include "presentation/plain_shader.h"
#include "shell/accessibility.h"
#include "support/drawing_stage.h"

namespace vandrel {
namespace {

constexpr RGB white{255, 255, 255};
constexpr RGB ink{28, 20, 36};

class RecolourOnDisplay : public DrawingOnDisplay {
  protected:
    RecolourOnDisplay() {
        createRecolourShader();
        createPlainShader();
    }
    ~RecolourOnDisplay() override {
        destroyRecolourShader();
        destroyPlainShader();
        releaseSpriteCache();
        accessibility = AccessibilitySettings();
    }

    // One row of differently coloured pixels in the middle of an image that is otherwise empty, from column 8 on.
    static void loadPalette(BitmapIds id) {
        writeImage(std::string("images/") + bitmapNames.at(static_cast<unsigned>(id)) + ".png", 32, 32,
                   [](int x, int y) {
                       static const RGB row[] = {{192, 192, 192}, {96, 96, 96}, {144, 146, 143}, {0, 0, 0},
                                                 {255, 255, 255}, ink,          {190, 192, 194}, {200, 200, 200}};
                       return y == 16 && x >= 8 && x < 16 ? toColour(row[x - 8]) : clearPixel;
                   });
        loadBitmaps(bitmapIndex(id));
    }

    static std::unique_ptr<BitmapWrapper> paint(BitmapIds id, const RecolourSettings& settings) {
        auto canvas = std::make_unique<BitmapWrapper>(40, 40, true);
        clearTo(*canvas, clearPixel);
        useRecolourShader(settings);
        drawId(*canvas, id, 0, 0);
        stopRecolourShader();
        return canvas;
    }
};

RecolourSettings greyTo(RGB colour, bool dark) {
    RecolourSettings settings;
    settings.baseCol = toColour({192, 192, 192});
    settings.newCol = toColour(colour);
    settings.doDarkCol = dark;
    return settings;
}

TEST_F(RecolourOnDisplay, GreysBecomeShadesOfTheColour) {
    loadPalette(BitmapIds::Head0_D_014);
    const RGB brown{200, 100, 50};
    const auto shaded = paint(BitmapIds::Head0_D_014, greyTo(brown, true));
    EXPECT_NEAR(pixelAt(*shaded, 10, 16).red, 152, 3) << "almost neutral counts as neutral";
    EXPECT_TRUE(isTransparentAt(*shaded, 7, 16));
    const auto exact = paint(BitmapIds::Head0_D_014, greyTo(brown, false));
    // The last of each is brighter than the base, and within its tolerance.
    expectPixels(*shaded, {{{8, 16}, brown},
                           {{9, 16}, {100, 50, 25}},
                           {{11, 16}, {0, 0, 0}},
                           {{12, 16}, white},
                           {{13, 16}, ink},
                           {{15, 16}, {200, 200, 200}}});
    expectPixels(*exact, {{{8, 16}, brown}, {{9, 16}, {96, 96, 96}}, {{14, 16}, brown}});
}

TEST_F(RecolourOnDisplay, AnyPixelTakesTheWholeFigure) {
    loadPalette(BitmapIds::Snail);
    RecolourSettings settings = greyTo({1, 2, 3}, false);
    settings.baseColAny = true;
    const auto painted = paint(BitmapIds::Snail, settings);
    for (int x = 8; x < 16; ++x) {
        EXPECT_EQ(pixelAt(*painted, x, 16), (RGB{1, 2, 3})) << x;
    }
    EXPECT_TRUE(isTransparentAt(*painted, 8, 15));
}

TEST_F(RecolourOnDisplay, TheOutlineClosesRoundTheFigureAndKeepsInsideItsImage) {
    loadPlainImage(bitmapIndex(BitmapIds::Bomb1), {0, 255, 0});  // neighbours in the atlas are full to the edge
    writeImage("images/Bomb2.png", 32, 32, [](int x, int y) {
        const bool box = x >= 10 && x < 14 && y >= 10 && y < 14;
        const bool corner = x == 0 && y == 0;
        return box || corner ? toColour(ink) : clearPixel;
    });
    loadBitmaps(bitmapIndex(BitmapIds::Bomb2));
    loadPlainImage(bitmapIndex(BitmapIds::Bomb3), {0, 255, 0});
    RecolourSettings settings;
    settings.outlineCol = toColour(white);
    const auto painted = paint(BitmapIds::Bomb2, settings);
    for (int i = 10; i < 14; ++i) {
        for (const auto& [x, y] : {std::pair{i, 9}, {i, 14}, {9, i}, {14, i}}) {
            EXPECT_EQ(pixelAt(*painted, x, y), white) << x << ", " << y;
        }
        EXPECT_EQ(pixelAt(*painted, i, i), ink);
    }
    EXPECT_TRUE(isTransparentAt(*painted, 9, 9)) << "diagonal neighbours do not touch";
    expectPixels(*painted, {{{1, 0}, white}, {{0, 1}, white}});
    for (int i = 2; i < 32; ++i) {
        EXPECT_TRUE(isTransparentAt(*painted, i, 0) && isTransparentAt(*painted, 31, i) &&
                    isTransparentAt(*painted, i, 31))
            << i;
    }
}

TEST_F(RecolourOnDisplay, BatchesKeepShadedAndPlainDrawsApart) {
    loadPlainImage(bitmapIndex(BitmapIds::Bomb1), {0, 0, 0});
    const BitmapWrapper canvas(96, 32, true);
    clearTo(canvas, clearPixel);
    RecolourSettings settings;
    settings.baseCol = toColour({0, 0, 0});
    settings.newCol = toColour({255, 0, 255});
    {
        const DrawingBatch batch(canvas);
        drawId(canvas, BitmapIds::Bomb1, 0, 0);
        useRecolourShader(settings);
        drawId(canvas, BitmapIds::Bomb1, 32, 0);
        stopRecolourShader();
        drawId(canvas, BitmapIds::Bomb1, 64, 0);
    }
    expectPixels(canvas, {{{16, 16}, {0, 0, 0}}, {{48, 16}, {255, 0, 255}}, {{80, 16}, {0, 0, 0}}});
}

// Mirrored, faded, tinted and turned images, primitives between them, and a picture composed on the way.
void paintAllKinds(const BitmapWrapper& canvas, bool batched) {
    clearTo(canvas, toColour({10, 60, 110}));
    const auto batch = batched ? std::make_unique<DrawingBatch>(canvas) : nullptr;
    for (int i = 0; i < 4; ++i) {
        drawId(canvas, BitmapIds::Bomb1, 20 * i, 0, i % 2);
        drawFilledRectangle(canvas, 20 * i + 5, 10, 20 * i + 12, 50, toColour({200, 0, 40}));
        drawBitmap(canvas, getBitmap(BitmapIds::Bomb1), 20 * i, 30, 0, 40 + 60 * i);
        drawTinted(canvas, getBitmap(BitmapIds::Bomb1), 20 * i + 3, 60, 250, 130, 60 * i, 200);
        drawEllipse(canvas, 20 * i + 10, 60, 9, 4, toColour({255, 255, 0}));
        drawRotatedId(canvas, BitmapIds::Bomb1, 16, 16, 20 * i + 10, 70, 30.0f * static_cast<float>(i), 0.7f, 255);
        const auto composed = composePicture(8, 8, [i](const BitmapWrapper& made) {
            clearTo(made, toColour({0, static_cast<std::uint8_t>(80 * i), 255}));
        });
        drawWrapper(*composed, canvas, 20 * i, 85);
        putPixel(canvas, 20 * i, 99, toColour({1, 2, 3}));
    }
}

TEST_F(RecolourOnDisplay, ABatchPaintsWhatSingleDrawsPaint) {
    writeImage("images/Bomb1.png", 32, 32, [](int x, int y) {
        const auto byte = [](int value) { return static_cast<std::uint8_t>(value % 256); };
        return (x + y) % 5 == 0 ? clearPixel : toColour({byte(x * 8), byte(y * 8), byte(x * y)});
    });
    loadBitmaps(bitmapIndex(BitmapIds::Bomb1));
    const BitmapWrapper single(100, 100, true);
    const BitmapWrapper batched(100, 100, true);
    paintAllKinds(single, false);
    paintAllKinds(batched, true);
    int different = 0;
    for (int i = 0; i < 100 * 100; ++i) {
        different += pixelAt(single, i % 100, i / 100) != pixelAt(batched, i % 100, i / 100) ? 1 : 0;
    }
    // At the rim of the turned picture a texel more or less is the graphics driver's rounding, and none of ours.
    constexpr int rimOfTurnedPicture = 25;
    EXPECT_LE(different, rimOfTurnedPicture);
    EXPECT_EQ(pixelAt(batched, 8, 25), (RGB{200, 0, 40})) << "primitives have no texture";
}

class SpritesOnDisplay : public RecolourOnDisplay {
  protected:
    SpritesOnDisplay() {
        const auto figure = [](int x, int y) {
            return x >= 8 && x < 24 && y >= 4 && y < 28 ? toColour({192, 192, 192}) : clearPixel;
        };
        for (const BitmapIds id : {BitmapIds::Head0_D_014, BitmapIds::Body0_D_1, BitmapIds::Snail}) {
            writeImage(std::string("images/") + bitmapNames.at(static_cast<unsigned>(id)) + ".png", 32, 32, figure);
            loadBitmaps(bitmapIndex(id));
        }
        key_.look.colour = toColour({0, 0, 200});
        key_.frame = 1;
    }

    SpriteKey key_;
};

TEST_F(SpritesOnDisplay, APlayerIsComposedOnceInItsColour) {
    const Sprite& sprite = getSprite(key_);
    EXPECT_EQ(sprite.picture->width(), 32);
    EXPECT_EQ(sprite.picture->height(), 64);
    expectPixels(*sprite.picture, {{{16, 16}, {0, 0, 200}}, {{16, 48}, {0, 0, 200}}});  // head and body
    EXPECT_TRUE(isTransparentAt(*sprite.picture, 7, 16));
    EXPECT_EQ(&getSprite(key_), &sprite);

    key_.look.colour = toColour({0, 200, 0});
    EXPECT_EQ(pixelAt(*getSprite(key_).picture, 16, 16), (RGB{0, 200, 0}));
    EXPECT_EQ(pixelAt(*sprite.picture, 16, 16), (RGB{0, 0, 200})) << "the first one stays";
}

TEST_F(SpritesOnDisplay, AShieldIsAWhiteOutlineThenAWhiteFigure) {
    key_.flash = 1;
    const BitmapWrapper& outlined = *getSprite(key_).picture;
    // The outline is closed in each image by itself.
    expectPixels(outlined, {{{7, 16}, white}, {{16, 28}, white}, {{16, 16}, {0, 0, 200}}});

    key_.flash = 2;
    const BitmapWrapper& flashing = *getSprite(key_).picture;
    EXPECT_EQ(pixelAt(flashing, 16, 16), white);
    EXPECT_TRUE(isTransparentAt(flashing, 7, 16));

    key_.slowed = true;
    EXPECT_EQ(pixelAt(*getSprite(key_).picture, 16, 16), white) << "a snail too";
}

TEST_F(SpritesOnDisplay, TheChosenOutlineYieldsToTheShield) {
    accessibility.outlineEnabled = true;
    accessibility.outlineCol = {200, 100, 0};
    EXPECT_EQ(pixelAt(*getSprite(key_).picture, 7, 16), (RGB{200, 100, 0}));
    key_.flash = 1;
    EXPECT_EQ(pixelAt(*getSprite(key_).picture, 7, 16), white);
    key_.flash = 0;
    key_.slowed = true;
    const BitmapWrapper& snail = *getSprite(key_).picture;
    expectPixels(snail, {{{7, 16}, {200, 100, 0}}, {{16, 16}, {192, 192, 192}}});  // it keeps its own colours
}

class ShaderFailureOnDisplay : public DrawingOnDisplay {};

TEST_F(ShaderFailureOnDisplay, SaysWhatIsMissingOrBroken) {
    const auto failsWith = [](const char* expression) {
        return testing::Throws<std::runtime_error>(
            testing::Property(&std::runtime_error::what, testing::ContainsRegex(expression)));
    };
    std::filesystem::remove("shaders");
    EXPECT_THAT(createRecolourShader, failsWith("^al_attach_shader_source_file failed: "));

    std::filesystem::create_directory("shaders");
    std::ofstream("shaders/vertex.glsl") << "void main() { gl_Position = vec4(0.0); }";
    std::ofstream("shaders/pixel_recolour.glsl") << "no shader";
    EXPECT_THAT(createRecolourShader, failsWith("^al_[a-z_]+ failed: .")) << "with the compiler's log";

    std::ofstream("shaders/pixel_recolour.glsl") << "varying vec4 missing; void main() { gl_FragColor = missing; }";
    EXPECT_THAT(createRecolourShader, failsWith("^al_build_shader failed: "));
}

}  // namespace
}  // namespace vandrel
