// The cat's head; declared in cat.h.
#include <algorithm>
#include <cmath>

#include "prizes/cat.h"

namespace vandrel::art {
namespace {

// Patches are laid by hand on a face, so that they do not cover the eyes by chance: one over each ear.
Material faceMaterial(const CatCoat& coat, const Pose& head) {
    if (coat.pattern != CoatPattern::Patches) {
        return plain(coat.pattern == CoatPattern::Points ? coat.marks : coat.fur);
    }
    const Shape left = head.oval(-0.85f, -0.62f, 0.78f, 0.62f, 0.5f),
                right = head.oval(0.8f, -0.75f, 0.66f, 0.6f, -0.5f);
    return [coat, left, right](float x, float y) {
        return left.distance(x, y) < 0 ? coat.marks : (right.distance(x, y) < 0 ? blackFur : coat.fur);
    };
}

void paintEars(Canvas& layer, const CatCoat& coat, const Pose& head) {
    const Material fur = faceMaterial(coat, head);
    for (const float side : {-1.0f, 1.0f}) {
        const Shape ear = grown(head.corners({{side * 0.92f, -0.05f}, {side * 0.86f, -1.12f}, {side * 0.2f, -0.66f}}),
                                head.size * 0.05f);
        fillFur(layer, ear, fur, head.size * 0.25f, coat.fluff * 0.5f, 3);
        const Ramp pink = rampOf(coat.nose);
        fillSmooth(layer, head.corners({{side * 0.8f, -0.36f}, {side * 0.78f, -0.9f}, {side * 0.42f, -0.66f}}), pink,
                   head.size * 0.2f);
    }
}

void paintMarks(Canvas& layer, const CatCoat& coat, const Pose& head) {
    const auto mark = [&](const Shape& shape, const Ramp& ramp, float fluff) {
        fillFur(layer, shape, ramp, head.size * 0.3f, fluff, 17);
    };
    if (coat.pattern == CoatPattern::Tabby) {
        for (const float side : {-1.0f, 0.0f, 1.0f}) {
            mark(head.limb({side * 0.27f, -0.74f}, {side * 0.2f, -0.4f}, 0.07f, 0.04f), coat.marks, 0.2f);
        }
        for (const float side : {-1.0f, 1.0f}) {
            mark(head.limb({side * 0.98f, 0.08f}, {side * 0.74f, 0.1f}, 0.06f, 0.03f), coat.marks, 0.2f);
            mark(head.limb({side * 0.95f, 0.36f}, {side * 0.66f, 0.3f}, 0.06f, 0.03f), coat.marks, 0.2f);
        }
    }
    if (coat.pattern == CoatPattern::Points) {
        mark(head.oval(0, 0.24f, 0.66f, 0.56f), coat.marks, coat.fluff);
    }
    if (coat.bib) {
        mark(head.corners({{0, -0.5f}, {0.2f, 0.12f}, {0.62f, 0.62f}, {-0.62f, 0.62f}, {-0.2f, 0.12f}}), coat.pale,
             0.5f);
    }
}

void paintMuzzle(Canvas& layer, const CatCoat& coat, const Pose& head) {
    const Ramp pale = coat.pattern == CoatPattern::Points ? coat.marks : coat.pale;
    fillFur(layer, head.oval(0, 0.62f, 0.22f, 0.16f), pale, head.size * 0.2f, 0.2f, 5);
    fillFur(layer, bothSides([&](float side) { return head.oval(side * 0.21f, 0.43f, 0.28f, 0.21f); }), pale,
            head.size * 0.22f, 0.2f, 5);
    const Colour line = mix(pale.dark, palette::ink, 0.5f);
    fill(layer, head.limb({0, 0.34f}, {0, 0.48f}, 0.03f, 0.03f), line);
    for (const float side : {-1.0f, 1.0f}) {
        fill(layer, head.tube({{0, 0.48f}, {side * 0.13f, 0.56f}, {side * 0.26f, 0.5f}}, 0.03f), line);
        // The roots of the whiskers.
        for (const float row : {0.38f, 0.46f}) {
            const Point root = head.at(side * 0.3f, row);
            layer.set(static_cast<int>(root.x), static_cast<int>(root.y), mix(pale.middle, pale.dark, 0.7f));
        }
    }
    fillSmooth(layer, grown(head.corners({{-0.1f, 0.22f}, {0.1f, 0.22f}, {0, 0.33f}}), head.size * 0.03f + 0.2f),
               rampOf(coat.nose), head.size * 0.12f);
}

void paintEye(Canvas& layer, const CatCoat& coat, const CatLook& look, const Pose& head, float side) {
    const float centre = side * 0.43f;
    const Colour rim = mix(coat.fur.dark, palette::ink, 0.8f);
    if (look.eyes == Eyes::Shut) {
        fill(layer, head.tube({{centre - 0.22f, -0.04f}, {centre, 0.1f}, {centre + 0.22f, -0.04f}}, 0.035f), rim);
        return;
    }
    const bool huge = look.eyes == Eyes::Huge;
    const float radiusX = huge ? 0.36f : 0.25f, radiusY = huge ? 0.36f : 0.23f;
    const Shape ball = head.oval(centre, -0.02f, radiusX, radiusY, side * 0.2f);
    fill(layer, grown(ball, head.size * 0.03f + 0.45f), rim);
    fillSmooth(layer, ball, {mix(coat.iris, palette::white, 0.35f), coat.iris, mix(coat.iris, palette::ink, 0.45f)},
               head.size * radiusX * 1.2f);
    const float pupil = huge ? 0.2f : 0.09f;
    fill(layer,
         intersect(ball, head.oval(centre + look.lookX * 0.09f, -0.02f + look.lookY * 0.07f, pupil, radiusY * 0.85f)),
         palette::ink);
    if (look.eyes == Eyes::Half) {
        const Shape lid = intersect(
            grown(ball, 1),
            head.corners(
                {{centre - 0.4f, -0.5f}, {centre + 0.4f, -0.5f}, {centre + 0.4f, 0.0f}, {centre - 0.4f, 0.0f}}));
        fillFur(layer, lid, coat.pattern == CoatPattern::Points ? coat.marks : coat.fur, head.size * 0.3f, 0, 3);
        fill(layer, head.limb({centre - 0.25f, 0.0f}, {centre + 0.25f, 0.0f}, 0.035f, 0.035f), rim);
    }
    const Point spark = head.at(centre - radiusX * 0.35f, -0.02f - radiusY * (look.eyes == Eyes::Half ? -0.3f : 0.4f));
    fill(layer, circle(spark.x, spark.y, std::max(0.75f, head.size * (huge ? 0.09f : 0.05f))), palette::white);
}

}  // namespace

void paintCatHead(Canvas& scene, const CatCoat& coat, const CatLook& look, const Pose& pose) {
    Pose head = pose;
    head.tilt += look.headTilt;
    const Material fur = coat.pattern == CoatPattern::Patches ? faceMaterial(coat, head) : plain(coat.fur);
    paintLayer(scene, rimOf(coat.pattern == CoatPattern::Points ? coat.marks : coat.fur), [&](Canvas& layer) {
        paintEars(layer, coat, head);
        const Shape cheeks = bothSides([&](float side) { return head.oval(side * 0.58f, 0.32f, 0.46f, 0.4f); });
        fillFur(layer, blendUnite(head.oval(0, 0, 0.97f, 0.82f), cheeks, head.size * 0.3f), fur, head.size * 0.75f,
                coat.fluff, 2);
        paintMarks(layer, coat, head);
        paintMuzzle(layer, coat, head);
        for (const float side : {-1.0f, 1.0f}) {
            paintEye(layer, coat, look, head, side);
        }
    });
    const Colour whisker = mix(coat.pale.light, palette::white, 0.6f);
    for (const float side : {-1.0f, 1.0f}) {
        stroke(scene, head.at(side * 0.4f, 0.4f), head.at(side * 1.28f, 0.26f), whisker);
        stroke(scene, head.at(side * 0.4f, 0.46f), head.at(side * 1.25f, 0.56f), whisker);
    }
}

}  // namespace vandrel::art
