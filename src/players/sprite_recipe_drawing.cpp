#include "players/sprite_recipe_drawing.h"

#include <algorithm>
#include <array>

#include "base/checked.h"
#include "match/options/game_options.h"
#include "players/player.h"

namespace vandrel {

namespace {

using enum BitmapIds;

// The first image of each set. Without Left ones of its own a skin shows its Right ones mirrored.
struct Skin {
    BitmapIds down;
    BitmapIds right;
    BitmapIds up;
    std::optional<BitmapIds> left;
    BitmapIds crawlRight;
    std::optional<BitmapIds> crawlLeft;
};

// Skins without a back of their own wear the cap of the first from behind.
constexpr std::array<Skin, skinCount> skins{{
    {Head0_D_014, Head0_R_0, Head0_U_014, {}, Head0_Crawl_R, {}},
    {Head1_D_014, Head1_R_0, Head0_U_014, {}, Head1_Crawl_R, {}},
    {Head2_D_014, Head2_R_0, Head2_U_014, {}, Head2_Crawl_R, {}},
    {Head3_D_014, Head3_R_0, Head3_U_014, {}, Head3_Crawl_R, {}},
    {Head4_D_014, Head4_R_0, Head0_U_014, {}, Head4_Crawl_R, {}},
    {Head5_D_014, Head5_R_0, Head0_U_014, {}, Head5_Crawl_R, {}},
    {Head6_D_014, Head6_R_0, Head0_U_014, Head6_L_0, Head6_Crawl_R, Head6_Crawl_L},
    {Head7_D_014, Head7_R_0, Head0_U_014, Head7_L_0, Head7_Crawl_R, Head7_Crawl_L},
    {Head9_D_014, Head9_R_0, Head9_U_014, {}, Head9_Crawl_R, {}},
    {Head10_D_014, Head10_R_0, Head10_U_014, {}, Head10_Crawl_R, {}},
    {Head8_D_014, Head8_R_0, Head0_U_014, {}, Head8_Crawl_R, {}},
    {Head11_D_014, Head11_R_0, Head11_U_014, {}, Head11_Crawl_R, {}},
    {Head12_D_014, Head12_R_0, Head0_U_014, {}, Head12_Crawl_R, {}},
}};

// Of each walk frame: pixels that the figure bobs, and which image of the set the head is.
struct HeadFrame {
    int bob;
    int headUpright;   // looking Down or Up: sets of three
    int headSideways;  // looking Right or Left: sets of four
};

constexpr std::array<HeadFrame, 7> headFrames{{
    {0, 0, 0},
    {-2, 0, 1},
    {0, 1, 2},
    {-1, 1, 2},
    {-2, 0, 1},
    {0, 2, 3},
    {-1, 2, 3},
}};

constexpr std::array<Pixel, 7> handsUpright{{{28, 10}, {28, 10}, {26, 11}, {28, 11}, {28, 10}, {26, 8}, {28, 9}}};
constexpr std::array<Pixel, 7> handsSideways{{{13, 10}, {13, 10}, {7, 8}, {8, 9}, {12, 10}, {21, 8}, {19, 9}}};

constexpr int rightmostColumn = 31;

constexpr Pixel snailOffset{0, -12};
constexpr int headHeightAboveCell = -28;
constexpr int crawlerOffsetRight = -8;  // body, then head
constexpr int crawlerOffsetLeft = -24;  // head, then body

bool isSideways(Facing facing) {
    return facing == Facing::Right || facing == Facing::Left;
}

// The first image of the set that a skin has for this facing, and whether it is mirrored.
std::pair<BitmapIds, bool> headSet(const Skin& skin, Facing facing, bool crawling) {
    const BitmapIds right = crawling ? skin.crawlRight : skin.right;
    const std::optional<BitmapIds> left = crawling ? skin.crawlLeft : skin.left;
    switch (facing) {
        case Facing::Right:
            return {right, false};
        case Facing::Left:
            return {left.value_or(right), !left};
        case Facing::Up:
            return {skin.up, false};
        case Facing::Down:
            break;
    }
    return {skin.down, false};
}

SpriteRecipe snailRecipe(const SpriteKey& key) {
    SpriteRecipe recipe;
    recipe.layers = {{key.crawling ? SnailDown : Snail, 0, key.facing == Facing::Left}};
    recipe.offset = snailOffset;
    recipe.anyPixel = true;
    recipe.stacked = true;
    return recipe;
}

SpriteRecipe crawlerRecipe(const SpriteKey& key) {
    const bool toLeft = key.facing == Facing::Left;
    const HeadPicture head = headFor(key.look.skin, toLeft ? Facing::Left : Facing::Right, 0, true, false);
    const BitmapIds body = Body0_Crawl_R_0 + std::clamp(key.frame - 1, 0, 1);
    SpriteRecipe recipe;
    recipe.layers = {{body, 0, toLeft}, {head.bitmap, 0, head.mirrored}};
    recipe.offset = {toLeft ? crawlerOffsetLeft : crawlerOffsetRight, head.bob};
    recipe.colour = key.look.colour;
    recipe.reversed = toLeft;
    return recipe;
}

SpriteRecipe walkerRecipe(const SpriteKey& key) {
    const HeadPicture head = headFor(key.look.skin, key.facing, key.frame, false, key.steering);
    SpriteLayer body{Body0_D_0 + key.frame, 0, false};
    if (isSideways(key.facing)) {
        body = {Body0_R_0 + key.frame, 0, key.facing == Facing::Left};
    }
    if (key.steering) {
        body = {Body0_Ctrl, 0, false};
    }
    SpriteRecipe recipe;
    recipe.layers = {{head.bitmap, 0, head.mirrored}, body};
    recipe.offset = {0, head.bob + headHeightAboveCell};
    recipe.colour = key.look.colour;
    recipe.stacked = true;
    return recipe;
}

SpriteRecipe headRecipe(const SpriteKey& key) {
    const HeadPicture head = headFor(key.look.skin, key.facing, 0, false, false);
    SpriteRecipe recipe;
    recipe.layers = {{head.bitmap, 0, head.mirrored}};
    recipe.offset = {0, head.bob};
    recipe.colour = key.look.colour;
    recipe.stacked = true;
    return recipe;
}

}  // namespace

HeadPicture headFor(int skin, Facing facing, int frame, bool crawling, bool steering) {
    const bool known = skin >= 0 && skin < skinCount;
    const auto [first, mirrored] = headSet(skins[known ? static_cast<unsigned>(skin) : 0], facing, crawling);
    const HeadFrame& step = checkedAt(headFrames, crawling || steering ? 0 : frame);
    const int index = crawling ? 0 : (isSideways(facing) ? step.headSideways : step.headUpright);
    return {first + index, mirrored, step.bob};
}

SpriteRecipe buildSprite(const SpriteKey& key) {
    if (key.snake || key.isAI) {
        return headRecipe(key);
    }
    if (key.slowed) {
        return snailRecipe(key);
    }
    // In Everything the dead fly off as walkers, however they went.
    const bool diesUpright = gameOptions.gameMode == GameMode::Everything && key.dead;
    if (key.crawling && !diesUpright) {
        return crawlerRecipe(key);
    }
    return walkerRecipe(key);
}

Pixel handPointOf(Facing facing, int frame) {
    if (!isSideways(facing)) {
        return checkedAt(handsUpright, frame);
    }
    Pixel hand = checkedAt(handsSideways, frame);
    if (facing == Facing::Left) {
        hand.x = rightmostColumn - hand.x;
    }
    return hand;
}

Pixel handPoint(const Player& player) {
    return handPointOf(player.facing, player.animFrame);
}

}  // namespace vandrel
