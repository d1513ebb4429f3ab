// Patch (Head6): cap, a patch over the left eye, one gold tooth. Lopsided, so the left side is a picture of its own.
#include "images/heads/head_parts.h"

namespace vandrel::art {
namespace {

void layPatch(Canvas& head, float x, float y) {
    fill(head, unite(ellipse(x, y, 4.2f, 3.8f), rectangle(x - 4, y - 3.6f, 8, 3)), palette::ink);
    fill(head, ellipse(x - 1, y - 1, 1.6f, 1.0f), {84, 72, 112});
}

void layStubble(Canvas& head, int left, int right) {
    for (int x = left; x <= right; ++x) {
        for (int y = 22; y <= 26; ++y) {
            if ((x + y) % 2 == 0 && head.at(x, y) != palette::ink && head.visible(x, y)) {
                head.set(x, y, tannedSkin.dark);
            }
        }
    }
}

Canvas front(Lids lids) {
    Canvas head = frontSkull(tannedSkin);
    layStubble(head, 7, 24);
    head.line(5, 15, 26, 20, palette::ink);
    layEye(head, 8, 16, lids, tannedSkin.dark, 5);
    layPatch(head, 21.5f, 18.5f);
    layMarks(head, 11, 23, {"##########", "#ww#ww#ww#", ".########."});
    head.fillRect(15, 24, 2, 1, palette::gold);
    head.fillRect(14, 24, 1, 1, palette::gold);
    layFrontCap(head);
    return head;
}

Canvas sideFace(Lids lids, bool patched) {
    Canvas head = sideSkull(tannedSkin);
    layStubble(head, 16, 25);
    if (patched) {
        head.line(6, 15, 20, 18, palette::ink);
        layPatch(head, 22, 18.5f);
    } else {
        layEye(head, 19, 16, lids, tannedSkin.dark, 5, true);
        head.line(19, 15, 26, 17, palette::ink);
    }
    layMarks(head, 19, 23, {"########", "#ww#ww##", ".######."});
    head.fillRect(patched ? 20 : 23, 24, 2, 1, palette::gold);
    laySideCap(head);
    return head;
}

Canvas right(Lids lids) {
    return sideFace(lids, false);
}
Canvas left(Lids lids) {
    return sideFace(lids, true).mirrored();
}

}  // namespace

Pictures paintFamily() {
    return headSet({"Head6", tannedSkin, front, right, nullptr, left});
}

}  // namespace vandrel::art
