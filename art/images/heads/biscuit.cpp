// Biscuit (Head1): cap, round spectacles, freckles.
#include "images/heads/head_parts.h"

namespace vandrel::art {
namespace {

constexpr Colour ginger{220, 120, 48};

void layLens(Canvas& head, float x, float y, Lids lids) {
    fill(head, circle(x, y, 5.0f), palette::ink);
    fill(head, circle(x, y, 3.9f), lids == Lids::Open ? palette::iceWhite : palette::iceLight);
    const int left = static_cast<int>(x), top = static_cast<int>(y);
    if (lids == Lids::Open) {
        head.fillRect(left - 1, top - 1, 2, 3, palette::ink);
    } else {
        head.line(left - 2, top, left + 1, top, palette::ink);
    }
    head.line(left - 3, top - 1, left - 2, top - 2, palette::white);
}

Canvas front(Lids lids) {
    Canvas head = frontSkull(paleSkin);
    layLens(head, 10.5f, 19.5f, lids);
    layLens(head, 21.5f, 19.5f, lids);
    head.line(15, 19, 16, 19, palette::ink);
    fill(head, rectangle(4, 14, 3, 5, 1), ginger);
    fill(head, rectangle(25, 14, 3, 5, 1), ginger);
    layMarks(head, 13, 25, {"######", ".wwww."});
    for (const int x : {6, 8, 23, 25}) {
        head.set(x, 25, paleSkin.dark);
    }
    layFrontCap(head);
    return head;
}

Canvas right(Lids lids) {
    Canvas head = sideSkull(paleSkin);
    fill(head, rectangle(4, 14, 7, 8, 2.5f), ginger);
    layLens(head, 21.5f, 19.5f, lids);
    head.line(11, 18, 16, 18, palette::ink);
    layMarks(head, 20, 25, {"#####", ".www."});
    head.set(16, 24, paleSkin.dark);
    head.set(18, 25, paleSkin.dark);
    laySideCap(head);
    return head;
}

}  // namespace

Pictures paintFamily() {
    return headSet({"Head1", paleSkin, front, right});
}

}  // namespace vandrel::art
