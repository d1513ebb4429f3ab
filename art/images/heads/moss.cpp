// Moss (Head4): cap and a full green beard.
#include "images/heads/head_parts.h"

namespace vandrel::art {
namespace {

constexpr Ramp beard{{152, 208, 88}, palette::leafLight, palette::leafDark};

Canvas front(Lids lids) {
    Canvas head = frontSkull(tannedSkin);
    layEye(head, 9, 15, lids, tannedSkin.dark, 4);
    layEye(head, 19, 15, lids, tannedSkin.dark, 4);
    const Shape fur = subtract(roundedBox(16, 23.5f, 13.4f, 5.4f, 4.0f), ellipse(16, 18.5f, 7.5f, 2.6f));
    fillLit(head, unite(fur, unite(rectangle(3, 18, 4, 6, 1), rectangle(25, 18, 4, 6, 1))), beard, 4);
    for (const int x : {7, 11, 20, 24}) {
        head.line(x, 24, x, 26, beard.dark);
    }
    layMarks(head, 13, 24, {"######", "#wwww#", ".####."});
    fill(head, ellipse(16, 21.5f, 2.4f, 1.7f), tannedSkin.dark);
    fill(head, ellipse(15.6f, 21.2f, 1.8f, 1.2f), palette::skinLight);
    layFrontCap(head);
    return head;
}

Canvas right(Lids lids) {
    Canvas head = sideSkull(tannedSkin);
    layEye(head, 20, 15, lids, tannedSkin.dark, 4, true);
    const Shape fur = uniteAll({roundedBox(17, 24, 8.6f, 4.6f, 4.0f),
                                polygon({{8, 15}, {13, 15}, {16, 21}, {12, 26}, {8, 23}}), circle(24.5f, 23.5f, 2.6f)});
    fillLit(head, fur, beard, 4);
    for (const int x : {12, 15, 18, 21}) {
        head.line(x, 23, x - 1, 26, beard.dark);
    }
    layMarks(head, 21, 22, {"####", "#ww#", ".##."});
    laySideCap(head);
    return head;
}

}  // namespace

Pictures paintFamily() {
    return headSet({"Head4", tannedSkin, front, right});
}

}  // namespace vandrel::art
