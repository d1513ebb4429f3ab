#include "players/player_look.h"

#include <algorithm>
#include <array>
#include <random>

#include "arena/arena.h"
#include "base/random.h"
#include "players/player.h"
#include "shell/accessibility.h"

namespace vandrel {

namespace {

constexpr std::size_t paletteSize = 100;
constexpr std::array<RGB, 7> firstColours{
    {{192, 192, 192}, {255, 0, 0}, {0, 255, 0}, {0, 0, 255}, {255, 255, 0}, {255, 16, 255}, {0, 255, 255}}};
constexpr float farFromBackground = 150.0f;
constexpr int mostDraws = 1999;
constexpr std::array<int, 8> computerSkins{0, 1, 2, 4, 5, 6, 7, 10};
constexpr int mostLookDraws = 20;
constexpr int widerColoursFromDraw = 12;

struct Palette {
    std::vector<RGB> colours;
    RGB background;
    bool invalid = false;
};

Palette palette;

RGB drawFarFrom(RGB background, std::mt19937& generator) {
    RGB colour;
    for (int draw = 0; draw < mostDraws; ++draw) {
        colour.red = static_cast<std::uint8_t>(uniformInt(generator, 0, 255));
        colour.green = static_cast<std::uint8_t>(uniformInt(generator, 0, 255));
        colour.blue = static_cast<std::uint8_t>(uniformInt(generator, 0, 255));
        if (colourDistance(colour, background) >= farFromBackground) {
            break;
        }
    }
    return colour;
}

// Looks are picked from sources of their own, so that a replay does not depend on who changed clothes. The system is
// asked for their seeds when they are first needed.
std::mt19937& looksGenerator() {
    static std::mt19937 generator{std::random_device{}()};
    return generator;
}

std::mt19937& computerLooksGenerator() {
    static std::mt19937 generator{std::random_device{}()};
    return generator;
}

template <class Test>
bool anyHuman(Test test) {
    return std::any_of(players.begin(), players.end(),
                       [&](const auto& player) { return !player->isAI && test(*player); });
}

std::vector<RGB>& currentPalette() {
    const RGB background = backgroundColour(accessibility.bgcol);
    if (palette.colours.size() >= paletteSize && palette.background == background && !palette.invalid) {
        return palette.colours;
    }
    palette.invalid = false;
    palette.background = background;
    std::mt19937 generator(0);
    palette.colours.assign(firstColours.begin(), firstColours.end());
    while (palette.colours.size() < paletteSize) {
        palette.colours.push_back(drawFarFrom(background, generator));
    }
    return palette.colours;
}

}  // namespace

std::vector<RGB> playerColours() {
    return currentPalette();
}

std::vector<RGB>& editablePlayerColours() {
    return currentPalette();
}

void invalidatePlayerColours() {
    palette.invalid = true;
}

PlayerLook defaultPlayerLook(int index) {
    const int spot = index % static_cast<int>(paletteSize);
    const auto& colours = currentPalette();
    PlayerLook look;
    look.skin = spot % skinCount;
    look.colour = toColour(colours[static_cast<std::size_t>(spot) % colours.size()]);
    return look;
}

void nextSkin(PlayerLook& look) {
    look.skin = (look.skin + 1) % skinCount;
}

void randomColour(PlayerLook& look) {
    const auto& colours = currentPalette();
    const int pick = uniformInt(looksGenerator(), 0, static_cast<int>(colours.size()) - 1);
    look.colour = toColour(colours[static_cast<std::size_t>(pick)]);
}

void randomPlayerLook(PlayerLook& look) {
    std::mt19937& generator = computerLooksGenerator();
    for (int draw = 0; draw < mostLookDraws; ++draw) {
        const int pick = uniformInt(generator, 0, static_cast<int>(computerSkins.size()) - 1);
        look.skin = computerSkins[static_cast<std::size_t>(pick)];
        if (!anyHuman([&](const Player& human) { return human.look.skin == look.skin; })) {
            break;
        }
    }
    const auto& colours = currentPalette();
    const int last = static_cast<int>(colours.size()) - 1;
    int limit = std::min(6, last);
    for (int draw = 1; draw <= mostLookDraws; ++draw) {
        const int pick = uniformInt(generator, 0, limit);
        if (draw >= widerColoursFromDraw) {
            limit = std::min(limit + 1, last);
        }
        look.colour = toColour(colours[static_cast<std::size_t>(pick)]);
        if (!anyHuman([&](const Player& human) { return sameColour(human.look.colour, look.colour); })) {
            break;
        }
    }
}

}  // namespace vandrel
