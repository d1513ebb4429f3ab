// Tansy (Head10): hair and ponytail in the player's colour, a red clip, long lashes.
#include "images/heads/head_parts.h"

namespace vandrel::art {
namespace {

constexpr Colour hair = palette::playerLit;
constexpr Colour strand = palette::playerShade;

void layClip(Canvas& head, float x, float y) {
    fill(head, grown(ellipse(x, y, 2.6f, 1.6f), 0.9f), palette::ink);
    fill(head, ellipse(x, y, 2.6f, 1.6f), palette::fireRed);
    head.set(static_cast<int>(x) - 1, static_cast<int>(y) - 1, palette::white);
}

Canvas front(Lids lids) {
    Canvas head = frontSkull(tannedSkin);
    fill(head, subtract(unite(ellipse(16, 13, 13, 11.4f), rectangle(3, 13, 26, 12, 3)), ellipse(16, 21, 9.6f, 8.8f)),
         hair);
    fill(head, polygon({{5, 17}, {8, 7}, {22, 7}, {27, 17}, {21, 14}, {15, 15}, {11, 13}}), hair);
    for (const int y : {17, 18, 19, 20, 21, 22}) {
        head.set(4, y, strand);
        head.set(27, y, strand);
        head.set(26, y, strand);
    }
    head.line(14, 4, 12, 12, strand);
    head.line(19, 4, 21, 12, strand);
    layEye(head, 9, 16, lids, tannedSkin.dark, 5);
    layEye(head, 18, 16, lids, tannedSkin.dark, 5);
    head.line(8, 16, 9, 15, palette::ink);
    head.line(23, 16, 22, 15, palette::ink);
    head.line(10, 15, 12, 15, palette::ink);
    head.line(19, 15, 21, 15, palette::ink);
    layMarks(head, 14, 24, {"#rr#", ".##."});
    layClip(head, 23.5f, 8.5f);
    return head;
}

Canvas right(Lids lids) {
    Canvas head = sideSkull(tannedSkin);
    fill(head, ellipse(14.5f, 12.5f, 11.6f, 10.8f), hair);
    fill(head, polygon({{4, 13}, {15, 12}, {12, 25}, {7, 25}}), hair);
    fill(head, polygon({{16, 12}, {28, 12}, {27, 22}, {22, 25}, {14, 22}, {14, 17}}), tannedSkin.middle);
    fill(head, polygon({{13, 14}, {26, 7}, {27, 14}, {20, 13}, {15, 18}}), hair);
    // The tail swings out behind.
    const Shape tail = unite(taper(6, 9, 3.6f, 17, 2.2f, 2.4f), taper(3.6f, 17, 4.5f, 25, 2.4f, 0.8f));
    fill(head, grown(tail, 0.9f), palette::ink);
    fill(head, tail, hair);
    head.line(3, 14, 3, 21, strand);
    head.line(10, 6, 8, 18, strand);
    head.line(14, 5, 12, 20, strand);
    layEye(head, 19, 16, lids, tannedSkin.dark, 5, true);
    head.line(19, 15, 24, 15, palette::ink);
    layMarks(head, 22, 24, {"#rr#", ".##."});
    layClip(head, 7.5f, 8.5f);
    return head;
}

Canvas back(Lids) {
    Canvas head = hairBack({hair, hair, strand});
    const Shape tail = unite(taper(16, 9, 16, 20, 3, 4.4f), taper(16, 20, 17.5f, 27, 4.4f, 1.0f));
    fill(head, grown(tail, 0.9f), palette::ink);
    fill(head, tail, hair);
    head.line(15, 13, 14, 22, strand);
    head.line(18, 13, 18, 24, strand);
    layClip(head, 16, 9);
    return head;
}

}  // namespace

Pictures paintFamily() {
    return headSet({"Head10", tannedSkin, front, right, back});
}

}  // namespace vandrel::art
