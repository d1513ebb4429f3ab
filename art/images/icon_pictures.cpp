#include "images/icon_pictures.h"

#include "painter/pixel_map.h"
#include "painter/shapes.h"

namespace vandrel::art {

namespace {

constexpr Colour cap{232, 64, 48};
constexpr Colour capShade{168, 40, 40};

}  // namespace

Canvas smallIcon() {
    static const Legend legend{{'k', palette::ink},
                               {'r', cap},
                               {'d', capShade},
                               {'s', palette::skinLight},
                               {'m', palette::skinMiddle},
                               {'w', palette::white},
                               {'y', palette::fireYellow},
                               {'o', palette::fireOrange}};
    return canvasFromMap(legend, {"............o.y.", "....kkkkkk...yo.", "..kkrrrrrrkkywyo", ".krrrrrrrrrdkoy.",
                                  ".krwrrrrrrrdkk.o", "krrwrrrrrrrrdk..", "krrrrrrrrrrrdk..", "kddddddddddddk..",
                                  "kkkkkkkkkkkkkkk.", ".kswwkswwksmkk..", ".kswkksswkksmkk.", ".kswkksswkksmkk.",
                                  ".kssssssssssmk..", "..ksskkkkssmk...", "...kkssssmkk....", ".....kkkkk......"});
}

Canvas largeIcon() {
    Canvas canvas(32, 32);
    // The bomb behind.
    fill(canvas, circle(19, 20, 11.4f), palette::steelDark);
    fill(canvas, circle(19, 20, 10.4f), palette::ink);
    fill(canvas, curve({{25, 11}, {26, 7}, {28, 5}}, 1.7f), palette::ink);
    fill(canvas, curve({{25, 11}, {26, 7}, {28, 5}}, 0.8f), palette::bone);
    fill(canvas, star(27.5f, 4.5f, 8, 4.4f, 2.0f), palette::fireOrange);
    fill(canvas, star(27.5f, 4.5f, 4, 3.6f, 1.4f), palette::fireYellow);
    fill(canvas, circle(27.5f, 4.5f, 1.1f), palette::white);
    // The face before it.
    Canvas head(32, 32);
    fillLit(head, ellipse(12.5f, 19, 10.4f, 10.6f), palette::skin, 6);
    for (const int x : {6, 14}) {
        fill(head, rectangle(static_cast<float>(x), 17, 5, 7, 2), palette::white);
        head.fillRect(x + 2, 19, 3, 4, palette::ink);
        head.set(x + 2, 19, palette::white);
    }
    head.line(10, 26, 14, 26, palette::ink);
    head.set(15, 25, palette::ink);
    fillLit(head, intersect(ellipse(12.5f, 14, 11, 11), rectangle(0, 0, 32, 14)), {{255, 128, 104}, cap, capShade}, 6);
    fill(head, rectangle(1.2f, 12.4f, 23, 4.6f, 2), palette::ink);
    fill(head, rectangle(2, 13, 21.4f, 3, 1.4f), cap);
    fill(head, rectangle(2, 15, 21, 1), capShade);
    head.outline();
    canvas.draw(head);
    return canvas;
}

}  // namespace vandrel::art
