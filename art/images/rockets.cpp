// R_Right and its three turns: a toy rocket, 28 x 12, nose to its direction, its flame inside the picture. The fins are
// pure black, so that "Recolour bombs" shows on them.
#include "images/recipe.h"
#include "painter/shapes.h"

namespace vandrel::art {
namespace {

Canvas rocket() {
    Canvas canvas(32, 32);
    const Shape hull =
        unite(rectangle(10, 12.5f, 12, 7, 2), polygon({{20, 12.5f}, {26, 14}, {29, 16}, {26, 18}, {20, 19.5f}}));
    const Shape upperFin = polygon({{9, 12}, {9, 10.2f}, {12, 10.2f}, {17, 13}, {17, 14}});
    const Shape lowerFin = polygon({{9, 20}, {9, 21.8f}, {12, 21.8f}, {17, 19}, {17, 18}});
    fillLit(canvas, hull, palette::steel, 4);
    fill(canvas, intersect(hull, rectangle(23, 10, 8, 12)), palette::fireRed);
    fill(canvas, intersect(hull, rectangle(23, 10, 8, 5)), palette::fireOrange);
    fill(canvas, intersect(hull, rectangle(12, 10, 2, 12)), palette::fireRed);
    canvas.outline();
    // Fins with a steel edge, since black alone is lost on a black floor.
    for (const Shape& fin : {upperFin, lowerFin}) {
        fill(canvas, grown(fin, 0.9f), palette::steelMiddle);
        fill(canvas, fin, palette::black);
    }
    fill(canvas, circle(19, 16, 2.6f), palette::ink);
    fill(canvas, circle(19, 16, 1.6f), palette::iceLight);
    canvas.set(18, 15, palette::white);
    fill(canvas, polygon({{9, 13}, {4, 13.2f}, {5, 15}, {1.5f, 16}, {5, 17}, {4, 18.8f}, {9, 19}}),
         palette::fireOrange);
    fill(canvas, polygon({{9, 14}, {6, 14.6f}, {3.5f, 16}, {6, 17.4f}, {9, 18}}), palette::fireYellow);
    fill(canvas, ellipse(8.5f, 16, 1.6f, 1.1f), palette::white);
    return canvas;
}

}  // namespace

Pictures paintFamily() {
    const Canvas right = rocket();
    return {{"R_Right", right},
            {"R_Left", right.mirrored()},
            {"R_Down", right.turned()},
            {"R_Up", right.turned().flipped()}};
}

}  // namespace vandrel::art
