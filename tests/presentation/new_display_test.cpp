// What becomes of pictures when the display goes and another one comes, or another size.
#include <gtest/gtest.h>

#include <stdexcept>

#include "presentation/atlas.h"
#include "presentation/bitmaps.h"
#include "presentation/drawing.h"
#include "presentation/ink.h"
#include "shell/display.h"
#include "support/drawing_stage.h"

namespace vandrel {
namespace {

class NewDisplayOnDisplay : public DrawingOnDisplay {
  protected:
    static void replaceDisplay() {
        al_destroy_display(al_get_current_display());
        al_set_new_display_flags(ALLEGRO_WINDOWED | ALLEGRO_PROGRAMMABLE_PIPELINE);
        if (al_create_display(320, 240) == nullptr) {
            throw std::runtime_error("no second display");
        }
        forgetTarget();
    }
    static bool isInMemory(ALLEGRO_BITMAP* bitmap) {
        return (al_get_bitmap_flags(bitmap) & ALLEGRO_MEMORY_BITMAP) != 0;
    }
};

TEST_F(NewDisplayOnDisplay, PicturesSurviveAndAreHealedWhenDrawn) {
    constexpr RGB red{255, 0, 0};
    constexpr RGB blue{0, 0, 255};
    loadPlainImage(bitmapIndex(BitmapIds::Block3), red);
    const auto composed =
        composePicture(24, 24, [blue](const BitmapWrapper& canvas) { clearTo(canvas, toColour(blue)); });
    EXPECT_FALSE(isInMemory(getBitmap(BitmapIds::Block3)));
    replaceDisplay();

    const BitmapWrapper canvas(64, 64, true);
    clearToBlack(canvas);
    drawId(canvas, BitmapIds::Block3, 0, 0);
    drawWrapper(*composed, canvas, 40, 40);
    expectPixels(canvas, {{{16, 16}, red}, {{50, 50}, blue}, {{36, 36}, {0, 0, 0}}});
    EXPECT_FALSE(isInMemory(getBitmap(BitmapIds::Block3)));
    EXPECT_FALSE(isInMemory(composed->bitmap));

    const auto another = composePicture(24, 24, [red](const BitmapWrapper& made) { clearTo(made, toColour(red)); });
    drawWrapper(*another, canvas, 40, 0);
    EXPECT_EQ(pixelAt(canvas, 50, 10), red) << "canvases of the lost display are of use again";
}

// A change of mode, and back again as when nobody confirms it. Mixed pixels are what keeps letters whole.
TEST_F(NewDisplayOnDisplay, TheGameBitmapIsMixedWhereTheNewSizeShrinksIt) {
    eventQueue = al_create_event_queue();
    const auto isMixed = [] { return (al_get_bitmap_flags(screen->bitmap) & ALLEGRO_MIN_LINEAR) != 0; };
    constexpr bool windowed = true;
    setVideoMode(320, 240, windowed, ALLEGRO_DEFAULT_DISPLAY_ADAPTER);
    setGameScreenSize(480, 320);
    EXPECT_TRUE(isMixed());
    for (const int width : {480, 320, 640}) {
        setVideoMode(width, width, windowed, ALLEGRO_DEFAULT_DISPLAY_ADAPTER);
        EXPECT_EQ(displayBitmap->width(), width);
        EXPECT_EQ(isMixed(), width < 480) << width;
    }
    screen.reset();
    displayBitmap.reset();
    al_destroy_display(theDisplay);
    theDisplay = nullptr;
    al_destroy_event_queue(eventQueue);
    eventQueue = nullptr;
    forgetTarget();
}

}  // namespace
}  // namespace vandrel
