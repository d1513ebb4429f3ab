#include <gtest/gtest.h>

#include <functional>
#include <set>
#include <string>
#include <tuple>
#include <utility>
#include <vector>

#include "frontend/credits.h"
#include "frontend/message_screen.h"
#include "frontend/screen_stage.h"
#include "frontend/title_figure.h"
#include "presentation/bitmap_ids.h"
#include "presentation/ink.h"

namespace vandrel {
namespace {

constexpr RGB black{};
constexpr RGB white{255, 255, 255};

// Of that colour in so many rows of the screen.
Ink inkInRows(RGB colour, int top, int height) {
    return inkOf(*screen, {0, top, screen->width(), top + height}, colour);
}

class MessageScreen : public ScreenStage {
  protected:
    MessageScreen() {
        setScreenSize(800, 600);
        keysAt = [](int tick) { return tick == 2 ? std::set<int>{ALLEGRO_KEY_ENTER} : std::set<int>{}; };
    }
};

TEST_F(MessageScreen, CentresItsRowsOnThePage) {
    const std::vector<std::string> shown[] = {{"HHHH", "HHHH", "HHHH"}, {"HHHH\nHHHH", "HHHH"}};
    for (const std::vector<std::string>& lines : shown) {
        clearTo(*screen, al_map_rgb(9, 9, 9));
        EXPECT_TRUE(msgScreen(lines, ALLEGRO_KEY_ENTER, noCancelKey));
        const int inset = inkInRows(white, 212, 44).top - 212;  // of the capitals in their row
        ASSERT_GE(inset, 0);
        ASSERT_LT(inset, 15);
        for (const int y : {212, 256, 300}) {
            const Ink row = inkInRows(white, y, 44);
            EXPECT_EQ(row.top, y + inset);
            EXPECT_NEAR(row.left + row.right, 800, 4);
        }
        EXPECT_EQ(inkInRows(white, 0, 212).count, 0);
        EXPECT_EQ(inkInRows(white, 344, 256).count, 0);
        EXPECT_EQ(pixelAt(*screen, 0, 0), black) << "what was there before is gone";
    }
}

TEST_F(MessageScreen, EndsByItsKeysAlone) {
    const auto pressedAt = [](int key, int from) {
        return [key, from](int tick) { return tick >= from ? std::set<int>{key} : std::set<int>{}; };
    };
    const auto escapeThenOk = [](int tick) -> std::set<int> { return {tick < 9 ? ALLEGRO_KEY_ESCAPE : ALLEGRO_KEY_Y}; };
    const auto letGoAndPressedAgain = [](int tick) {
        return tick == 7 || tick == 8 ? std::set<int>{} : std::set<int>{ALLEGRO_KEY_Y};
    };
    // The key held on the screen before, or 0; the cancel key; the keys; the answer, and after how many ticks.
    const std::tuple<const char*, int, int, std::function<std::set<int>(int tick)>, bool, int> cases[] = {
        {"the OK key", 0, ALLEGRO_KEY_ESCAPE, pressedAt(ALLEGRO_KEY_Y, 5), true, 5},
        {"the cancel key", 0, ALLEGRO_KEY_ESCAPE, pressedAt(ALLEGRO_KEY_ESCAPE, 5), false, 5},
        {"no cancel key", 0, noCancelKey, escapeThenOk, true, 9},
        {"an OK key still held", ALLEGRO_KEY_Y, ALLEGRO_KEY_ESCAPE, letGoAndPressedAgain, true, 9},
    };
    for (const auto& [what, heldBefore, cancelKey, keys, answer, ticks] : cases) {
        SCOPED_TRACE(what);
        keysAt = [held = heldBefore](int) { return std::set<int>{held}; };
        menuKeyPressed(ALLEGRO_KEY_Y, menuControlMode, false);
        menuKeyPressed(ALLEGRO_KEY_ESCAPE, menuControlMode, false);
        keysAt = keys;
        EXPECT_EQ(msgScreen({"?"}, ALLEGRO_KEY_Y, cancelKey), answer);
        EXPECT_EQ(totalTicks, ticks);
    }
}

TEST(TitleFigure, ItsJointsSwingAndCarryWhatHangsFromThem) {
    const std::tuple<float, int, Pixel> joints[] = {
        {0.0f, 3, {250, 760}},  {0.0f, 1, {250, 770}},  {0.0f, 2, {514, 761}},  {0.0f, 4, {563, 761}},
        {0.0f, 6, {397, 660}},  {0.0f, 13, {456, 992}}, {1.5f, 1, {349, 683}},  {1.5f, 2, {402, 819}},
        {1.5f, 13, {477, 969}}, {1.5f, 19, {403, 632}}, {4.0f, 13, {424, 942}}, {4.0f, 7, {318, 563}},
    };
    TitleFigure figure;
    for (const auto& [clock, id, expected] : joints) {
        figure.clock = clock;
        EXPECT_EQ(figure.position(id), expected) << "joint " << id << " at " << clock;
    }
    EXPECT_THROW(figure.position(20), std::out_of_range);
}

class TitleFigureDrawing : public ScreenStage {};

TEST_F(TitleFigureDrawing, DrawsLinesTheHeadAndTwoDots) {
    TitleFigure figure;
    figure.draw(*screen);
    const auto at = [&](int id) { return figure.position(id) + Pixel{0, -300}; };
    for (const auto& [first, second] : {std::pair{3, 4}, std::pair{5, 9}, std::pair{13, 11}, std::pair{18, 19}}) {
        const Pixel middle{(at(first).x + at(second).x) / 2, (at(first).y + at(second).y) / 2};
        EXPECT_EQ(pixelAt(*screen, middle.x, middle.y), white) << "line " << first << ", " << second;
    }
    const Pixel corner = at(7);
    const Pixel opposite = at(8);
    EXPECT_EQ(pixelAt(*screen, (corner.x + opposite.x) / 2, corner.y), white);
    EXPECT_EQ(pixelAt(*screen, opposite.x, (corner.y + opposite.y) / 2), white);
    for (const int id : {14, 15}) {
        const Ink dot = inkOf(*screen, {at(id).x - 3, at(id).y - 3, at(id).x + 4, at(id).y + 4}, white);
        EXPECT_EQ(dot.count, 4) << "dot " << id;
        EXPECT_EQ(pixelAt(*screen, at(id).x - 1, at(id).y - 1), white);
    }
}

class Credits : public ScreenStage {
  protected:
    static constexpr RGB sealColour{200, 0, 0};

    Credits() {
        loadPlainImage(static_cast<int>(BitmapIds::VLogo3), {0, 0, 200}, 640, 160);
        loadPlainImage(static_cast<int>(BitmapIds::MKR), sealColour, 96, 96);
    }

    // The page as it is when Escape is pressed at that tick.
    void leaveAt(int ticks) {
        keysAt = [ticks](int tick) { return tick == ticks ? std::set<int>{ALLEGRO_KEY_ESCAPE} : std::set<int>{}; };
        credits();
        EXPECT_EQ(totalTicks, ticks);
    }
};

TEST_F(Credits, AllRowsStandOnThePageBelowTheLogo) {
    leaveAt(3);
    EXPECT_EQ(pixelAt(*screen, 960 - 320, 0), (RGB{0, 0, 200}));
    EXPECT_EQ(pixelAt(*screen, 960 + 319, 159), (RGB{0, 0, 200}));
    EXPECT_EQ(pixelAt(*screen, 960 + 320, 0), black);
    EXPECT_GT(inkInRows({255, 208, 208}, 190, 33).count, 0) << "the first heading";
    EXPECT_GT(inkInRows({208, 255, 208}, 190, 890).count, 0);
    EXPECT_GT(inkInRows({208, 208, 255}, 190, 890).count, 0);
    const Ink names = inkInRows(white, 0, 1080);
    EXPECT_GE(names.top, 190 + 33);
    EXPECT_GT(names.bottom, 900);
    EXPECT_LT(names.bottom, 1070) << "the last row is cut off";
}

TEST_F(Credits, TheSealWandersOverThePageTurningAndGrowing) {
    int sizeBefore = 0;
    for (const auto& [ticks, corner] : {std::pair{105, Pixel{1792, 537}}, std::pair{314, Pixel{961, 538}}}) {
        leaveAt(ticks);
        const Part aroundCorner{corner.x - 2, corner.y - 2, corner.x + 3, corner.y + 3};
        EXPECT_GT(inkOf(*screen, aroundCorner, sealColour).count, 0) << "after " << ticks << " updates";
        const int size = inkOf(*screen, allOf(*screen), sealColour).count;
        EXPECT_NE(size, sizeBefore);
        sizeBefore = size;
    }
}

}  // namespace
}  // namespace vandrel
