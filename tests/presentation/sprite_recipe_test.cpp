#include "players/sprite_recipe_drawing.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <tuple>

#include "match/options/game_options.h"

namespace vandrel {
namespace {

using enum BitmapIds;
using ::testing::ElementsAre;

class SpriteRecipeTest : public ::testing::Test {
  protected:
    ~SpriteRecipeTest() override { gameOptions = GameOptions(); }

    static SpriteKey keyOf(int skin, Facing facing, int frame) {
        SpriteKey key;
        key.look.skin = skin;
        key.look.colour = toColour({10, 20, 30});
        key.facing = facing;
        key.frame = frame;
        return key;
    }
};

TEST_F(SpriteRecipeTest, EachSkinHasItsHeads) {
    const std::tuple<int, Facing, BitmapIds, bool> heads[] = {
        {0, Facing::Down, Head0_D_014, false},  {1, Facing::Up, Head0_U_014, false},
        {2, Facing::Up, Head2_U_014, false},    {0, Facing::Left, Head0_R_0, true},
        {6, Facing::Left, Head6_L_0, false},    {7, Facing::Left, Head7_L_0, false},
        {8, Facing::Down, Head9_D_014, false},  {8, Facing::Up, Head9_U_014, false},
        {9, Facing::Right, Head10_R_0, false},  {10, Facing::Down, Head8_D_014, false},
        {11, Facing::Up, Head11_U_014, false},  {12, Facing::Up, Head0_U_014, false},
        {12, Facing::Right, Head12_R_0, false}, {13, Facing::Down, Head0_D_014, false},
        {-1, Facing::Right, Head0_R_0, false},
    };
    for (const auto& [skin, facing, bitmap, mirrored] : heads) {
        const HeadPicture head = headFor(skin, facing, 0, false, false);
        EXPECT_EQ(head.bitmap, bitmap) << skin;
        EXPECT_EQ(head.mirrored, mirrored) << skin;
    }
}

TEST_F(SpriteRecipeTest, HeadsFollowTheWalk) {
    const BitmapIds down[] = {Head4_D_014, Head4_D_014, Head4_D_23, Head4_D_23, Head4_D_014, Head4_D_56, Head4_D_56};
    const BitmapIds right[] = {Head4_R_0, Head4_R_14, Head4_R_23, Head4_R_23, Head4_R_14, Head4_R_56, Head4_R_56};
    const int bobs[] = {0, -2, 0, -1, -2, 0, -1};
    for (int frame = 0; frame < 7; ++frame) {
        EXPECT_EQ(headFor(4, Facing::Down, frame, false, false).bitmap, down[frame]);
        EXPECT_EQ(headFor(4, Facing::Left, frame, false, false).bitmap, right[frame]);
        EXPECT_EQ(headFor(4, Facing::Up, frame, false, false).bob, bobs[frame]);
        EXPECT_EQ(headFor(4, Facing::Right, frame, false, false).bob, bobs[frame]);
        EXPECT_EQ(headFor(4, Facing::Right, frame, false, true).bitmap, Head4_R_0) << "steering stands still";
        EXPECT_EQ(headFor(4, Facing::Right, frame, true, false).bitmap, Head4_Crawl_R);
        EXPECT_EQ(headFor(4, Facing::Right, frame, true, false).bob, 0);
    }
}

TEST_F(SpriteRecipeTest, AWalkerIsAHeadOverABody) {
    const SpriteRecipe left = buildSprite(keyOf(0, Facing::Left, 3));
    EXPECT_THAT(left.layers, ElementsAre(SpriteLayer{Head0_R_23, 0, true}, SpriteLayer{Body0_R_3, 0, true}));
    EXPECT_EQ(left.offset, (Pixel{0, -29}));
    EXPECT_TRUE(left.stacked);
    EXPECT_FALSE(left.reversed);
    EXPECT_FALSE(left.anyPixel);
    ASSERT_TRUE(left.colour);
    EXPECT_TRUE(sameColour(*left.colour, toColour({10, 20, 30})));

    const SpriteRecipe up = buildSprite(keyOf(1, Facing::Up, 1));
    EXPECT_THAT(up.layers, ElementsAre(SpriteLayer{Head0_U_014, 0, false}, SpriteLayer{Body0_D_1, 0, false}));
    EXPECT_EQ(up.offset, (Pixel{0, -30}));

    SpriteKey steering = keyOf(6, Facing::Left, 5);
    steering.steering = true;
    EXPECT_THAT(buildSprite(steering).layers,
                ElementsAre(SpriteLayer{Head6_L_0, 0, false}, SpriteLayer{Body0_Ctrl, 0, false}));
}

TEST_F(SpriteRecipeTest, ACrawlerLiesAlongItsHeading) {
    SpriteKey key = keyOf(7, Facing::Left, 2);
    key.crawling = true;
    const SpriteRecipe left = buildSprite(key);
    EXPECT_THAT(left.layers, ElementsAre(SpriteLayer{Body0_Crawl_R_1, 0, true}, SpriteLayer{Head7_Crawl_L, 0, false}));
    EXPECT_EQ(left.offset, (Pixel{-24, 0}));
    EXPECT_TRUE(left.reversed);
    EXPECT_FALSE(left.stacked);

    key = keyOf(0, Facing::Up, 1);
    key.crawling = true;
    const SpriteRecipe up = buildSprite(key);
    EXPECT_THAT(up.layers, ElementsAre(SpriteLayer{Body0_Crawl_R_0, 0, false}, SpriteLayer{Head0_Crawl_R, 0, false}));
    EXPECT_EQ(up.offset, (Pixel{-8, 0}));
    EXPECT_FALSE(up.reversed);

    key.dead = true;
    EXPECT_EQ(buildSprite(key).layers.front().bitmap, Body0_Crawl_R_0);
    gameOptions.gameMode = GameMode::Everything;
    EXPECT_EQ(buildSprite(key).layers.front().bitmap, Head0_U_014) << "the dead walk in Everything";
}

TEST_F(SpriteRecipeTest, SlowedHumansAreSnailsAndSnakesAreHeads) {
    SpriteKey key = keyOf(3, Facing::Left, 4);
    key.slowed = true;
    const SpriteRecipe snail = buildSprite(key);
    EXPECT_THAT(snail.layers, ElementsAre(SpriteLayer{Snail, 0, true}));
    EXPECT_EQ(snail.offset, (Pixel{0, -12}));
    EXPECT_FALSE(snail.colour);
    EXPECT_TRUE(snail.anyPixel);

    key.crawling = true;
    key.facing = Facing::Up;
    EXPECT_THAT(buildSprite(key).layers, ElementsAre(SpriteLayer{SnailDown, 0, false}));

    key.isAI = true;
    const SpriteRecipe snake = buildSprite(key);
    EXPECT_THAT(snake.layers, ElementsAre(SpriteLayer{Head3_U_014, 0, false}));
    EXPECT_EQ(snake.offset, (Pixel{0, 0}));
    EXPECT_TRUE(snake.colour);
    key.isAI = false;
    key.snake = true;
    EXPECT_EQ(buildSprite(key).layers, snake.layers);
}

TEST_F(SpriteRecipeTest, HandsAreWhereTheFistsAre) {
    const Pixel down[] = {{28, 10}, {28, 10}, {26, 11}, {28, 11}, {28, 10}, {26, 8}, {28, 9}};
    const Pixel right[] = {{13, 10}, {13, 10}, {7, 8}, {8, 9}, {12, 10}, {21, 8}, {19, 9}};
    for (int frame = 0; frame < 7; ++frame) {
        EXPECT_EQ(handPointOf(Facing::Down, frame), down[frame]);
        EXPECT_EQ(handPointOf(Facing::Up, frame), down[frame]);
        EXPECT_EQ(handPointOf(Facing::Right, frame), right[frame]);
        EXPECT_EQ(handPointOf(Facing::Left, frame), (Pixel{31 - right[frame].x, right[frame].y}));
    }
}

}  // namespace
}  // namespace vandrel
