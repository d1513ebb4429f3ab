// Nib (Head12): a white bird under the cap, orange beak, round yellow eyes.
#include "images/heads/head_parts.h"

namespace vandrel::art {
namespace {

constexpr Ramp feathers{palette::white, palette::bone, palette::boneShade};

void layRoundEye(Canvas& head, float x, float y, Lids lids) {
    if (lids == Lids::Shut) {
        const int left = static_cast<int>(x) - 3, row = static_cast<int>(y);
        layMarks(head, left, row, {"#....#", ".####."});
        return;
    }
    fill(head, circle(x, y, 4.4f), palette::ink);
    fill(head, circle(x, y, 3.5f), palette::fireYellow);
    fill(head, circle(x, y, 1.7f), palette::ink);
    head.set(static_cast<int>(x) - 1, static_cast<int>(y) - 1, palette::white);
    if (lids == Lids::Half) {
        fill(head, intersect(circle(x, y, 3.5f), rectangle(x - 4, y - 4, 8, 3.2f)), feathers.dark);
    }
}

Canvas front(Lids lids) {
    Canvas head = frontSkull(feathers);
    layRoundEye(head, 9.5f, 18.5f, lids);
    layRoundEye(head, 22.5f, 18.5f, lids);
    const Shape beak = polygon({{11.5f, 20}, {16, 17.5f}, {20.5f, 20}, {16, 27}});
    fill(head, grown(beak, 0.9f), palette::ink);
    fill(head, beak, palette::fireOrange);
    fill(head, intersect(beak, rectangle(8, 16, 16, 4.4f)), palette::fireYellow);
    head.line(13, 22, 18, 22, palette::ink);
    layFrontCap(head);
    return head;
}

Canvas right(Lids lids) {
    Canvas head(32, 32);
    fillLit(head, unite(ellipse(14.5f, 15.5f, 10.6f, 12), roundedBox(14, 20.5f, 8.6f, 7.2f, 6.0f)), feathers, 6);
    for (const int y : {18, 21, 24}) {
        head.line(7, y, 9, y + 1, feathers.dark);
    }
    layRoundEye(head, 18.0f, 18.0f, lids);
    const Shape beak = polygon({{21.5f, 18.5f}, {26, 18.5f}, {30.0f, 22}, {28.5f, 25}, {26, 23.5f}, {21, 24.5f}});
    fill(head, grown(beak, 0.8f), palette::ink);
    fill(head, beak, palette::fireOrange);
    fill(head, intersect(beak, rectangle(20, 17, 12, 3.6f)), palette::fireYellow);
    head.line(22, 22, 26, 22, palette::ink);
    laySideCap(head);
    return head;
}

}  // namespace

Pictures paintFamily() {
    return headSet({"Head12", feathers, front, right});
}

}  // namespace vandrel::art
