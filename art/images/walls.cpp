// The brick wall that bombs break, whole and in its stages. W3NDth is the soft wall going; Wall3CrumbleNew is the hard
// wall after one hit and two, still a wall; Wall3CrumbleNewDeath is that one going. Bricks have no outline, so that
// rows join.
#include <algorithm>
#include <vector>

#include "images/recipe.h"
#include "painter/noise.h"
#include "painter/pixel_map.h"

namespace vandrel::art {
namespace {

constexpr int size = 32;
constexpr int courseHeight = 8, brickWidth = 16;

struct BrickSpot {
    int course, brick;  // which brick a pixel belongs to; bricks that leave on the right come in on the left
    int x, y;           // and where in it
};

BrickSpot brickAt(int x, int y) {
    const int course = y / courseHeight;
    const int along = (x + (course % 2) * (brickWidth / 2)) % size;
    return {course, along / brickWidth, along % brickWidth, y % courseHeight};
}

Colour brickColour(const BrickSpot& spot) {
    if (spot.x == brickWidth - 1 || spot.y == courseHeight - 1) {
        return palette::mortar;
    }
    if (spot.y == 0 || spot.x == 0) {
        return palette::brickLight;
    }
    if (spot.y == courseHeight - 2 || spot.x == brickWidth - 2) {
        return palette::brickDark;
    }
    const float speck = pointNoise(spot.x + spot.brick * 31, spot.y + spot.course * 17, 5);
    const bool warm = pointNoise(spot.brick, spot.course, 9) > 0.5f;
    if (speck > 0.93f) {
        return palette::brickLight;
    }
    return speck < 0.06f ? palette::brickDark : (warm ? palette::brickMiddle : Colour{196, 108, 64});
}

Canvas wholeWall() {
    Canvas canvas(size, size);
    for (int y = 0; y < size; ++y) {
        for (int x = 0; x < size; ++x) {
            canvas.set(x, y, brickColour(brickAt(x, y)));
        }
    }
    return canvas;
}

// A crack is a way of pixels with a lit lower edge, so that it reads as depth.
void paintCrack(Canvas& canvas, const std::vector<std::pair<int, int>>& way) {
    for (std::size_t i = 1; i < way.size(); ++i) {
        canvas.line(way[i - 1].first + 1, way[i - 1].second + 1, way[i].first + 1, way[i].second + 1,
                    palette::brickLight);
    }
    for (std::size_t i = 1; i < way.size(); ++i) {
        canvas.line(way[i - 1].first, way[i - 1].second, way[i].first, way[i].second, palette::ink);
        canvas.line(way[i - 1].first + 1, way[i - 1].second, way[i].first + 1, way[i].second, palette::mortar);
    }
}

Canvas crackedOnce() {
    Canvas canvas = wholeWall();
    paintCrack(canvas, {{20, 0}, {17, 5}, {19, 9}, {13, 14}, {15, 19}, {11, 24}});
    paintCrack(canvas, {{13, 14}, {8, 13}});
    return canvas;
}

Canvas crackedThrice() {
    Canvas canvas = crackedOnce();
    paintCrack(canvas, {{31, 10}, {26, 13}, {25, 18}, {19, 21}, {21, 27}, {18, 31}});
    paintCrack(canvas, {{0, 20}, {5, 18}, {8, 22}, {6, 28}, {8, 31}});
    // The chip: a corner broken away down to the dark mortar, not through.
    static const Legend chip{{'m', palette::mortar}, {'d', palette::brickDark}, {'i', palette::ink}};
    drawMap(canvas, 0, 0, chip,
            {"iiiiiiiid", "imiiiiid.", "immmmid..", "immmid...", "immid....", "imid.....", "iid......", "dd......."});
    return canvas;
}

// What holds longest: each brick goes when its turn has come, ragged at its edges, and low bricks last.
Canvas partLeft(const Canvas& wall, float share, std::uint32_t seed) {
    struct Hold {
        float strength;
        int x, y;
    };
    std::vector<Hold> holds;
    for (int y = 0; y < size; ++y) {
        for (int x = 0; x < size; ++x) {
            const BrickSpot spot = brickAt(x, y);
            const float ownTurn = pointNoise(spot.brick, spot.course, seed) * 0.5f;
            const float ragged =
                cloudNoise(static_cast<float>(x) / 5.0f, static_cast<float>(y) / 5.0f, seed + 3, 3) * 0.9f;
            const float low = static_cast<float>(y) / size * 0.35f;
            const float loose = spot.x == brickWidth - 1 || spot.y == courseHeight - 1 ? -0.12f : 0.0f;
            holds.push_back({ownTurn + ragged + low + loose, x, y});
        }
    }
    std::sort(holds.begin(), holds.end(), [](const Hold& a, const Hold& b) { return a.strength > b.strength; });
    Canvas canvas(size, size);
    const auto kept = static_cast<std::size_t>(share * size * size);
    for (std::size_t i = 0; i < kept; ++i) {
        canvas.set(holds[i].x, holds[i].y, wall.at(holds[i].x, holds[i].y));
    }
    // Broken edges are dark, so that the pieces stand off the floor.
    const Canvas broken = canvas;
    for (int y = 0; y < size; ++y) {
        for (int x = 0; x < size; ++x) {
            const bool edge = !broken.visible(x, y + 1) || !broken.visible(x + 1, y);
            if (broken.visible(x, y) && edge && x < size - 1 && y < size - 1) {
                canvas.set(x, y, palette::mortar);
            }
        }
    }
    return canvas;
}

}  // namespace

Pictures paintFamily() {
    const Canvas whole = wholeWall();
    const Canvas battered = crackedThrice();
    return {{"Wall3", whole},
            {"W3NDth1", partLeft(whole, 0.66f, 71)},
            {"W3NDth2", partLeft(whole, 0.28f, 71)},
            {"Wall3CrumbleNew", crackedOnce()},
            {"Wall3CrumbleNew2", battered},
            {"Wall3CrumbleNewDeath", partLeft(battered, 0.85f, 83)},
            {"Wall3CrumbleNewDeath2", partLeft(battered, 0.60f, 83)},
            {"Wall3CrumbleNewDeath3", partLeft(battered, 0.35f, 83)},
            {"Wall3CrumbleNewDeath4", partLeft(battered, 0.12f, 83)}};
}

}  // namespace vandrel::art
