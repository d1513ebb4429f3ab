// The cat's body in four poses; declared in cat.h.
#include <cmath>

#include "painter/noise.h"
#include "prizes/cat.h"

namespace vandrel::art {
namespace {

const Ramp& feetOf(const CatCoat& coat) {
    return coat.socks ? coat.pale : (coat.pattern == CoatPattern::Points ? coat.marks : coat.fur);
}

Material tailMaterial(const CatCoat& coat, const Pose& cat) {
    return coat.pattern == CoatPattern::Points ? plain(coat.marks) : coatMaterial(coat, cat);
}

void paintTail(Canvas& scene, const CatCoat& coat, const Pose& cat, const std::vector<Point>& points) {
    const float radius = coat.fluff > 1 ? 0.34f : 0.22f;
    paintLayer(scene, rimOf(coat.fur), [&](Canvas& layer) {
        fillFur(layer, cat.tube(points, radius), tailMaterial(coat, cat), cat.size * radius, coat.fluff, 9);
        if (coat.bib && coat.pattern != CoatPattern::Tabby) {
            const Point tip = points.back();
            fillFur(layer, cat.oval(tip.x, tip.y, radius, radius), coat.pale, cat.size * radius, coat.fluff, 9);
        }
    });
}

void paintToes(Canvas& layer, const CatCoat& coat, const Pose& paw, float dx, float dy) {
    fillFur(layer, paw.oval(dx, dy, 0.33f, 0.2f), feetOf(coat), paw.size * 0.25f, 0.2f, 6);
    const Colour gap = mix(feetOf(coat).dark, palette::ink, 0.3f);
    for (const float toe : {-0.1f, 0.1f}) {
        stroke(layer, paw.at(dx + toe, dy - 0.02f), paw.at(dx + toe, dy + 0.1f), gap);
    }
}

void paintGround(Canvas& scene, const Pose& cat, float reach) {
    shade(scene, cat.oval(0.15f, -0.02f, reach, 0.26f), 0.55f, cat.size * 0.35f);
}

}  // namespace

Material coatMaterial(const CatCoat& coat, const Pose& pose) {
    switch (coat.pattern) {
        case CoatPattern::Tabby:
            return [coat, pose](float x, float y) {
                const float wobble = smoothNoise(x / 7, y / 7, 41) * 5.0f;
                const float band = std::sin((x * 0.75f + wobble + (y - pose.y) * 0.25f) * 9.5f / pose.size);
                return band > 0.45f ? coat.marks : coat.fur;
            };
        case CoatPattern::Patches:
            return [coat, pose](float x, float y) {
                const float unit = pose.size * 0.95f;
                const float noise = smoothNoise((x - pose.x) / unit + 9.3f, (y - pose.y) / unit + 4.1f, 77);
                return noise < 0.36f ? coat.marks : (noise > 0.68f ? blackFur : coat.fur);
            };
        default:
            return plain(coat.fur);
    }
}

void paintSittingCat(Canvas& scene, const CatCoat& coat, const CatLook& look, const Pose& cat) {
    paintGround(scene, cat, 1.9f);
    const Material fur = coatMaterial(coat, cat);
    paintTail(scene, coat, cat, {{0.8f, -0.25f}, {1.5f, -0.22f}, {1.85f, -0.7f}, {1.6f, -1.3f}});
    paintLayer(scene, rimOf(coat.fur), [&](Canvas& layer) {
        const Shape torso =
            blendUnite(cat.oval(0, -1.0f, 1.12f, 1.0f), cat.oval(0, -2.1f, 0.78f, 0.9f), cat.size * 0.6f);
        fillFur(layer, torso, fur, cat.size * 0.9f, coat.fluff, 10);
        fillFur(layer, bothSides([&](float side) { return cat.oval(side * 0.86f, -0.58f, 0.5f, 0.58f); }), fur,
                cat.size * 0.5f, coat.fluff, 11);
        paintToes(layer, coat, cat, -0.95f, -0.14f);
        paintToes(layer, coat, cat, 0.95f, -0.14f);
    });
    paintLayer(scene, rimOf(coat.fur), [&](Canvas& layer) {
        for (const float side : {-1.0f, 1.0f}) {
            fillFur(layer, cat.limb({side * 0.34f, -1.5f}, {side * 0.36f, -0.2f}, 0.34f, 0.26f), fur, cat.size * 0.3f,
                    0.3f, 12);
            if (coat.socks || coat.pattern == CoatPattern::Points) {
                fillFur(layer, cat.limb({side * 0.36f, -0.6f}, {side * 0.36f, -0.2f}, 0.26f, 0.26f), feetOf(coat),
                        cat.size * 0.3f, 0.3f, 12);
            }
            paintToes(layer, coat, cat, side * 0.38f, -0.13f);
        }
        fillFur(layer, cat.oval(0, -1.75f, 0.58f, 0.72f), coat.bib ? plain(coat.pale) : fur, cat.size * 0.5f,
                coat.fluff + 0.5f, 13);
    });
    shade(scene, cat.oval(0, -2.2f, 0.62f, 0.22f), 0.35f, cat.size * 0.2f);
    paintCatHead(scene, coat, look, cat.part(0, -2.95f));
}

void paintLoafingCat(Canvas& scene, const CatCoat& coat, const CatLook& look, const Pose& cat) {
    paintGround(scene, cat, 2.2f);
    const Material fur = coatMaterial(coat, cat);
    paintLayer(scene, rimOf(coat.fur), [&](Canvas& layer) {
        const Shape rump = cat.oval(0.75f, -0.88f, 1.3f, 0.88f);
        fillFur(layer, blendUnite(rump, cat.oval(-0.7f, -0.82f, 1.15f, 0.82f), cat.size * 0.5f), fur, cat.size * 0.85f,
                coat.fluff, 10);
    });
    paintLayer(scene, rimOf(coat.fur), [&](Canvas& layer) {
        fillFur(layer, cat.oval(1.05f, -0.6f, 0.8f, 0.6f), fur, cat.size * 0.5f, coat.fluff, 14);
    });
    paintTail(scene, coat, cat, {{1.9f, -0.5f}, {1.5f, -0.16f}, {0.6f, -0.14f}, {0.1f, -0.18f}});
    paintLayer(scene, rimOf(coat.fur), [&](Canvas& layer) {
        fillFur(layer, cat.oval(-1.0f, -0.75f, 0.62f, 0.62f), coat.bib ? plain(coat.pale) : fur, cat.size * 0.5f,
                coat.fluff, 15);
        paintToes(layer, coat, cat, -1.35f, -0.15f);
        paintToes(layer, coat, cat, -0.7f, -0.15f);
    });
    paintCatHead(scene, coat, look, cat.part(-1.05f, -1.55f));
}

void paintCurledCat(Canvas& scene, const CatCoat& coat, const CatLook& look, const Pose& cat) {
    paintGround(scene, cat, 2.2f);
    const Material fur = coatMaterial(coat, cat);
    paintLayer(scene, rimOf(coat.fur), [&](Canvas& layer) {
        fillFur(layer, cat.oval(0.1f, -1.0f, 2.0f, 1.0f), fur, cat.size * 0.95f, coat.fluff, 10);
    });
    paintLayer(scene, rimOf(coat.fur), [&](Canvas& layer) {
        fillFur(layer, cat.oval(1.0f, -0.75f, 1.0f, 0.75f, -0.2f), fur, cat.size * 0.6f, coat.fluff, 14);
    });
    paintCatHead(scene, coat, look, cat.part(-1.1f, -0.95f, 1.0f, -0.45f));
    paintTail(scene, coat, cat, {{2.0f, -0.6f}, {1.5f, -0.2f}, {0.4f, -0.12f}, {-0.7f, -0.14f}, {-1.2f, -0.2f}});
}

void paintStretchedCat(Canvas& scene, const CatCoat& coat, const CatLook& look, const Pose& cat) {
    shade(scene, cat.oval(0.4f, 0, 3.3f, 0.3f), 0.5f, cat.size * 0.35f);
    const Material fur = coatMaterial(coat, cat);
    const auto leg = [&](Canvas& layer, Point from, Point to) {
        fillFur(layer, cat.limb(from, to, 0.34f, 0.22f), fur, cat.size * 0.3f, 0.4f, 12);
        fillFur(layer, cat.oval(to.x, to.y, 0.3f, 0.24f), feetOf(coat), cat.size * 0.25f, 0.2f, 6);
    };
    paintTail(scene, coat, cat, {{2.0f, -0.7f}, {2.8f, -0.9f}, {3.3f, -1.3f}, {3.7f, -1.2f}});
    paintLayer(scene, rimOf(coat.fur), [&](Canvas& layer) {
        leg(layer, {1.6f, -0.9f}, {2.9f, -0.35f});
        leg(layer, {-0.8f, -0.9f}, {-0.5f, -0.05f});
    });
    paintLayer(scene, rimOf(coat.fur), [&](Canvas& layer) {
        const Shape torso =
            blendUnite(cat.oval(1.3f, -0.85f, 1.05f, 0.82f), cat.oval(-0.7f, -0.85f, 1.15f, 0.74f), cat.size * 0.5f);
        fillFur(layer, torso, fur, cat.size * 0.75f, coat.fluff, 10);
        fillFur(layer, cat.oval(0.2f, -0.4f, 1.35f, 0.34f), coat.pale, cat.size * 0.35f, coat.fluff, 15);
    });
    paintLayer(scene, rimOf(coat.fur), [&](Canvas& layer) {
        leg(layer, {1.7f, -0.6f}, {2.5f, 0.1f});
        leg(layer, {-1.0f, -0.6f}, {-1.25f, 0.18f});
    });
    paintCatHead(scene, coat, look, cat.part(-2.0f, -1.05f, 1.0f, -0.25f));
}

void paintCatPaw(Canvas& scene, const CatCoat& coat, const Pose& paw) {
    paintLayer(scene, rimOf(coat.fur), [&](Canvas& layer) {
        fillFur(layer, paw.limb({0, -0.2f}, {0, 0.25f}, 0.27f, 0.28f), feetOf(coat), paw.size * 0.3f, 0.3f, 6);
        for (const float toe : {-0.1f, 0.1f}) {
            stroke(layer, paw.at(toe, 0.28f), paw.at(toe, 0.46f), mix(feetOf(coat).dark, palette::ink, 0.3f));
        }
    });
}

}  // namespace vandrel::art
