// The players of a frame and what hangs on them, painted in memory from figures of one colour each.
#include "players/players_drawing.h"

#include <allegro5/allegro_font.h>
#include <gtest/gtest.h>

#include <memory>

#include "arena/arena.h"
#include "arena/team.h"
#include "match/options/game_options.h"
#include "players/player.h"
#include "players/sprites_drawing.h"
#include "presentation/bitmaps.h"
#include "presentation/drawing.h"
#include "presentation/text.h"
#include "shell/accessibility.h"
#include "shell/frame_counter.h"
#include "shell/log.h"
#include "support/drawing_stage.h"

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

class PlayersDrawing : public DrawingTest {
  protected:
    PlayersDrawing() : canvas_(9 * squareSize, 9 * squareSize, true), outputBefore_(setDebugOutput(nullptr)) {
        al_init_font_addon();
        try {
            loadFonts();
        } catch (const std::runtime_error&) {
            // The platform's own font is all that is there, and enough.
        }
        loadPlainImage(bitmapIndex(BitmapIds::Head0_D_014), downHead);
        loadPlainImage(bitmapIndex(BitmapIds::Head0_R_0), rightHead);
        for (const BitmapIds body : {BitmapIds::Body0_D_0, BitmapIds::Body0_D_1}) {
            loadPlainImage(bitmapIndex(body), torso);
        }
        gameOptions = GameOptions();
        resizeArena({9, 9});
    }
    ~PlayersDrawing() override {
        players.clear();
        teams.clear();
        releaseSpriteCache();
        gameOptions = GameOptions();
        accessibility = AccessibilitySettings();
        frameCounter = 0;
        setDebugOutput(outputBefore_);
    }

    static std::shared_ptr<Player> addPlayer(std::shared_ptr<Controls> controls = std::make_shared<NoControls>()) {
        auto player = std::make_shared<Player>(0, 0, -1, PlayerLook{}, std::move(controls));
        player->x = 4 * squareSize;
        player->y = 4 * squareSize;
        player->animFrame = 1;
        players.push_back(player);
        return player;
    }
    void paint() {
        clearTo(canvas_, toColour(ground));
        drawPlayers(canvas_);
    }
    RGB at(int x, int y) const { return pixelAt(canvas_, x, y); }

    BitmapWrapper canvas_;

  private:
    DebugOutput outputBefore_;
};

constexpr int left = 4 * squareSize;  // of the player that `addPlayer` makes
constexpr int top = 4 * squareSize;

TEST_F(PlayersDrawing, TheRespawnRingIsNineFadedCopiesThatCloseIn) {
    const auto player = addPlayer();
    player->dead = true;
    player->startX = 4;
    player->startY = 4;
    struct Case {
        GameMode mode;
        bool isAI;
        int timer, multiplier;
        int copies;
    };
    for (const Case& c : {Case{GameMode::Deathmatch, false, 119, 1, 9}, Case{GameMode::Deathmatch, false, 120, 1, 0},
                          Case{GameMode::Deathmatch, false, 239, 2, 9}, Case{GameMode::Deathmatch, true, 20, 1, 0},
                          Case{GameMode::Classic, false, 20, 1, 0}}) {
        gameOptions.gameMode = c.mode;
        gameOptions.frameMultiplier = c.multiplier;
        player->isAI = c.isAI;
        player->respawnTimer = c.timer;
        paint();
        drawCount = 0;
        paint();
        EXPECT_EQ(drawCount, c.copies) << c.timer;
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
    const auto player = addPlayer();
    for (int age = 19; age >= 0; --age) {
        player->trail.push_back({left - 60 * ((age + 1) / 5), top, Facing::Down});
    }
    player->x = left + 90;
    paint();
    // Every fifth point from the newest one on; the four behind it lie on its spot and add nothing.
    const int alphas[] = {127, 63};
    for (int i = 0; i < 2; ++i) {
        EXPECT_NEAR(at(left - 60 * (i + 1) + 16, top + 16).blue, 200 * alphas[i] / 255, 2) << i;
    }
    EXPECT_EQ(at(left + 16, top + 16), ground) << "the four newest leave nothing";

    player->ghost = true;
    paint();
    EXPECT_EQ(at(left - 60 + 16, top + 16), ground) << "ghosts leave none";
}

TEST_F(PlayersDrawing, TeamMarkersAreFilledForTheSolidAndOnlyInTeamModes) {
    teams.resize(1);
    teams[0].colour = toColour(teamColour);
    const auto player = addPlayer();
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
    const auto player = addPlayer();
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
    const auto player = addPlayer(std::make_shared<PulledControls>());
    // White pixels; the figure has none.
    const auto whiteIn = [this](int fromX, int toX, int fromY, int toY) {
        int found = 0;
        for (int y = fromY; y < toY; ++y) {
            for (int x = fromX; x < toX; ++x) {
                found += at(x, y) == white ? 1 : 0;
            }
        }
        return found;
    };
    paint();
    // Fifteen characters of eight pixels, below the feet and round the middle.
    EXPECT_GT(whiteIn(left + 16 - 60, left + 16 - 40, top + 32, top + 40), 0);
    EXPECT_GT(whiteIn(left + 16 + 40, left + 16 + 60, top + 32, top + 40), 0);
    player->controls = std::make_shared<NoControls>();
    paint();
    EXPECT_EQ(whiteIn(0, canvas_.width(), 0, canvas_.height()), 0);
    showControllerDebug = true;
    paint();
    EXPECT_GT(whiteIn(left + 12, left + 20, top + 42, top + 50), 0) << "the question mark of a nameless device";
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
    const int quarter = whiteIn(left + 16, left + 36, top + 16, top + 36);
    EXPECT_GT(quarter, 40) << "clockwise from the right";
    EXPECT_EQ(whiteIn(left - 4, left + 14, top - 4, top + 36), 0);
    player->crawlTimer = 5;
    paint();
    EXPECT_EQ(whiteIn(left - 4, left + 36, top - 4, top + 36), 0) << "who gets up alone needs nobody";
    player->setSnakeLength(0);
}

}  // namespace
}  // namespace vandrel
