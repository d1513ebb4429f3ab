// The players of a frame and what hangs on them, painted in memory from figures of one colour each.
#include "players/players_drawing.h"

#include <allegro5/allegro_font.h>
#include <gtest/gtest.h>

#include <memory>
#include <stdexcept>
#include <tuple>

#include "presentation/arena_painting.h"
#include "presentation/ink.h"
#include "presentation/text.h"

namespace vandrel {
namespace {

constexpr RGB ground{0, 0, 0};
constexpr RGB white{255, 255, 255};
constexpr RGB downHead{200, 0, 0};
constexpr RGB rightHead{0, 200, 0};
constexpr RGB torso{0, 0, 200};
constexpr RGB teamColour{250, 120, 0};

class PulledControls final : public InertControls {
  public:
    bool isConnected() const override { return false; }
};

class PlayersDrawing : public ArenaPainting {
  protected:
    PlayersDrawing() : ArenaPainting({9, 9}) {
        al_init_font_addon();
        EXPECT_THROW(loadFonts(), std::runtime_error) << "the platform's own font is all there is, and enough";
        loadPlainImage(bitmapIndex(BitmapIds::Head0_D_014), downHead);
        loadPlainImage(bitmapIndex(BitmapIds::Head0_R_0), rightHead);
        for (const BitmapIds body : {BitmapIds::Body0_D_0, BitmapIds::Body0_D_1}) {
            loadPlainImage(bitmapIndex(body), torso);
        }
    }

    void paint() {
        clearTo(canvas_, toColour(ground));
        drawPlayers(canvas_);
    }
    RGB at(int x, int y) const { return pixelAt(canvas_, x, y); }

    std::shared_ptr<Player> player = addPlayer(4, 4);
};

constexpr int left = 4 * squareSize;  // of the player
constexpr int top = 4 * squareSize;

TEST_F(PlayersDrawing, TheRespawnRingIsNineFadedCopiesThatCloseIn) {
    player->dead = true;
    player->startX = 4;
    player->startY = 4;
    const std::tuple<GameMode, bool, int, int, int> cases[] = {{GameMode::Deathmatch, false, 119, 1, 9},
                                                               {GameMode::Deathmatch, false, 120, 1, 0},
                                                               {GameMode::Deathmatch, false, 239, 2, 9},
                                                               {GameMode::Deathmatch, true, 20, 1, 0},
                                                               {GameMode::Classic, false, 20, 1, 0}};
    for (const auto& [mode, isAI, timer, multiplier, copies] : cases) {
        gameOptions.gameMode = mode;
        gameOptions.frameMultiplier = multiplier;
        player->isAI = isAI;
        player->respawnTimer = timer;
        paint();
        drawCount = 0;
        paint();
        EXPECT_EQ(drawCount, copies) << timer;
    }

    gameOptions = GameOptions();
    gameOptions.gameMode = GameMode::Deathmatch;
    player->isAI = false;
    player->respawnTimer = 40;
    paint();
    const Pixel spot = squareToPixel(player->respawnPosition());
    // 80 pixels away at 175 of 255; the ninth copy lies on the first, below the spot.
    const RGB beside = at(spot.x + 16 + 80, spot.y + 16);
    EXPECT_NEAR(beside.blue, 200 * 175 / 255, 2);
    EXPECT_NEAR(at(spot.x + 16, spot.y + 16 + 80).blue, 200 * (255 - 80 * 80 / 255) / 255, 2);
    EXPECT_EQ(at(spot.x + 16, spot.y + 16), ground);
}

TEST_F(PlayersDrawing, AfterimagesHalveAndLookWhereThePlayerLooked) {
    for (int age = 19; age >= 0; --age) {
        player->trail.push_back({left - 60 * ((age + 1) / 5), top, Facing::Down});
    }
    player->x = left + 90;
    paint();
    // Every fifth point from the newest one on; the four behind it lie on its spot and add nothing.
    EXPECT_NEAR(at(left - 60 + 16, top + 16).blue, 200 * 127 / 255, 2);
    EXPECT_NEAR(at(left - 120 + 16, top + 16).blue, 200 * 63 / 255, 2);
    EXPECT_EQ(at(left + 16, top + 16), ground) << "the four newest leave nothing";

    player->ghost = true;
    paint();
    EXPECT_EQ(at(left - 60 + 16, top + 16), ground) << "ghosts leave none";
}

TEST_F(PlayersDrawing, TeamMarkersAreFilledForTheSolidAndOnlyInTeamModes) {
    teams.resize(1);
    teams[0].colour = toColour(teamColour);
    player->team = 0;
    accessibility.ghostOpacity = 0;
    const int middle = left + 16;
    for (const GameMode mode : {GameMode::Classic, GameMode::CaptureTheFlag, GameMode::BattleRoyale,
                                GameMode::KingOfTheHill, GameMode::SnakeHunter, GameMode::Everything}) {
        gameOptions.gameMode = mode;
        const bool shown = mode != GameMode::Classic && mode != GameMode::SnakeHunter;
        player->ghost = false;
        paint();
        EXPECT_EQ(at(middle, top + 34) == teamColour, shown) << static_cast<int>(mode);
        player->ghost = true;
        player->shieldTimer = 1000;
        paint();
        EXPECT_EQ(at(middle, top + 34), ground) << "hollow";
        EXPECT_EQ(at(middle - 16, top + 32) != ground || at(middle - 15, top + 32) != ground, shown);
    }
}

TEST_F(PlayersDrawing, SnakesAreHeadsWithTheGhostsAlphaOnEveryPart) {
    player->facing = Facing::Right;
    player->setSnakeLength(2);
    player->snakeParts = {{left - 40, top, Facing::Down}, {left - 80, top, Facing::Right}};
    paint();
    EXPECT_EQ(at(left + 16, top + 16), rightHead);
    EXPECT_EQ(at(left - 40 + 16, top + 16), downHead);
    EXPECT_EQ(at(left - 80 + 16, top + 16), rightHead);
    player->ghost = true;
    player->shieldTimer = 1000;
    accessibility.ghostOpacity = 51;
    paint();
    EXPECT_NEAR(at(left + 16, top + 16).green, 40, 1);
    EXPECT_NEAR(at(left - 80 + 16, top + 16).green, 40, 1);
    player->setSnakeLength(0);
}

TEST_F(PlayersDrawing, WordsRingsAndArcs) {
    // White pixels; the figure has none.
    const auto whiteIn = [this](const Part& part) { return inkOf(canvas_, part, white).count; };
    paint();
    EXPECT_EQ(whiteIn(allOf(canvas_)), 0);
    player->controls = std::make_shared<PulledControls>();
    paint();
    // Fifteen characters of eight pixels, below the feet and round the middle.
    EXPECT_GT(whiteIn({left + 16 - 60, top + 32, left + 16 - 40, top + 40}), 0);
    EXPECT_GT(whiteIn({left + 16 + 40, top + 32, left + 16 + 60, top + 40}), 0);
    player->controls = std::make_shared<NoControls>();
    showControllerDebug = true;
    paint();
    EXPECT_GT(whiteIn({left + 12, top + 42, left + 20, top + 50}), 0) << "the question mark of a nameless device";
    showControllerDebug = false;

    player->pingTimer = 50;
    player->look.colour = toColour(teamColour);
    paint();
    EXPECT_TRUE(at(left + 16, top + 16 - 50) == teamColour || at(left + 16, top + 16 - 51) == teamColour);
    player->pingTimer = 0;

    player->setSnakeLength(1);  // a figure of one cell, so that the arc shows beside it
    player->crawling = true;
    player->reviveProgress = reaches.rescueFrames / 4;
    paint();
    EXPECT_GT(whiteIn({left + 16, top + 16, left + 36, top + 36}), 40) << "clockwise from the right";
    EXPECT_EQ(whiteIn({left - 4, top - 4, left + 14, top + 36}), 0);
    player->crawlTimer = 5;
    paint();
    EXPECT_EQ(whiteIn({left - 4, top - 4, left + 36, top + 36}), 0) << "who gets up alone needs nobody";
    player->setSnakeLength(0);
}

}  // namespace
}  // namespace vandrel
