// Pip (Head0): round cap, big eyes. His back is what most of the others show, too.
#include "images/heads/head_parts.h"

namespace vandrel::art {
namespace {

constexpr Ramp hair{{132, 84, 56}, {104, 60, 44}, {72, 40, 36}};

Canvas front(Lids lids) {
    Canvas head = frontSkull(paleSkin);
    layEye(head, 8, 16, lids, paleSkin.dark);
    layEye(head, 19, 16, lids, paleSkin.dark);
    layMarks(head, 6, 22, {"pp................pp", "pp................pp"});
    layMarks(head, 13, 24, {"#....#", ".####."});
    layFrontCap(head);
    return head;
}

Canvas right(Lids lids) {
    Canvas head = sideSkull(paleSkin);
    fill(head, rectangle(4, 14, 5, 9, 2), hair.middle);
    layEye(head, 19, 16, lids, paleSkin.dark, 5, true);
    layMarks(head, 17, 23, {"pp......", "pp...#..", "....#..."});
    layMarks(head, 20, 24, {"...#", "###."});
    laySideCap(head);
    return head;
}

Canvas back(Lids) {
    Canvas head = hairBack(hair);
    layBackCap(head);
    return head;
}

}  // namespace

Pictures paintFamily() {
    return headSet({"Head0", paleSkin, front, right, back});
}

}  // namespace vandrel::art
