// Topper (Head3): a tall hat with a band in the player's colour, a curled moustache.
#include "images/heads/head_parts.h"

namespace vandrel::art {
namespace {

constexpr Colour felt{64, 52, 92};
constexpr Colour feltLit{104, 88, 140};
constexpr Ramp hair{{156, 140, 132}, {120, 104, 100}, {84, 72, 76}};

// The hat looks the same from all sides.
void layHat(Canvas& head) {
    fill(head, rectangle(7, 1.6f, 18, 12, 1.5f), felt);
    fill(head, rectangle(8, 2, 4, 5), feltLit);
    fill(head, rectangle(6.5f, 6, 19, 6), palette::playerLit);
    fill(head, rectangle(20, 6, 5.5f, 6), palette::playerShade);
    fill(head, rectangle(2, 11.5f, 28, 4.4f, 2), palette::ink);
    fill(head, rectangle(3, 12, 26, 3, 1.4f), palette::playerLit);
    fill(head, rectangle(4, 14, 24, 1), palette::playerShade);
}

Canvas front(Lids lids) {
    Canvas head = frontSkull(paleSkin);
    layEye(head, 9, 16, lids, paleSkin.dark, 4);
    layEye(head, 19, 16, lids, paleSkin.dark, 4);
    layMarks(head, 7, 22, {"#................#", "##...###..###...##", ".################.", "..######..######.."});
    layHat(head);
    return head;
}

Canvas right(Lids lids) {
    Canvas head = sideSkull(paleSkin);
    fill(head, rectangle(5, 15, 5, 8, 2), hair.middle);
    layEye(head, 20, 16, lids, paleSkin.dark, 4, true);
    layMarks(head, 18, 22, {"#.........", "##...#####", ".#########", "..######.."});
    layHat(head);
    return head;
}

Canvas back(Lids) {
    Canvas head = hairBack(hair);
    layHat(head);
    return head;
}

}  // namespace

Pictures paintFamily() {
    return headSet({"Head3", paleSkin, front, right, back});
}

}  // namespace vandrel::art
