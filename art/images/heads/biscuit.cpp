// Biscuit (Head1): cap, round spectacles, freckles.
#include "images/heads/head_parts.h"

namespace vandrel::art {
namespace {

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
    Canvas head = frontSkull(tannedSkin);
    layLens(head, 10.5f, 19.5f, lids);
    layLens(head, 21.5f, 19.5f, lids);
    head.line(15, 19, 16, 19, palette::ink);
    layMarks(head, 13, 25, {"######", ".wwww."});
    for (const int x : {6, 8, 23, 25}) {
        head.set(x, 25, tannedSkin.dark);
    }
    layFrontCap(head);
    return head;
}

Canvas right(Lids lids) {
    Canvas head = sideSkull(tannedSkin);
    layLens(head, 21.5f, 19.5f, lids);
    head.line(11, 18, 16, 18, palette::ink);
    layMarks(head, 20, 25, {"#####", ".www."});
    head.set(16, 24, tannedSkin.dark);
    head.set(18, 25, tannedSkin.dark);
    laySideCap(head);
    return head;
}

}  // namespace

Pictures paintFamily() {
    return headSet({"Head1", tannedSkin, front, right});
}

}  // namespace vandrel::art
