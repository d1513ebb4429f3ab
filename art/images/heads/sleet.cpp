// Sleet (Head5): cap and a teal scarf up to the eyes.
#include "images/heads/head_parts.h"

namespace vandrel::art {
namespace {

constexpr Ramp wool{{160, 244, 236}, palette::teal, {44, 148, 160}};

Canvas front(Lids lids) {
    Canvas head = frontSkull(darkSkin);
    layEye(head, 8, 15, lids, darkSkin.dark, 5);
    layEye(head, 19, 15, lids, darkSkin.dark, 5);
    fillLit(head, roundedBox(16, 24.6f, 12.9f, 3.9f, 2.6f), wool, 3);
    for (const int x : {6, 11, 16, 21, 26}) {
        head.line(x, 22, x - 1, 27, wool.dark);
    }
    head.line(5, 21, 26, 21, palette::ink);
    layFrontCap(head);
    return head;
}

Canvas right(Lids lids) {
    Canvas head = sideSkull(darkSkin, false);
    layEye(head, 20, 15, lids, darkSkin.dark, 5, true);
    fillLit(head, roundedBox(16.5f, 24.6f, 12.0f, 3.9f, 2.6f), wool, 3);
    // The end of the scarf flies behind.
    fillLit(head, polygon({{8, 22}, {2, 19}, {2, 24}, {4, 24}, {3, 27}, {9, 27}}), wool, 2);
    for (const int x : {11, 16, 21, 26}) {
        head.line(x, 22, x - 1, 27, wool.dark);
    }
    head.line(9, 21, 27, 21, palette::ink);
    laySideCap(head);
    return head;
}

}  // namespace

Pictures paintFamily() {
    return headSet({"Head5", darkSkin, front, right});
}

}  // namespace vandrel::art
