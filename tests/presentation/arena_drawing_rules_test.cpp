// What the painting of the arena computes before it paints: no bitmap is touched.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <stdexcept>
#include <tuple>
#include <utility>
#include <vector>

#include "arena/background_drawing.h"
#include "arena/bomb.h"
#include "arena/bombs_drawing.h"
#include "arena/bonus.h"
#include "arena/hill_drawing.h"
#include "arena/walls_drawing.h"
#include "match/options/game_options.h"

namespace vandrel {
namespace {

using enum BitmapIds;
using ::testing::ElementsAre;
using ::testing::FieldsAre;
using ::testing::FloatEq;
using ::testing::IsEmpty;

class ArenaDrawingRules : public ::testing::Test {
  protected:
    ~ArenaDrawingRules() override { gameOptions = GameOptions(); }
};

TEST_F(ArenaDrawingRules, KindsHaveTheirImages) {
    // Up to which kind, from the one behind the row before.
    const std::pair<int, std::optional<BitmapIds>> kinds[] = {
        {0, {}},
        {1, Block4},
        {2, Block3},
        {4, Wall3},
        {5, Wall3CrumbleNew},
        {6, Wall3CrumbleNew2},
        {9, {}},
        {19, W3NDth1},
        {29, W3NDth2},
        {39, {}},
        {44, Wall3CrumbleNewDeath},
        {49, Wall3CrumbleNewDeath2},
        {54, Wall3CrumbleNewDeath3},
        {59, Wall3CrumbleNewDeath4},
        {70, {}},
    };
    int kind = 0;
    for (const auto& [last, bitmap] : kinds) {
        for (; kind <= last; ++kind) {
            EXPECT_EQ(wallBitmap(kind), bitmap) << kind;
        }
    }
}

TEST_F(ArenaDrawingRules, RunsJoinEqualKindsOnly) {
    EXPECT_THAT(wallRuns({}), IsEmpty());
    EXPECT_THAT(wallRuns({0, 0, 7}), IsEmpty());
    EXPECT_THAT(wallRuns({2, 2, 2}), ElementsAre(WallRun{0, 3, 2, Block3})) << "to the right edge";
    EXPECT_THAT(
        wallRuns({2, 3, 3, 4, 4, 0, 4, 10, 11, 2}),
        ElementsAre(WallRun{0, 1, 2, Block3}, WallRun{1, 2, 3, Wall3}, WallRun{3, 2, 4, Wall3}, WallRun{6, 1, 4, Wall3},
                    WallRun{7, 1, 10, W3NDth1}, WallRun{8, 1, 11, W3NDth1}, WallRun{9, 1, 2, Block3}))
        << "kinds count, not images";
}

TEST_F(ArenaDrawingRules, ClosingWallsArriveInFiveStyles) {
    // Style, countdown and frames a step; whether it spins, angle, scale and alpha.
    const std::tuple<int, int, int, bool, float, float, int> arrivals[] = {
        {0, 2, 2, false, 0.0f, 0.0f, 255},   {1, 2, 2, true, 63.0f, 0.0f, 255},  {2, 2, 2, false, 0.0f, 1.0f, 63},
        {3, 2, 2, false, 0.0f, 0.0f, 63},    {4, 2, 2, true, 63.0f, 0.0f, 63},   {0, 1, 2, false, 0.0f, 0.5f, 255},
        {1, 1, 2, true, 127.0f, 0.5f, 255},  {2, 1, 16, false, 0.0f, 1.0f, 239}, {3, 4, 16, false, 0.0f, 0.75f, 191},
        {4, 12, 16, true, 63.0f, 0.25f, 63}, {2, 16, 16, false, 0.0f, 1.0f, 0},
    };
    for (const auto& [style, countdown, stepFrames, spins, angle, scale, alpha] : arrivals) {
        EXPECT_THAT(wallArrival(style, countdown, stepFrames), FieldsAre(spins, FloatEq(angle), FloatEq(scale), alpha))
            << style;
    }
}

TEST_F(ArenaDrawingRules, TheWarningPulsesEightTimesFromTheBaseColourToRed) {
    const RGB base{57, 123, 8};
    const auto isBase = [&](RGB colour) {
        return std::abs(colour.red - base.red) <= 1 && std::abs(colour.green - base.green) <= 1 && colour.blue >= 7;
    };
    EXPECT_TRUE(isBase(warningColour(base, 0)));
    EXPECT_TRUE(isBase(warningColour(base, -500)));
    int peaks = 0;
    for (int countdown = -1; countdown > -500; --countdown) {
        const int before = warningColour(base, countdown + 1).red;
        const int now = warningColour(base, countdown).red;
        const int after = warningColour(base, countdown - 1).red;
        peaks += now > before && now >= after && now > 250 ? 1 : 0;
    }
    EXPECT_EQ(peaks, 8);
    // A quarter of a period in, the colour is half way.
    const RGB half = warningColour(base, -16);
    EXPECT_NEAR(half.red, 156, 8);
    EXPECT_NEAR(half.green, 61, 8);
}

TEST_F(ArenaDrawingRules, BombPicturesRunOutWithTheFuse) {
    const auto numberOf = [](int fuse) {
        Bomb bomb;
        bomb.fuse = fuse;
        return bitmapIndex(bombBitmap(bomb)) - bitmapIndex(Bomb1) + 1;
    };
    for (const auto& [fuse, number] : {std::pair{90, 1}, {86, 1}, {85, 2}, {40, 12}, {3, 21}, {0, 21}}) {
        EXPECT_EQ(numberOf(fuse), number) << fuse;
    }
    gameOptions.frameMultiplier = 2;
    EXPECT_EQ(numberOf(180), 1);
    EXPECT_EQ(numberOf(90), 11);

    Bomb rocket;
    rocket.kind = BombKind::Rocket;
    for (const auto& [direction, bitmap] :
         {std::pair{Facing::Right, R_Right}, {Facing::Up, R_Up}, {Facing::Left, R_Left}, {Facing::Down, R_Down}}) {
        rocket.direction = direction;
        EXPECT_EQ(bombBitmap(rocket), bitmap);
    }
}

TEST_F(ArenaDrawingRules, PowerupsHaveImagesExceptTheOneThatIsNeverPlaced) {
    EXPECT_EQ(bonusBitmap(Bonus::Bomb), B_Bomb);
    EXPECT_EQ(bonusBitmap(Bonus::UltraBomb), B_BombAngry);
    for (int hidden = Bonus::QuestionShield; hidden <= Bonus::QuestionFastIgnition; ++hidden) {
        EXPECT_EQ(bonusBitmap(hidden), B_Quest);
    }
    for (const int unknown : {Bonus::Death, 22}) {
        EXPECT_THAT([unknown] { bonusBitmap(unknown); },
                    testing::ThrowsMessage<std::out_of_range>("invalid unordered_map<K, T> key"));
    }
}

TEST_F(ArenaDrawingRules, HillTilesPulseInOppositePhase) {
    // Truncated toward zero on the way down, too; the sine of 47 / 30 is 0.99999.
    for (const auto& [frame, even, alpha] : {std::tuple{0, true, 128},
                                             {0, false, 128},
                                             {47, true, 191},
                                             {47, false, 65},
                                             {141, true, 65},
                                             {15, true, 158}}) {
        EXPECT_EQ(hillTileAlpha(frame, even), alpha) << frame;
    }
}

}  // namespace
}  // namespace vandrel
