// Quill (Head2): swept-back spikes in the player's colour and a long nose.
#include "images/heads/head_parts.h"

namespace vandrel::art {
namespace {

void laySpike(Canvas& head, const std::vector<Point>& points) {
    fill(head, grown(polygon(points), 1.0f), palette::ink);
    fill(head, polygon(points), palette::playerLit);
}

Canvas front(Lids lids) {
    Canvas head = frontSkull(paleSkin);
    laySpike(head, {{3, 17}, {2, 4}, {12, 12}});
    laySpike(head, {{29, 17}, {30, 4}, {20, 12}});
    laySpike(head, {{7, 13}, {8, 1.5f}, {17, 11}});
    laySpike(head, {{25, 13}, {24, 1.5f}, {15, 11}});
    laySpike(head, {{11, 14}, {16, 1.2f}, {21, 14}});
    fill(head,
         polygon({{4, 17}, {5, 10}, {16, 7}, {27, 10}, {28, 17}, {23, 13}, {20, 15}, {16, 12}, {12, 15}, {9, 13}}),
         palette::playerLit);
    fill(head, polygon({{19, 5}, {17, 12}, {21, 14}, {27, 16}, {27, 11}}), palette::playerShade);
    layEye(head, 9, 16, lids, paleSkin.dark, 4);
    layEye(head, 19, 16, lids, paleSkin.dark, 4);
    fill(head, ellipse(16, 22, 2.6f, 3.2f), palette::ink);
    fill(head, ellipse(15.8f, 21.5f, 2.0f, 2.6f), palette::fireOrange);
    layMarks(head, 12, 25, {"#......#", ".######."});
    return head;
}

Canvas right(Lids lids) {
    Canvas head = sideSkull(paleSkin, false);
    laySpike(head, {{8, 22}, {1.5f, 23}, {8, 14}});
    laySpike(head, {{7, 18}, {1.2f, 13}, {13, 8}});
    laySpike(head, {{8, 12}, {3, 4}, {17, 6}});
    laySpike(head, {{12, 9}, {12, 1.2f}, {22, 8}});
    fill(head,
         polygon({{7, 20}, {6, 12}, {11, 5}, {22, 5}, {27, 12}, {22, 12}, {20, 15}, {16, 13}, {13, 17}, {10, 16}}),
         palette::playerLit);
    fill(head, polygon({{7, 20}, {6, 14}, {10, 16}, {9, 19}}), palette::playerShade);
    fill(head, polygon({{20, 15}, {16, 13}, {13, 17}, {14, 13}, {18, 11}}), palette::playerShade);
    layEye(head, 19, 15, lids, paleSkin.dark, 4, true);
    fill(head, grown(capsule(25, 21.5f, 28.2f, 22.5f, 1.4f), 0.8f), palette::ink);
    fill(head, capsule(25, 21.5f, 28.2f, 22.5f, 1.4f), palette::fireOrange);
    layMarks(head, 18, 25, {"......", "######"});
    return head;
}

Canvas back(Lids) {
    Canvas head = hairBack({palette::playerLit, palette::playerLit, palette::playerShade});
    laySpike(head, {{3, 20}, {2, 4}, {12, 12}});
    laySpike(head, {{29, 20}, {30, 4}, {20, 12}});
    laySpike(head, {{7, 13}, {8, 1.5f}, {17, 11}});
    laySpike(head, {{25, 13}, {24, 1.5f}, {15, 11}});
    laySpike(head, {{11, 14}, {16, 1.2f}, {21, 14}});
    fill(head, polygon({{5, 17}, {6, 9}, {16, 7}, {26, 9}, {27, 17}}), palette::playerLit);
    laySpike(head, {{6, 15}, {9, 24}, {14, 15}});
    laySpike(head, {{18, 15}, {23, 24}, {26, 15}});
    laySpike(head, {{11, 15}, {16, 27}, {21, 15}});
    fill(head, polygon({{6, 16}, {7, 9}, {16, 7}, {25, 9}, {26, 16}}), palette::playerLit);
    fill(head, polygon({{17, 24}, {20, 15}, {16, 15}}), palette::playerShade);
    return head;
}

}  // namespace

Pictures paintFamily() {
    return headSet({"Head2", paleSkin, front, right, back});
}

}  // namespace vandrel::art
