// Dial (Head7): cap and a brass lens over the right eye. Lopsided, so the left side is a picture of its own.
#include "images/heads/head_parts.h"

namespace vandrel::art {
namespace {

void layLens(Canvas& head, float x, float y, Lids lids) {
    fill(head, circle(x, y, 5.9f), palette::ink);
    fillLit(head, circle(x, y, 5.0f), palette::metalGold, 4);
    fill(head, circle(x, y, 3.2f), palette::ink);
    fill(head, circle(x, y, 2.6f), lids == Lids::Open ? palette::teal : Colour{44, 148, 160});
    head.set(static_cast<int>(x) - 1, static_cast<int>(y) - 2, palette::white);
    head.set(static_cast<int>(x) - 2, static_cast<int>(y) - 1, palette::white);
}

Canvas front(Lids lids) {
    Canvas head = frontSkull(paleSkin);
    head.line(5, 19, 26, 16, {112, 72, 24});
    layEye(head, 19, 16, lids, paleSkin.dark, 5);
    layLens(head, 10.5f, 19.0f, lids);
    layMarks(head, 15, 25, {".....#", "#####."});
    layFrontCap(head);
    return head;
}

Canvas right(Lids lids) {
    Canvas head = sideSkull(paleSkin);
    head.fillRect(5, 17, 13, 2, {112, 72, 24});
    layLens(head, 22.0f, 19.0f, lids);
    fill(head, rectangle(25.5f, 16, 4, 6, 1), palette::ink);
    fill(head, rectangle(26, 17, 3, 4, 1), palette::goldDark);
    layMarks(head, 19, 25, {".....#", "#####."});
    laySideCap(head);
    return head;
}

Canvas left(Lids lids) {
    Canvas head = sideSkull(paleSkin);
    head.fillRect(5, 17, 13, 2, {112, 72, 24});
    layEye(head, 19, 16, lids, paleSkin.dark, 5, true);
    head.line(18, 15, 27, 15, {112, 72, 24});
    layMarks(head, 19, 25, {".....#", "#####."});
    laySideCap(head);
    return head.mirrored();
}

}  // namespace

Pictures paintFamily() {
    return headSet({"Head7", paleSkin, front, right, nullptr, left});
}

}  // namespace vandrel::art
