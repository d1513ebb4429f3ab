#include "players/sprite_recipe_drawing.h"

#include <gtest/gtest.h>

#include <string>
#include <tuple>
#include <vector>

#include "match/options/game_options.h"
#include "support/drawing_stage.h"

namespace vandrel {
namespace {

using enum BitmapIds;
using Flags = std::vector<bool SpriteKey::*>;

SpriteKey keyOf(int skin, Facing facing, int frame, const Flags& flags = {}) {
    SpriteKey key;
    key.look.skin = skin;
    key.look.colour = toColour({10, 20, 30});
    key.facing = facing;
    key.frame = frame;
    for (const auto flag : flags) {
        key.*flag = true;
    }
    return key;
}

// What is true of a recipe besides its layers.
std::string wordsOf(const SpriteRecipe& recipe) {
    const bool isOwn = sameColour(recipe.colour.value_or(clearPixel), toColour({10, 20, 30}));
    return std::string(isOwn           ? "coloured"
                       : recipe.colour ? "wrong"
                                       : "plain") +
           (recipe.anyPixel ? ", any pixel" : "") + (recipe.stacked && recipe.layers.size() > 1 ? ", stacked" : "") +
           (recipe.reversed ? ", reversed" : "");
}

class SpriteRecipeTest : public ::testing::Test {
  protected:
    ~SpriteRecipeTest() override { gameOptions = GameOptions(); }
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

TEST_F(SpriteRecipeTest, WalkersCrawlersSnailsAndSnakesArePutTogetherEachInTheirWay) {
    using enum Facing;
    using K = SpriteKey;
    const auto expectSprite = [](const SpriteKey& key, const std::vector<SpriteLayer>& layers, Pixel offset,
                                 const std::string& words) {
        const SpriteRecipe recipe = buildSprite(key);
        EXPECT_EQ(recipe.layers, layers) << words;
        EXPECT_EQ(recipe.offset, offset) << words;
        EXPECT_EQ(wordsOf(recipe), words);
    };
    expectSprite(keyOf(0, Left, 3), {{Head0_R_23, 0, true}, {Body0_R_3, 0, true}}, {0, -29}, "coloured, stacked");
    expectSprite(keyOf(1, Up, 1), {{Head0_U_014}, {Body0_D_1}}, {0, -30}, "coloured, stacked");
    expectSprite(keyOf(6, Left, 5, {&K::steering}), {{Head6_L_0}, {Body0_Ctrl}}, {0, -28}, "coloured, stacked");
    const SpriteKey deadCrawler = keyOf(0, Up, 1, {&K::crawling, &K::dead});
    expectSprite(keyOf(7, Left, 2, {&K::crawling}), {{Body0_Crawl_R_1, 0, true}, {Head7_Crawl_L}}, {-24, 0},
                 "coloured, reversed");
    for (const SpriteKey& crawler : {keyOf(0, Up, 1, {&K::crawling}), deadCrawler}) {
        expectSprite(crawler, {{Body0_Crawl_R_0}, {Head0_Crawl_R}}, {-8, 0}, "coloured");
    }
    expectSprite(keyOf(3, Left, 4, {&K::slowed}), {{Snail, 0, true}}, {0, -12}, "plain, any pixel");
    expectSprite(keyOf(3, Up, 4, {&K::slowed, &K::crawling}), {{SnailDown}}, {0, -12}, "plain, any pixel");
    for (const auto snake : {&K::isAI, &K::snake}) {
        expectSprite(keyOf(3, Up, 4, {&K::slowed, &K::crawling, snake}), {{Head3_U_014}}, {0, 0}, "coloured");
    }
    gameOptions.gameMode = GameMode::Everything;
    EXPECT_EQ(buildSprite(deadCrawler).layers.front().bitmap, Head0_U_014) << "the dead walk in Everything";
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
