#include "presentation/text.h"

#include <allegro5/allegro_font.h>
#include <allegro5/allegro_ttf.h>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>
#include <list>
#include <memory>
#include <stdexcept>
#include <string>
#include <utility>

#include "presentation/drawing.h"
#include "presentation/ink.h"
#include "presentation/toasts_drawing.h"
#include "support/drawing_stage.h"

namespace vandrel {
namespace {

// A working directory without the font file: the platform's own font is all there is.
class Text : public DrawingTest {
  protected:
    Text() : canvas_(200, 60, true) {
        al_init_font_addon();
        al_init_ttf_addon();
        clearToBlack(canvas_);
    }

    Ink ink() const { return inkOf(canvas_, allOf(canvas_), RGB{255, 255, 255}); }

    BitmapWrapper canvas_;
};

TEST_F(Text, WithoutItsFileIsSmallAndPlacedByItsTopAndItsLeftEdgeOrMiddle) {
    EXPECT_THAT([] { loadFonts(); }, testing::ThrowsMessage<std::runtime_error>("Error loading fonts!"));
    const ALLEGRO_COLOR white = al_map_rgb(255, 255, 255);
    drawText(canvas_, FontId::Builtin, 50, 20, white, "HHHH");
    Ink box = ink();
    EXPECT_NEAR(box.left, 50, 1);
    EXPECT_NEAR(box.right, 50 + 4 * 8 - 1, 2);
    EXPECT_GE(box.top, 20);
    EXPECT_LE(box.bottom, 28);

    clearToBlack(canvas_);
    drawText(canvas_, FontId::Builtin, 100, 20, white, "HHHH", alignCentre);
    box = ink();
    EXPECT_NEAR(box.left + box.right, 200, 3);

    // Toasts are centred, and their places cut to whole pixels.
    clearToBlack(canvas_);
    std::list<std::unique_ptr<Toast>> toasts;
    toasts.push_back(
        std::make_unique<Toast>("-17", Vector2Base<float>{60.9f, 30.9f}, Vector2Base<float>{}, FontId::Builtin));
    drawToasts(toasts, canvas_);
    box = ink();
    EXPECT_NEAR(box.left + box.right, 120, 3);
    EXPECT_GE(box.top, 30);
    EXPECT_LE(box.bottom, 38);
}

TEST_F(Text, EachFontHasItsSizeAndWrappedTextStandsInRows) {
    std::filesystem::create_directory_symlink(std::filesystem::path(VANDREL_SOURCE_DIR) / "game" / "fonts", "fonts");
    loadFonts();
    const std::pair<FontId, int> advances[] = {
        {FontId::Builtin, 8}, {FontId::Font20, 14}, {FontId::Font24, 17}, {FontId::Font30, 21}, {FontId::Font64, 46}};
    for (const auto& [font, advance] : advances) {
        EXPECT_NEAR(al_get_text_width(fontHandle(font), "MMMM"), 4 * advance, 4) << advance;
    }
    // The blank behind the thirtieth becomes the break, and the dot stands at the start of the second row.
    drawWrappedText(canvas_, std::string(30, ' ') + " .", 10, 0, 25, al_map_rgb(255, 255, 255));
    const Ink box = ink();
    EXPECT_GE(box.left, 10);
    EXPECT_LT(box.right, 10 + 21);
    EXPECT_GE(box.top, 25);
}

}  // namespace
}  // namespace vandrel
