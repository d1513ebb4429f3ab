// Flint (Head9): a helmet in the player's colour with two horns and a nose guard, a red beard.
#include "images/heads/head_parts.h"

namespace vandrel::art {
namespace {

constexpr Ramp beard{{240, 152, 72}, {208, 104, 40}, {144, 60, 32}};

void layHorn(Canvas& head, bool left) {
    std::vector<Point> points{{6, 11}, {2.4f, 8}, {1.6f, 2.2f}, {4, 1.6f}, {6, 5}, {10, 7}};
    if (!left) {
        for (Point& point : points) {
            point.x = 32 - point.x;
        }
    }
    fill(head, grown(polygon(points), 0.3f), palette::bone);
    head.line(left ? 4 : 27, 8, left ? 6 : 25, 8, palette::boneShade);
    head.line(left ? 3 : 28, 5, left ? 5 : 26, 5, palette::boneShade);
}

void layHelmet(Canvas& head, float middle) {
    const Shape dome = intersect(ellipse(middle, 14, 10.8f, 12), rectangle(0, 0, 32, 13));
    fill(head, grown(dome, 0.8f), palette::ink);
    fillLit(head, dome, capCloth, 5);
    fill(head, rectangle(middle - 1, 2.4f, 2, 9), palette::playerShade);
    fill(head, rectangle(middle - 12, 11, 24, 5, 1.6f), palette::ink);
    fill(head, rectangle(middle - 11, 12, 22, 3, 1), palette::steelMiddle);
    for (int rivet = -9; rivet <= 9; rivet += 6) {
        head.fillRect(static_cast<int>(middle) + rivet - 1, 12, 2, 2, palette::steelLight);
    }
}

Canvas front(Lids lids) {
    Canvas head = frontSkull(paleSkin);
    layHorn(head, true);
    layHorn(head, false);
    fillLit(head, subtract(roundedBox(16, 24, 11, 4.4f, 3), ellipse(16, 20, 7, 2)), beard, 3);
    layEye(head, 9, 15, lids, paleSkin.dark, 4);
    layEye(head, 19, 15, lids, paleSkin.dark, 4);
    layMarks(head, 13, 24, {"######"});
    layHelmet(head, 16);
    fill(head, rectangle(14, 13, 4, 9, 1.4f), palette::ink);
    fill(head, rectangle(15, 12, 2, 9, 0.8f), palette::steelLight);
    return head;
}

Canvas right(Lids lids) {
    Canvas head = sideSkull(paleSkin, false);
    fillLit(head, unite(roundedBox(19.5f, 24, 7.6f, 4.4f, 3), rectangle(12, 16, 4, 9, 1)), beard, 3);
    layEye(head, 19, 15, lids, paleSkin.dark, 5, true);
    layMarks(head, 22, 24, {"####"});
    layHelmet(head, 15.5f);
    fill(head, rectangle(25, 13, 3.6f, 9, 1.4f), palette::ink);
    fill(head, rectangle(25.6f, 12, 2, 9, 0.8f), palette::steelLight);
    const Shape horn = polygon({{9, 12}, {8, 8}, {4, 5}, {3.4f, 1.8f}, {8, 2.4f}, {13, 6}, {15, 12}});
    fill(head, grown(horn, 0.8f), palette::ink);
    fill(head, horn, palette::bone);
    head.line(8, 7, 11, 5, palette::boneShade);
    return head;
}

Canvas back(Lids) {
    Canvas head = hairBack(beard);
    layHorn(head, true);
    layHorn(head, false);
    layHelmet(head, 16);
    return head;
}

}  // namespace

Pictures paintFamily() {
    return headSet({"Head9", paleSkin, front, right, back});
}

}  // namespace vandrel::art
