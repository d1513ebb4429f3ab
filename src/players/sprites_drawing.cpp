#include "players/sprites_drawing.h"

#include <algorithm>
#include <functional>
#include <unordered_map>
#include <utility>

#include "players/sprite_recipe_drawing.h"
#include "presentation/atlas.h"
#include "presentation/bitmaps.h"
#include "presentation/colours.h"
#include "presentation/drawing.h"
#include "presentation/recolour_shader.h"
#include "shell/accessibility.h"

namespace vandrel {

namespace {

constexpr RGB playerGrey{192, 192, 192};

struct SpriteKeyHash {
    std::size_t operator()(const SpriteKey& key) const {
        std::size_t hash = 0;
        const auto mix = [&hash](std::size_t value) { hash = hash * 1000003U ^ value; };
        const std::hash<float> ofFloat;
        mix(static_cast<std::size_t>(key.look.skin));
        mix(ofFloat(key.look.colour.r));
        mix(ofFloat(key.look.colour.g));
        mix(ofFloat(key.look.colour.b));
        mix(ofFloat(key.look.colour.a));
        mix(static_cast<std::size_t>(key.facing));
        mix(static_cast<std::size_t>(key.flash));
        mix(static_cast<std::size_t>(key.frame));
        for (const bool flag : {key.slowed, key.snake, key.isAI, key.crawling, key.dead, key.steering}) {
            mix(flag ? 1U : 0U);
        }
        return hash;
    }
};

std::unordered_map<SpriteKey, Sprite, SpriteKeyHash> spriteCache;

RecolourSettings settingsOf(const SpriteRecipe& recipe, int flash) {
    RecolourSettings settings;
    settings.baseCol = toColour(playerGrey);
    settings.baseColAny = recipe.anyPixel;
    if (flash == Flash::WhiteFigure) {
        settings.newCol = toColour(white);
        return settings;
    }
    if (recipe.colour) {
        settings.newCol = recipe.colour;
        settings.doDarkCol = true;
    }
    if (flash == Flash::WhiteOutline) {
        settings.outlineCol = toColour(white);
    } else if (accessibility.outlineEnabled) {
        settings.outlineCol = toColour(accessibility.outlineCol);
    }
    return settings;
}

// Of the whole picture: layers stand below or beside each other, and the first one gives the other measure.
std::pair<int, int> sizeOf(const SpriteRecipe& recipe) {
    int width = 0;
    int height = 0;
    for (const SpriteLayer& layer : recipe.layers) {
        width += bitmapWidth(layer.bitmap);
        height += bitmapHeight(layer.bitmap);
    }
    const BitmapIds first = recipe.layers.front().bitmap;
    return recipe.stacked ? std::pair{bitmapWidth(first), height} : std::pair{width, bitmapHeight(first)};
}

void paintLayers(const SpriteRecipe& recipe, const BitmapWrapper& canvas) {
    std::vector<SpriteLayer> layers = recipe.layers;
    if (recipe.reversed) {
        std::reverse(layers.begin(), layers.end());
    }
    int x = 0;
    int y = 0;
    for (const SpriteLayer& layer : layers) {
        drawId(canvas, layer.bitmap, x + layer.xOffset, y, layer.mirrored ? flipHorizontally : 0);
        if (recipe.stacked) {
            y += bitmapHeight(layer.bitmap);
        } else {
            x += bitmapWidth(layer.bitmap);
        }
    }
}

Sprite composeSprite(const SpriteKey& key) {
    const SpriteRecipe recipe = buildSprite(key);
    const auto [width, height] = sizeOf(recipe);
    const auto paint = [&](const BitmapWrapper& canvas) {
        setTarget(canvas);
        useRecolourShader(settingsOf(recipe, key.flash));
        paintLayers(recipe, canvas);
        stopRecolourShader();
    };
    return {composePicture(width, height, paint), recipe.offset};
}

}  // namespace

const Sprite& getSprite(const SpriteKey& key) {
    const auto found = spriteCache.find(key);
    if (found != spriteCache.end()) {
        return found->second;
    }
    return spriteCache.emplace(key, composeSprite(key)).first->second;
}

void releaseSpriteCache() {
    spriteCache.clear();
}

}  // namespace vandrel
