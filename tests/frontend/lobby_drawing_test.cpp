// The picture of the lobby: which texts stand where, and what tells the teams.
#include "frontend/lobby_drawing.h"

#include <gtest/gtest.h>

#include <array>
#include <string>

#include "frontend/lobby_fixture.h"
#include "frontend/lobby_texts.h"
#include "frontend/screen_stage.h"
#include "players/sprites_drawing.h"
#include "presentation/bitmaps.h"
#include "presentation/ink.h"
#include "presentation/text.h"

namespace vandrel {
namespace {

constexpr RGB white{255, 255, 255};
constexpr RGB grey{128, 128, 128};
constexpr RGB red{255, 32, 32};
constexpr RGB floorColour{0, 32, 0};

// A text in the built-in font, by the middle of its top.
struct Line {
    std::string text;
    RGB colour;
    Pixel at;
    FontId font = FontId::Builtin;
};

class LobbyDrawing : public ScreenStage, protected LobbyStage {
  protected:
    LobbyDrawing() {
        loadPlainImage(bitmapIndex(BitmapIds::Head0_D_014), {200, 0, 0});
        loadPlainImage(bitmapIndex(BitmapIds::Body0_D_1), {0, 0, 200});
        setScreenSize(864, 480);
        open(GameMode::CaptureTheFlag);
    }
    ~LobbyDrawing() override { releaseSpriteCache(); }

    void joinAt(std::size_t device, Pixel centre) {
        Player& player = join(device);
        player.look = {};  // of which the test has pictures
        standAt(player, centre);
    }

    // All lines of a font have their capitals equally far below their top.
    void expectLine(const Line& line) {
        SCOPED_TRACE(line.text);
        const bool isSmall = line.font == FontId::Builtin;
        const int width = al_get_text_width(fontHandle(line.font), line.text.c_str());
        const int left = line.at.x - width / 2;
        const Ink ink =
            inkOf(*screen, {left - 12, line.at.y - 2, left + width + 12, line.at.y + (isSmall ? 9 : 39)}, line.colour);
        int& inset = insets_[isSmall ? 0 : 1];
        inset = inset == -1 ? ink.top - line.at.y : inset;
        EXPECT_EQ(ink.top, line.at.y + inset);
        EXPECT_GE(inset, 0);
        EXPECT_LT(inset, isSmall ? 2 : 15);
        const int cell = width / static_cast<int>(line.text.size());
        EXPECT_GE(ink.left, left);
        EXPECT_LT(ink.left, left + cell);
        EXPECT_LE(ink.right, left + width);
        EXPECT_GT(ink.right, left + width - cell);
    }

  private:
    std::array<int, 2> insets_{-1, -1};
};

TEST_F(LobbyDrawing, EveryTextHasItsPlaceAndEveryTeamItsColour) {
    joinAt(0, {364, 416});  // beside the second marker
    joinAt(1, {616, 396});  // beside none
    lobby_->updateReadiness(true);
    drawLobby(*lobby_, *screen);
    const Line lines[] = {{"UNJOIN", white, {176, 16}},
                          {"Key", white, {176, 26}},
                          {"Scripted", white, {176, 88}},
                          {"JOIN", white, {496, 16}},
                          {"Scripted", grey, {496, 88}},
                          {"Select a team!", white, {432, 150}, FontId::Font30},
                          {"Press SPACE when ready", white, {432, 240}, FontId::Font30},
                          {"(or all players hold bomb button)", white, {432, 290}},
                          {"Not all players have chosen a team!", red, {432, 310}, FontId::Font30},
                          {"At least 2 teams must have players!", red, {432, 350}, FontId::Font30},
                          {"Team 1", white, {108, 432}},
                          {"Form 2 or more teams", white, {432, 472}},
                          {"ESC: exit", white, {36, 0}}};
    for (const Line& line : lines) {
        expectLine(line);
    }
    EXPECT_EQ(pixelAt(*screen, 5, 300), floorColour);

    EXPECT_EQ(pixelAt(*screen, 108 - 14, 416), (RGB{255, 0, 0})) << "the first marker, 16 by 4 pixels each way";
    EXPECT_EQ(pixelAt(*screen, 108 - 18, 416), floorColour);
    EXPECT_EQ(pixelAt(*screen, 108, 416 - 3), (RGB{255, 0, 0}));
    EXPECT_EQ(pixelAt(*screen, 108, 416 - 6), floorColour);
    const Ink tie = inkOf(*screen, {342, 412, 347, 421}, RGB{0, 0, 255});
    EXPECT_EQ(tie.right - tie.left, 4) << "the line from the second marker to its member";
    EXPECT_EQ(tie.top, tie.bottom);
}

TEST_F(LobbyDrawing, AKeyboardHasNoKeysForLooks) {
    const Controls& keys = *theControlsManager->devices.front();
    EXPECT_EQ(deviceLines(keys, true), deviceLines(keys, false));
}

}  // namespace
}  // namespace vandrel
