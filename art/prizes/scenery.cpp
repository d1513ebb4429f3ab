#include "prizes/scenery.h"

#include <algorithm>
#include <cmath>

#include "painter/noise.h"
#include "prizes/brush.h"

namespace vandrel::art {
namespace {

bool patternAt(Wallpaper paper, int x, int y) {
    switch (paper) {
        case Wallpaper::Stripes:
            return x % 12 < 5;
        case Wallpaper::Dots:
            return (x + (y / 8 % 2) * 5) % 10 < 2 && y % 8 < 2;
        case Wallpaper::Diamonds:
            return std::abs(x % 14 - 7) + std::abs(y % 14 - 7) == 6 || (x % 14 == 7 && y % 14 == 7);
        default:
            return false;
    }
}

void paintSkirting(Canvas& scene, int row, Colour skirting) {
    const Ramp ramp = rampOf(skirting);
    scene.fillRect(0, row - 8, scene.width(), 8, ramp.middle);
    scene.fillRect(0, row - 8, scene.width(), 1, ramp.light);
    scene.fillRect(0, row - 1, scene.width(), 1, ramp.dark);
}

}  // namespace

void paintWall(Canvas& scene, Colour base, Colour pattern, Wallpaper paper) {
    for (int y = 0; y < scene.height(); ++y) {
        for (int x = 0; x < scene.width(); ++x) {
            const Colour plainColour = patternAt(paper, x, y) ? pattern : base;
            // Daylight from the left, in five broad steps.
            const float step = std::floor((static_cast<float>(x) + static_cast<float>(y) * 0.4f) / 40.0f);
            scene.set(x, y, mix(plainColour, {24, 16, 44}, step * 0.055f));
        }
    }
}

void paintBoards(Canvas& scene, int row, const Ramp& wood, Colour skirting) {
    const float middle = static_cast<float>(scene.width()) / 2;
    const float depth = static_cast<float>(scene.height() - row);
    for (int y = row; y < scene.height(); ++y) {
        const float near = (static_cast<float>(y - row) + 26.0f) / (depth + 26.0f);
        for (int x = 0; x < scene.width(); ++x) {
            const float across = (static_cast<float>(x) - middle) / (near * 22.0f) + 40.0f;
            const float inBoard = across - std::floor(across);
            const auto board = static_cast<int>(across);
            const float tone = pointNoise(board, 3, 5);
            Colour colour = mix(wood.middle, tone > 0.5f ? wood.light : wood.dark, std::fabs(tone - 0.5f) * 0.7f);
            const float grain = smoothNoise(across * 9.0f, static_cast<float>(y) * 0.12f, 8);
            colour = mix(colour, wood.dark, grain > 0.68f ? 0.3f : 0.0f);
            scene.set(x, y, inBoard < 0.06f / near ? mix(wood.dark, palette::ink, 0.3f) : colour);
        }
    }
    paintSkirting(scene, row, skirting);
}

void paintCarpet(Canvas& scene, int row, const Ramp& pile, Colour skirting) {
    for (int y = row; y < scene.height(); ++y) {
        for (int x = 0; x < scene.width(); ++x) {
            const float noise = pointNoise(x, y, 21) * 0.5f +
                                smoothNoise(static_cast<float>(x) / 9, static_cast<float>(y) / 4, 3) * 0.5f;
            scene.set(x, y,
                      noise > 0.62f ? mix(pile.middle, pile.light, 0.4f)
                                    : (noise < 0.34f ? mix(pile.middle, pile.dark, 0.4f) : pile.middle));
        }
    }
    paintSkirting(scene, row, skirting);
}

void paintLedge(Canvas& scene, int row, int thickness, const Ramp& wood) {
    for (int y = row; y < row + thickness; ++y) {
        for (int x = 0; x < scene.width(); ++x) {
            const float grain = smoothNoise(static_cast<float>(x) * 0.08f, static_cast<float>(y) * 0.9f, 14);
            scene.set(x, y, grain > 0.62f ? mix(wood.middle, wood.dark, 0.35f) : wood.middle);
        }
    }
    scene.fillRect(0, row, scene.width(), 1, wood.light);
    scene.fillRect(0, row + thickness - 1, scene.width(), 1, mix(wood.dark, palette::ink, 0.4f));
}

void paintWindow(Canvas& scene, int x, int y, const Canvas& view, const Ramp& wood) {
    const int width = view.width(), height = view.height();
    scene.fillRect(x - 5, y - 5, width + 10, height + 10, mix(wood.dark, palette::ink, 0.5f));
    scene.fillRect(x - 4, y - 4, width + 8, height + 8, wood.middle);
    scene.fillRect(x - 4, y - 4, width + 8, 1, wood.light);
    scene.fillRect(x - 1, y - 1, width + 2, height + 2, wood.dark);
    scene.draw(view, x, y);
    scene.fillRect(x + width / 2 - 2, y, 4, height, wood.middle);
    scene.fillRect(x + width / 2 - 2, y, 1, height, wood.light);
    scene.fillRect(x, y + height * 2 / 5, width, 3, wood.middle);
    scene.fillRect(x, y + height * 2 / 5, width, 1, wood.light);
}

void paintWallPicture(Canvas& scene, int x, int y, int width, int height, const Ramp& wood, Colour sky, Colour land) {
    shade(scene,
          rectangle(static_cast<float>(x) + 2, static_cast<float>(y) + 2, static_cast<float>(width),
                    static_cast<float>(height)),
          0.35f, 2);
    scene.fillRect(x, y, width, height, wood.middle);
    scene.fillRect(x, y, width, 1, wood.light);
    scene.fillRect(x, y, 1, height, wood.light);
    scene.fillRect(x, y + height - 1, width, 1, wood.dark);
    scene.fillRect(x + 2, y + 2, width - 4, height - 4, sky);
    for (int column = x + 2; column < x + width - 2; ++column) {
        const float hill = smoothNoise(static_cast<float>(column) / 7, 2, 9);
        const int top = y + height / 2 - static_cast<int>(hill * static_cast<float>(height) / 4);
        scene.fillRect(column, top, 1, y + height - 2 - top, land);
    }
    scene.fillRect(x + width - 8, y + 4, 3, 3, palette::fireWhite);
}

void paintPlant(Canvas& scene, float x, float ground, float size, const Ramp& leaves, const Ramp& pot) {
    const Pose plant{x, ground, size};
    paintLayer(scene, rimOf(leaves), [&](Canvas& layer) {
        for (int leaf = 0; leaf < 9; ++leaf) {
            const float turn = (static_cast<float>(leaf) - 4.0f) * 0.32f;
            const float length = 1.5f - std::fabs(turn) * 0.3f;
            const Point tip{std::sin(turn) * length, -0.8f - std::cos(turn) * length};
            fillSmooth(layer, plant.limb({0, -0.8f}, {tip.x * 0.55f, -0.8f + (tip.y + 0.8f) * 0.55f}, 0.05f, 0.24f),
                       leaves, size * 0.2f);
            fillSmooth(layer, plant.limb({tip.x * 0.55f, -0.8f + (tip.y + 0.8f) * 0.55f}, tip, 0.24f, 0.03f), leaves,
                       size * 0.2f);
        }
    });
    paintLayer(scene, rimOf(pot), [&](Canvas& layer) {
        fillSmooth(layer, plant.corners({{-0.55f, -0.85f}, {0.55f, -0.85f}, {0.4f, 0}, {-0.4f, 0}}), pot, size * 0.5f);
        fillSmooth(layer, plant.corners({{-0.65f, -1.0f}, {0.65f, -1.0f}, {0.65f, -0.75f}, {-0.65f, -0.75f}}), pot,
                   size * 0.2f);
    });
}

void paintLamp(Canvas& scene, float x, float ground, float height, const Ramp& cloth) {
    const Pose lamp{x, ground, height};
    fillSmooth(scene, lamp.limb({0, -0.02f}, {0, -0.7f}, 0.025f, 0.025f), palette::metalGold, 2);
    fillSmooth(scene, lamp.oval(0, -0.03f, 0.16f, 0.04f), palette::metalGold, 3);
    fillSmooth(scene, lamp.oval(0, -0.3f, 0.09f, 0.13f), rampOf(palette::iceBlue), 4);
    const Shape cone = lamp.corners({{-0.14f, -1.0f}, {0.14f, -1.0f}, {0.27f, -0.6f}, {-0.27f, -0.6f}});
    glow(scene, lamp.oval(0, -0.7f, 0.7f, 0.55f), palette::fireWhite, 0.35f, height * 0.7f);
    fillSmooth(scene, cone, cloth, height * 0.12f);
    glow(scene, lamp.oval(0, -0.72f, 0.1f, 0.1f), palette::fireWhite, 0.8f, height * 0.16f);
}

void paintArmchair(Canvas& scene, float x, float ground, float size, const Ramp& cloth) {
    const Pose chair{x, ground, size};
    shade(scene, chair.oval(0, 0, 1.15f, 0.12f), 0.5f, size * 0.2f);
    paintLayer(scene, rimOf(cloth), [&](Canvas& layer) {
        fillFur(layer,
                grown(chair.corners({{-0.7f, -1.35f}, {0.7f, -1.35f}, {0.78f, -0.2f}, {-0.78f, -0.2f}}), size * 0.12f),
                cloth, size * 0.16f, 0.2f, 4);
    });
    paintLayer(scene, rimOf(cloth), [&](Canvas& layer) {
        fillFur(layer,
                grown(chair.corners({{-0.66f, -0.5f}, {0.66f, -0.5f}, {0.66f, -0.3f}, {-0.66f, -0.3f}}), size * 0.06f),
                cloth, size * 0.12f, 0.2f, 5);
        fillFur(layer, chair.corners({{-0.8f, -0.26f}, {0.8f, -0.26f}, {0.8f, -0.03f}, {-0.8f, -0.03f}}), cloth,
                size * 0.1f, 0.2f, 6);
    });
    paintLayer(scene, rimOf(cloth), [&](Canvas& layer) {
        for (const float side : {-1.0f, 1.0f}) {
            fillFur(layer, chair.limb({side * 0.9f, -0.66f}, {side * 0.9f, -0.16f}, 0.21f, 0.17f), cloth, size * 0.16f,
                    0.2f, 7);
        }
    });
}

void paintBokeh(Canvas& scene, const std::vector<Colour>& colours, int count, int top, int bottom, std::uint32_t seed) {
    Dice dice(seed);
    for (int disc = 0; disc < count; ++disc) {
        const float x = dice.between(0, static_cast<float>(scene.width()));
        const float y = dice.between(static_cast<float>(top), static_cast<float>(bottom));
        const float radius = dice.between(2, 9);
        const Colour colour = colours[static_cast<std::size_t>(dice.below(static_cast<int>(colours.size())))];
        fillSoft(scene, circle(x, y, radius), colour, 1.5f, dice.between(0.15f, 0.4f));
    }
}

void paintCloud(Canvas& scene, float x, float y, float size, Colour colour) {
    const Pose cloud{x, y, size};
    fillSmooth(scene,
               uniteAll({cloud.oval(0, 0, 1, 0.3f), cloud.oval(-0.35f, -0.25f, 0.45f, 0.35f),
                         cloud.oval(0.3f, -0.2f, 0.5f, 0.3f)}),
               {mix(colour, palette::white, 0.6f), colour, mix(colour, {90, 110, 170}, 0.35f)}, size * 0.4f);
}

void paintStars(Canvas& scene, int bottom, int count, std::uint32_t seed) {
    Dice dice(seed);
    for (int star = 0; star < count; ++star) {
        const int x = dice.below(scene.width());
        const int y = dice.below(bottom);
        scene.set(x, y, dice.chance(0.3f) ? palette::fireWhite : mix(palette::iceWhite, scene.at(x, y), 0.45f));
    }
}

void paintGrass(Canvas& scene, int row, const Ramp& grass, std::uint32_t seed) {
    scene.fillRect(0, row, scene.width(), scene.height() - row, mix(grass.dark, grass.middle, 0.4f));
    Dice dice(seed);
    for (int y = row; y < scene.height() + 4; ++y) {
        const int blades = 14;
        for (int blade = 0; blade < blades; ++blade) {
            const int x = dice.below(scene.width());
            const int length = 2 + dice.below(3 + (y - row) / 8);
            const int lean = dice.below(3) - 1;
            const float tone = dice.between(0, 1);
            const Colour colour = tone < 0.35f ? grass.dark : (tone < 0.8f ? grass.middle : grass.light);
            scene.line(x, y, x + lean, y - length, colour);
        }
    }
}

void paintFlower(Canvas& scene, float x, float y, float size, Colour petals, Colour heart) {
    for (int petal = 0; petal < 5; ++petal) {
        const float turn = static_cast<float>(petal) * 1.2566f - 0.3f;
        fillSmooth(scene, circle(x + std::cos(turn) * size * 0.6f, y + std::sin(turn) * size * 0.6f, size * 0.48f),
                   rampOf(petals), size * 0.4f);
    }
    fill(scene, circle(x, y, size * 0.35f), heart);
}

void paintBranch(Canvas& scene, Point from, Point to, float radiusFrom, float radiusTo, const Ramp& bark) {
    const float length = std::hypot(to.x - from.x, to.y - from.y);
    const float ux = (to.x - from.x) / length, uy = (to.y - from.y) / length;
    const Material grain = [=](float x, float y) {
        const float along = (x - from.x) * ux + (y - from.y) * uy;
        const float across = -(x - from.x) * uy + (y - from.y) * ux;
        const bool crack = smoothNoise(along * 0.12f, across * 0.9f, 33) > 0.64f;
        return crack ? Ramp{bark.middle, bark.dark, mix(bark.dark, palette::ink, 0.4f)} : bark;
    };
    paintLayer(scene, rimOf(bark), [&](Canvas& layer) {
        fillFur(layer, taper(from.x, from.y, to.x, to.y, radiusFrom, radiusTo), grain, std::max(radiusFrom, radiusTo),
                0.5f, 12);
    });
}

void paintLeaf(Canvas& scene, float x, float y, float length, float turn, const Ramp& leaf) {
    const Pose pose{x, y, length, turn};
    fillSmooth(scene, unite(pose.limb({0, 0}, {0.5f, 0}, 0.05f, 0.24f), pose.limb({0.5f, 0}, {1, 0}, 0.24f, 0.02f)),
               leaf, length * 0.25f);
    stroke(scene, pose.at(0.05f, 0), pose.at(0.85f, 0), leaf.dark);
}

}  // namespace vandrel::art
