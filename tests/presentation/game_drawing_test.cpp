// Whole frames of a small arena, painted in memory from images of one colour each: what lies over what.
#include "arena/game_drawing.h"

#include <gtest/gtest.h>

#include <memory>
#include <stdexcept>
#include <tuple>
#include <utility>
#include <vector>

#include "arena/bonus.h"
#include "arena/game.h"
#include "arena/sparks.h"
#include "presentation/arena_painting.h"

namespace vandrel {
namespace {

constexpr RGB floorColour{57, 123, 8};
constexpr RGB edge{150, 160, 180};
constexpr RGB pillar{110, 110, 110};
constexpr RGB brick{180, 90, 50};
constexpr RGB powerup{250, 130, 0};
constexpr RGB bomb{10, 10, 60};
constexpr RGB front{255, 250, 200};
constexpr RGB body{250, 120, 30};
constexpr RGB tail{200, 50, 20};
constexpr RGB head{20, 200, 20};
constexpr RGB torso{20, 20, 200};

constexpr int width = 9;
constexpr int height = 7;

class GameDrawing : public ArenaPainting {
  protected:
    GameDrawing() : ArenaPainting({width, height}) {
        const std::pair<BitmapIds, RGB> images[] = {
            {BitmapIds::Block3, edge},     {BitmapIds::Block4, pillar}, {BitmapIds::Wall3, brick},
            {BitmapIds::B_Bomb, powerup},  {BitmapIds::Bomb1, bomb},    {BitmapIds::Explo1, front},
            {BitmapIds::Explo2, body},     {BitmapIds::Explo3, tail},   {BitmapIds::Head0_D_014, head},
            {BitmapIds::Body0_D_1, torso},
        };
        for (const auto& [id, colour] : images) {
            loadPlainImage(bitmapIndex(id), colour);
        }
        writeImage("images/W3NDth1.png", 32, 32, [](int x, int) { return x < 16 ? toColour(brick) : clearPixel; });
        loadBitmaps(bitmapIndex(BitmapIds::W3NDth1));
        gameOptions.shrinkSpeedFrames = 16;
        frameCounter = 1;
        game_ = std::make_unique<Game>(PackagedReplayData{});
    }
    ~GameDrawing() override {
        game_ = nullptr;
        sparks.clear();
    }

    void paint(bool forJoinScreen = false) { drawGame(*game_, canvas_, forJoinScreen); }
    // In the middle of a square, or beside it.
    RGB at(int x, int y, int dx = 0, int dy = 0) const {
        return pixelAt(canvas_, x * squareSize + 16 + dx, y * squareSize + 16 + dy);
    }
    // In the middles of these squares.
    void expectSquares(const std::vector<std::pair<Square, RGB>>& squares) const {
        for (const auto& [square, colour] : squares) {
            EXPECT_EQ(at(square.x, square.y), colour) << "at " << square.x << ", " << square.y;
        }
    }

    std::unique_ptr<Game> game_;
};

TEST_F(GameDrawing, WallsLieOverPowerupsAndCrumblingOnesLetThemThrough) {
    squareGrid.set(1, 1, SquareKind::Wall);
    bonusGrid.at(1, 1) = Bonus::Bomb;
    squareGrid.set(3, 1, SquareKind::WallCrumbling + 4);
    bonusGrid.at(3, 1) = Bonus::Bomb;
    bonusGrid.at(5, 1) = Bonus::Bomb;
    squareGrid.set(2, 2, SquareKind::GridBlock);
    squareGrid.set(0, 0, SquareKind::EdgeWall);
    paint();
    expectSquares({{{1, 1}, brick}, {{5, 1}, powerup}, {{2, 2}, pillar}, {{0, 0}, edge}, {{4, 4}, floorColour}});
    EXPECT_EQ(at(3, 1, -8), brick);
    EXPECT_EQ(at(3, 1, 8), powerup);

    bonusGrid.at(6, 6) = Bonus::Death;
    EXPECT_THROW(paint(), std::out_of_range);
}

TEST_F(GameDrawing, ARowOfEqualWallsIsOneDraw) {
    for (int x = 0; x < width; ++x) {
        squareGrid.set(x, 0, SquareKind::EdgeWall);
        squareGrid.set(x, 3, x % 2 == 0 ? SquareKind::Wall : SquareKind::HardWall);
    }
    paint();
    expectSquares({{{width - 1, 0}, edge}, {{width - 1, 3}, brick}});
    drawCount = 0;
    paint();
    EXPECT_EQ(drawCount, 1 + width) << "the strip is made already";
}

TEST_F(GameDrawing, TheLobbyHasNeitherWallsNorPowerups) {
    squareGrid.set(1, 1, SquareKind::Wall);
    bonusGrid.at(2, 1) = Bonus::Bomb;
    const auto player = addPlayer(4, 4);
    paint(true);
    expectSquares({{{1, 1}, {0, 32, 0}}, {{2, 1}, {0, 32, 0}}, {{4, 4}, torso}});
}

TEST_F(GameDrawing, TheWarningColoursTheFloorUnlessFlashingIsOff) {
    game_->shrinkState = ShrinkState::Warning;
    game_->shrinkCountdown = -31;  // the top of the first pulse
    paint();
    EXPECT_GT(at(4, 4).red, 250);
    EXPECT_LT(at(4, 4).green, 5);
    accessibility.flashingEnabled = false;
    paint();
    EXPECT_EQ(at(4, 4), floorColour);
}

TEST_F(GameDrawing, FlamesLieOverBombsFrontsOverTailsAndPlayersOverAll) {
    const auto owner = addPlayer(1, 5);
    for (const int x : {2, 4}) {
        Bomb& laid = bombGrid.edit(x, 2);
        laid.owner = owner;
        laid.fuse = 90;
    }
    for (const auto& [x, layer] : {std::pair{4, 1}, {4, 2}, {5, 2}, {5, 3}, {6, 3}, {7, 1}}) {
        Explosion flame;
        flame.owner = x == 7 ? std::weak_ptr<Player>() : owner;
        flame.layer = layer;
        flame.x = x;
        flame.y = 2;
        game_->explosions.push_back(flame);
    }
    addPlayer(6, 2);
    paint();
    // A flame without an owner has ended.
    expectSquares({{{2, 2}, bomb}, {{4, 2}, front}, {{6, 2}, torso}, {{7, 2}, floorColour}});
    EXPECT_EQ(at(5, 2, 0, 10), body);
}

TEST_F(GameDrawing, LowerPlayersStandBeforeHigherOnes) {
    addPlayer(3, 5);
    addPlayer(3, 4);
    paint();
    expectSquares({{{3, 4}, head}, {{3, 5}, torso}});  // the lower one's head covers the higher one's body
    players[0]->dead = true;
    paint();
    expectSquares({{{3, 4}, torso}, {{3, 5}, floorColour}});
}

TEST_F(GameDrawing, GhostsFadeAndBlinkBeforeTheyEnd) {
    const auto ghost = addPlayer(3, 4);
    ghost->ghost = true;
    accessibility.ghostOpacity = 0;
    const std::tuple<int, int, RGB> moments[] = {{121, 15, floorColour}, {120, 14, floorColour}, {120, 15, torso}};
    for (const auto& [timer, frame, colour] : moments) {
        ghost->shieldTimer = timer;
        frameCounter = frame;
        paint();
        EXPECT_EQ(at(3, 4), colour) << timer << " left in frame " << frame;
    }
}

TEST_F(GameDrawing, ClosingWallsGrowAndAnnouncedWallsCloseIn) {
    game_->shrinkCursors.push_back({2, 2, 1, 0});
    game_->shrinkStepCountdown = 8;
    game_->wallAppearStyle = 0;
    game_->pendingWalls.push_back({6, 3, 24});
    paint();
    EXPECT_EQ(at(2, 2, -8, -8), edge) << "half way, it covers a quarter of the square";
    EXPECT_EQ(at(2, 2, 8, 8), floorColour);
    // 48 pixels from the square, twice over (the ninth lies on the first) with 207 of 255 alpha.
    EXPECT_NEAR(at(6, 3, 0, 48).red, brick.red, 6);
    EXPECT_NE(at(6, 3, 48, 0), floorColour);
    EXPECT_EQ(at(6, 3), floorColour);
    game_->shrinkStepCountdown = 0;
    paint();
    EXPECT_EQ(at(2, 2, -8, -8), floorColour);

    game_->shrinkStepCountdown = 1;
    gameOptions.shrinkSpeedFrames.reset();
    EXPECT_THROW(paint(), std::bad_optional_access);
}

TEST_F(GameDrawing, TheHillLiesOnTheFloorRoundPowerups) {
    gameOptions.gameMode = GameMode::KingOfTheHill;
    game_->hillLeft = 3;
    game_->hillRight = 5;
    game_->hillTop = 2;
    game_->hillBottom = 4;
    bonusGrid.at(4, 3) = Bonus::Bomb;
    paint();
    for (int y = 1; y <= 5; ++y) {
        for (int x = 2; x <= 6; ++x) {
            const bool onHill = x >= 3 && x <= 5 && y >= 2 && y <= 4;
            EXPECT_EQ(at(x, y, -8, -8) != floorColour, onHill) << x << ", " << y;
        }
    }
    EXPECT_EQ(at(4, 3), powerup);
}

TEST_F(GameDrawing, SparksAndParticlesFly) {
    Spark spark;
    spark.x = 100.7f;
    spark.y = 60.2f;
    spark.colour = {1, 2, 3};
    sparks.push_back(spark);
    const auto player = addPlayer(6, 5);
    player->dead = true;
    PlayerParticle particle;
    particle.sprite = makeKey(*player, 1, Facing::Down);
    particle.x = 64;
    particle.y = 96;
    player->particles.push_back(particle);
    paint();
    EXPECT_EQ(pixelAt(canvas_, 100, 60), (RGB{1, 2, 3}));
    EXPECT_EQ(at(2, 3), torso) << "the pivot is the middle of the cell";
    EXPECT_EQ(at(2, 3, 0, -24), head);
}

}  // namespace
}  // namespace vandrel
