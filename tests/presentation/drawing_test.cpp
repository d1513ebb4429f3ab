// Images and the drawing layer, in memory: no display is needed to draw.
#include "presentation/drawing.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <fstream>
#include <stdexcept>

#include "presentation/atlas.h"
#include "presentation/bitmaps.h"
#include "presentation/ink.h"
#include "support/drawing_stage.h"

namespace vandrel {
namespace {

constexpr RGB red{255, 0, 0};
constexpr RGB blue{0, 0, 255};
constexpr RGB black{0, 0, 0};

class DrawingLayer : public DrawingTest {
  protected:
    DrawingLayer() : canvas_(64, 64, true) {
        // Left half red, right half blue, magenta in the top left corner.
        writeImage("images/Wall3.png", 32, 32, [](int x, int y) {
            return x == 0 && y == 0 ? toColour({255, 0, 255}) : toColour(x < 16 ? red : blue);
        });
        loadBitmaps(bitmapIndex(BitmapIds::Wall3));
        clearToBlack(canvas_);
    }

    BitmapWrapper canvas_;
};

TEST_F(DrawingLayer, PlainAndMirrored) {
    drawId(canvas_, BitmapIds::Wall3, 10, 20);  // of which magenta is transparent
    expectPixels(canvas_, {{{11, 20}, red}, {{41, 51}, blue}, {{10, 20}, black}, {{42, 51}, black}});
    clearToBlack(canvas_);
    drawId(canvas_, BitmapIds::Wall3, 0, 0, flipHorizontally);
    expectPixels(canvas_, {{{0, 0}, blue}, {{31, 0}, black}, {{30, 0}, red}});
}

TEST_F(DrawingLayer, AlphaDimsColourAndAlphaAlike) {
    clearTo(canvas_, toColour({0, 200, 0}));
    drawBitmap(canvas_, getBitmap(BitmapIds::Wall3), 0, 0, 0, 128);
    const RGB mixed = pixelAt(canvas_, 5, 5);
    EXPECT_NEAR(mixed.red, 128, 1);
    EXPECT_NEAR(mixed.green, 100, 1);
    EXPECT_EQ(mixed.blue, 0);
}

TEST_F(DrawingLayer, TurnedAndScaledAboutAPoint) {
    // A quarter turn clockwise about the image's middle: the red left half comes to lie on top.
    drawRotatedId(canvas_, BitmapIds::Wall3, 16, 16, 32, 32, 255.0f / 4.0f, 1.0f);
    expectPixels(canvas_, {{{32, 20}, red}, {{32, 44}, blue}});
    clearToBlack(canvas_);
    drawRotatedId(canvas_, BitmapIds::Wall3, 0, 0, 8, 8, 0.0f, 0.5f);
    expectPixels(canvas_, {{{12, 16}, red}, {{20, 16}, blue}, {{26, 16}, black}});
    clearToBlack(canvas_);
    drawScaledId(canvas_, BitmapIds::Wall3, 16, 0, 16, 32, 0, 0, 64, 64);
    expectPixels(canvas_, {{{2, 2}, blue}, {{60, 60}, blue}});
}

TEST_F(DrawingLayer, CountsThePlainAndScaledDraws) {
    ALLEGRO_BITMAP* image = getBitmap(BitmapIds::Wall3);
    drawCount = 0;
    drawId(canvas_, BitmapIds::Wall3, 0, 0);
    drawBitmap(canvas_, image, 0, 0);
    drawScaledId(canvas_, BitmapIds::Wall3, 0, 0, 32, 32, 0, 0, 16, 16);
    EXPECT_EQ(drawCount, 3);
    drawTinted(canvas_, image, 0, 0, 255, 255, 255, 255);
    drawRotated(canvas_, image, 0, 0, 0, 0, 0.0f, 1.0f);
    EXPECT_EQ(drawCount, 3);
}

TEST_F(DrawingLayer, PixelsAreExactlyWhereTheyArePut) {
    putPixel(canvas_, 3, 4, toColour(red));
    putPixels(canvas_, {{10, 10, toColour(blue)}, {11, 10, toColour(red)}});
    expectPixels(canvas_, {{{3, 4}, red}, {{4, 4}, black}, {{3, 3}, black}, {{10, 10}, blue}, {{11, 10}, red}});
}

TEST_F(DrawingLayer, FollowsATargetThatWasFreedAndMadeAnew) {
    for (int i = 0; i < 3; ++i) {
        const BitmapWrapper passing(16, 16, true);
        clearTo(passing, toColour(blue));
        EXPECT_EQ(pixelAt(passing, 8, 8), blue);
    }
    drawId(canvas_, BitmapIds::Wall3, 0, 0);
    EXPECT_EQ(pixelAt(canvas_, 5, 5), red);
}

TEST_F(DrawingLayer, ComposedPicturesKeepApart) {
    const auto plain = [](RGB colour) {
        return composePicture(20, 20, [colour](const BitmapWrapper& canvas) { clearTo(canvas, toColour(colour)); });
    };
    auto first = plain(red);
    const auto second = plain(blue);
    EXPECT_EQ(pixelAt(*first, 0, 0), red);
    EXPECT_EQ(pixelAt(*second, 19, 19), blue);
    first.reset();
    auto third = composePicture(20, 20, [](const BitmapWrapper&) {});
    EXPECT_TRUE(isTransparentAt(*third, 10, 10)) << "nothing is left of what lay there";
    third.reset();
    plain(red).reset();
    EXPECT_EQ(pixelAt(*second, 0, 0), blue);
    const auto smaller = composePicture(9, 20, [](const BitmapWrapper&) {});
    ALLEGRO_BITMAP* const page = al_get_parent_bitmap(smaller->bitmap);
    ASSERT_NE(page, nullptr);
    const ALLEGRO_COLOR border =
        al_get_pixel(page, al_get_bitmap_x(smaller->bitmap) + 9, al_get_bitmap_y(smaller->bitmap) + 4);
    EXPECT_EQ(border.a, 0.0f) << "nothing is left of a larger one in the border";
    const auto larger = composePicture(40, 30, [](const BitmapWrapper&) {});
    EXPECT_TRUE(isTransparentAt(*larger, 5, 5)) << "nothing is left of a smaller one";
    EXPECT_TRUE(isTransparentAt(*larger, 39, 29));
    const auto strip = composePicture(3000, 32, [](const BitmapWrapper& canvas) { clearTo(canvas, toColour(red)); });
    EXPECT_EQ(strip->width(), 3000);
    EXPECT_EQ(pixelAt(*strip, 2999, 31), red);
}

TEST_F(DrawingLayer, SmallImagesShareAPageLargeOnesDoNotAndLazyOnesAreLoadedWhenAskedFor) {
    EXPECT_NE(al_get_parent_bitmap(getBitmap(BitmapIds::Wall3)), nullptr);
    loadPlainImage(bitmapIndex(BitmapIds::VLogo3), red, 640, 160);
    EXPECT_EQ(al_get_parent_bitmap(getBitmap(BitmapIds::VLogo3)), nullptr);
    EXPECT_EQ(bitmapWidth(BitmapIds::VLogo3), 640);
    EXPECT_EQ(bitmapHeight(BitmapIds::VLogo3), 160);

    writeImage("images/Owl2.png", 100, 70, [](int, int) { return toColour(red); });
    ASSERT_EQ(bitmapTable[static_cast<unsigned>(bitmapIndex(BitmapIds::Owl2))], nullptr);
    EXPECT_EQ(bitmapWidth(BitmapIds::Owl2), 100);
    EXPECT_NE(bitmapTable[static_cast<unsigned>(bitmapIndex(BitmapIds::Owl2))], nullptr);
}

TEST_F(DrawingLayer, MissingAndBrokenImagesAreNamed) {
    const auto load = [] { loadBitmaps(bitmapIndex(BitmapIds::Trophy)); };
    EXPECT_THAT(load, testing::ThrowsMessage<std::runtime_error>("Image not found: Trophy"));
    std::ofstream("images/Trophy.png") << "no image";
    EXPECT_THAT(load, testing::ThrowsMessage<std::runtime_error>("Error loading ./images/Trophy.png"));
}

}  // namespace
}  // namespace vandrel
