// Grin (Head8): a green goblin's face under the cap, pointed ears, wide teeth.
#include "images/heads/head_parts.h"

namespace vandrel::art {
namespace {

Canvas front(Lids lids) {
    Canvas head = frontSkull(goblinSkin);
    fill(head, polygon({{6, 17}, {1.4f, 14}, {3, 21}, {7, 23}}), goblinSkin.middle);
    fill(head, polygon({{26, 17}, {30.6f, 14}, {29, 21}, {25, 23}}), goblinSkin.dark);
    layEye(head, 9, 15, lids, goblinSkin.dark, 5);
    layEye(head, 18, 15, lids, goblinSkin.dark, 5);
    if (lids == Lids::Open) {
        head.replace(palette::white, palette::fireYellow);
    }
    layMarks(head, 7, 22, {"##################", "#ww#ww#ww#ww#ww#w#", "#ww#ww#ww#ww#ww#w#", ".################."});
    layFrontCap(head);
    return head;
}

Canvas right(Lids lids) {
    Canvas head = sideSkull(goblinSkin, false);
    fill(head, polygon({{14, 16}, {5, 15}, {8, 20}, {13, 23}}), palette::ink);
    fill(head, polygon({{13.5f, 17}, {6.5f, 16}, {9, 19.5f}, {13, 22}}), goblinSkin.light);
    fill(head, ellipse(27, 20, 2.6f, 2.2f), goblinSkin.middle);
    layEye(head, 19, 15, lids, goblinSkin.dark, 5, true);
    if (lids == Lids::Open) {
        head.replace(palette::white, palette::fireYellow);
    }
    layMarks(head, 16, 22, {"###########", "#ww#ww#ww##", "#ww#ww#ww#.", ".#########."});
    laySideCap(head);
    return head;
}

}  // namespace

Pictures paintFamily() {
    return headSet({"Head8", goblinSkin, front, right});
}

}  // namespace vandrel::art
