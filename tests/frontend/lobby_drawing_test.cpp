// The picture of the lobby: which texts stand where, and what tells the teams.
#include "frontend/lobby_drawing.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <memory>
#include <string>

#include "frontend/lobby.h"
#include "frontend/lobby_texts.h"
#include "frontend/screen_stage.h"
#include "match/match_players.h"
#include "match/options/game_options.h"
#include "players/player.h"
#include "players/sprites_drawing.h"
#include "presentation/bitmaps.h"
#include "presentation/text.h"
#include "shell/log.h"
#include "shell/switches.h"
#include "support/round_fixture.h"

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

// The rectangle round all pixels of a colour within a part of the screen.
struct Ink {
    Pixel first{1'000'000, 1'000'000};
    Pixel last{-1, -1};
};

Ink inkOf(RGB colour, Pixel from, Pixel to) {
    Ink ink;
    for (int y = std::max(from.y, 0); y < to.y; ++y) {
        for (int x = std::max(from.x, 0); x < to.x; ++x) {
            if (pixelAt(*screen, x, y) == colour) {
                ink.first = {std::min(ink.first.x, x), std::min(ink.first.y, y)};
                ink.last = {std::max(ink.last.x, x), y};
            }
        }
    }
    return ink;
}

class LobbyDrawing : public ScreenStage {
  protected:
    LobbyDrawing() : outputBefore_(setDebugOutput(nullptr)) {
        loadPlainImage(bitmapIndex(BitmapIds::Head0_D_014), {200, 0, 0});
        loadPlainImage(bitmapIndex(BitmapIds::Body0_D_1), {0, 0, 200});
        gameOptions = GameOptions();
        gameOptions.gameMode = GameMode::CaptureTheFlag;
        fillTeamPalettes();
        setScreenSize(864, 480);
        for (int i = 0; i < 4; ++i) {
            devices_.push_back(std::make_shared<ScriptedControls>());
        }
        lobby_ = std::make_unique<Lobby>(devices_);
    }
    ~LobbyDrawing() override {
        lobby_ = nullptr;
        clearMatch();
        releaseSpriteCache();
        gameOptions = GameOptions();
        setDebugOutput(outputBefore_);
    }

    void join(std::size_t device, Pixel centre) {
        auto& held = static_cast<ScriptedControls&>(*devices_.at(device)).held;
        held.fire = true;
        lobby_->update();
        held = {};
        Player& player = *Lobby::holderOf(*devices_[device]);
        player.look = {};  // of which the test has pictures
        player.x = centre.x - halfSquare;
        player.y = centre.y - halfSquare;
        lobby_->update();
    }

    // All lines of a font have their capitals equally far below their top.
    void expectLine(const Line& line) {
        SCOPED_TRACE(line.text);
        const bool isSmall = line.font == FontId::Builtin;
        const int width = al_get_text_width(fontHandle(line.font), line.text.c_str());
        const int left = line.at.x - width / 2;
        const Ink ink =
            inkOf(line.colour, {left - 12, line.at.y - 2}, {left + width + 12, line.at.y + (isSmall ? 9 : 39)});
        int& inset = insets_[isSmall ? 0 : 1];
        inset = inset == -1 ? ink.first.y - line.at.y : inset;
        EXPECT_EQ(ink.first.y, line.at.y + inset);
        EXPECT_GE(inset, 0);
        EXPECT_LT(inset, isSmall ? 2 : 15);
        const int cell = width / static_cast<int>(line.text.size());
        EXPECT_GE(ink.first.x, left);
        EXPECT_LT(ink.first.x, left + cell);
        EXPECT_LE(ink.last.x, left + width);
        EXPECT_GT(ink.last.x, left + width - cell);
    }

    DeviceList devices_;
    std::unique_ptr<Lobby> lobby_;

  private:
    std::array<int, 2> insets_{-1, -1};
    DebugOutput outputBefore_;
};

TEST_F(LobbyDrawing, EveryTextHasItsPlaceAndEveryTeamItsColour) {
    join(0, {364, 416});  // beside the second marker
    join(1, {616, 396});  // beside none
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

    const Pixel marker{108, 416};
    EXPECT_EQ(pixelAt(*screen, marker.x - 14, marker.y), (RGB{255, 0, 0}));
    EXPECT_EQ(pixelAt(*screen, marker.x - 18, marker.y), floorColour);
    EXPECT_EQ(pixelAt(*screen, marker.x, marker.y - 3), (RGB{255, 0, 0}));
    EXPECT_EQ(pixelAt(*screen, marker.x, marker.y - 6), floorColour);
    const Ink tie = inkOf({0, 0, 255}, {342, 412}, {347, 421});
    EXPECT_EQ(tie.last.x - tie.first.x, 4) << "the line from the second marker to its member";
    EXPECT_EQ(tie.first.y, tie.last.y);
}

TEST_F(LobbyDrawing, AKeyboardHasNoKeysForLooks) {
    const Controls& keys = *theControlsManager->devices.front();
    EXPECT_EQ(deviceLines(keys, true), deviceLines(keys, false));
}

}  // namespace
}  // namespace vandrel
