// Volt (Head11): a box robot in the player's colour with an aerial and two lamps for eyes.
#include "images/heads/head_parts.h"

namespace vandrel::art {
namespace {

constexpr Ramp wire{palette::steelLight, palette::steelMiddle, palette::steelDark};

Canvas box() {
    Canvas head(32, 32);
    fill(head, rectangle(15, 3, 2, 6), palette::steelMiddle);
    fill(head, circle(16, 3.6f, 2.3f), palette::fireRed);
    head.set(15, 2, palette::white);
    fill(head, rectangle(4, 8, 24, 20, 3), palette::playerLit);
    fill(head, rectangle(25, 10, 3, 16, 1), palette::playerShade);
    fill(head, rectangle(6, 25, 20, 2), palette::playerShade);
    for (const int x : {6, 24}) {
        for (const int y : {10, 24}) {
            head.fillRect(x, y, 2, 2, palette::playerFold);
        }
    }
    return head;
}

void layEar(Canvas& head, float x) {
    fill(head, rectangle(x - 1.4f, 14, 2.8f, 8, 1), palette::steelMiddle);
}

void layLamp(Canvas& head, float x, float y, Lids lids) {
    fill(head, circle(x, y, 4.2f), palette::ink);
    fill(head, circle(x, y, 3.3f), lids == Lids::Shut ? palette::goldDark : palette::fireYellow);
    if (lids == Lids::Half) {
        fill(head, rectangle(x - 4, y - 4, 8, 3), palette::ink);
    } else if (lids == Lids::Open) {
        fill(head, circle(x - 0.8f, y - 0.8f, 1.4f), palette::white);
    }
}

Canvas front(Lids lids) {
    Canvas head = box();
    layEar(head, 3.6f);
    layEar(head, 28.4f);
    layLamp(head, 10.5f, 15.5f, lids);
    layLamp(head, 21.5f, 15.5f, lids);
    layMarks(head, 9, 21, {"##############", "#w#w#w#ww#w#w#", "##############"});
    return head;
}

Canvas right(Lids lids) {
    Canvas head = box();
    layLamp(head, 23.5f, 15.5f, lids);
    layMarks(head, 18, 21, {"##########", "#w#w#w#w##", "##########"});
    fill(head, circle(11, 17, 4.0f), palette::ink);
    fill(head, circle(11, 17, 3.1f), palette::steelMiddle);
    fill(head, circle(10.6f, 16.6f, 1.4f), palette::steelLight);
    return head;
}

Canvas back(Lids) {
    Canvas head = box();
    layEar(head, 3.6f);
    layEar(head, 28.4f);
    fill(head, rectangle(9, 12, 14, 11, 1), palette::ink);
    for (const int y : {13, 16, 19}) {
        head.fillRect(10, y, 12, 2, palette::playerFold);
    }
    head.fillRect(20, 22, 2, 1, palette::leafLight);
    return head;
}

}  // namespace

Pictures paintFamily() {
    return headSet({"Head11", wire, front, right, back});
}

}  // namespace vandrel::art
