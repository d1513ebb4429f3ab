#include "images/heads/head_parts.h"

namespace vandrel::art {
namespace {

constexpr int size = 32;
constexpr int firstColumn = 3, columnsUsed = 26, firstRow = 2, rowsUsed = 26;
constexpr int neckLeft = 11, neckWidth = 10;
constexpr int standingDrop = 2;  // a head sits low between the shoulders
constexpr int crawlDrop = 3;     // and lower still with its chin on the ground

// Cuts off what would touch the picture's edge once the outline is on and the head sways.
Canvas outlined(const Canvas& head) {
    Canvas trimmed(size, size);
    trimmed.draw(head.cropped(firstColumn, firstRow, columnsUsed, rowsUsed), firstColumn, firstRow);
    trimmed.outline();
    return trimmed;
}

// The neck stands still while the head sways over it.
Canvas onNeck(const Canvas& head, const Ramp& skin, int dx, int dy) {
    Canvas canvas(size, size);
    canvas.fillRect(neckLeft, 24, neckWidth, 8, palette::ink);
    canvas.fillRect(neckLeft + 1, 24, neckWidth - 2, 8, skin.dark);
    canvas.fillRect(neckLeft + 1, 30, 5, 2, skin.middle);
    canvas.draw(head.shifted(dx, dy + standingDrop));
    return canvas;
}

// Lying on its chin, the neck goes off to the body on the left.
Canvas crawling(const Canvas& head, const Ramp& skin) {
    Canvas canvas(size, size);
    canvas.fillRect(0, 14, 10, 13, palette::ink);
    canvas.fillRect(0, 15, 10, 11, skin.dark);
    canvas.draw(head.shifted(0, crawlDrop));
    return canvas;
}

}  // namespace

Canvas finishedHead(const Canvas& head, const Ramp& skin) {
    return onNeck(outlined(head), skin, 0, 0);
}

Pictures headSet(const Character& character) {
    Pictures pictures;
    const auto add = [&](const std::string& name, const HeadPainter& paint, Lids lids, int dx, int dy) {
        pictures.push_back({character.file + "_" + name, onNeck(outlined(paint(lids)), character.skin, dx, dy)});
    };
    const auto addFacing = [&](const std::string& side, const HeadPainter& paint) {
        add(side + "_014", paint, Lids::Open, 0, 0);
        add(side + "_23", paint, Lids::Open, -1, 0);
        add(side + "_56", paint, Lids::Shut, 1, 0);
    };
    const auto addSide = [&](const std::string& side, const HeadPainter& paint, int ahead) {
        add(side + "_0", paint, Lids::Open, 0, 0);
        add(side + "_14", paint, Lids::Open, 0, -1);
        add(side + "_23", paint, Lids::Open, ahead, 0);
        add(side + "_56", paint, Lids::Shut, 0, 0);
    };
    addFacing("D", character.front);
    addSide("R", character.right, 1);
    pictures.push_back({character.file + "_Crawl_R", crawling(outlined(character.right(Lids::Half)), character.skin)});
    if (character.back) {
        addFacing("U", character.back);
    }
    if (character.left) {
        addSide("L", character.left, -1);
        const Canvas mirrored = outlined(character.left(Lids::Half)).mirrored();
        pictures.push_back({character.file + "_Crawl_L", crawling(mirrored, character.skin).mirrored()});
    }
    return pictures;
}

Canvas frontSkull(const Ramp& skin) {
    Canvas head(size, size);
    for (const float x : {4.5f, 27.5f}) {
        fill(head, circle(x, 19, 2.4f), skin.middle);
        fill(head, circle(x, 19.6f, 1.1f), skin.dark);
    }
    fillLit(head, unite(ellipse(16, 15.5f, 11.6f, 12.2f), roundedBox(16, 20.5f, 10.6f, 7.2f, 6.0f)), skin, 6);
    return head;
}

Canvas sideSkull(const Ramp& skin, bool nose) {
    Canvas head(size, size);
    fillLit(head, unite(ellipse(15.5f, 15.0f, 11.4f, 12), roundedBox(17, 20.5f, 9.6f, 7.2f, 6.0f)), skin, 6);
    if (nose) {
        fill(head, ellipse(27.2f, 20.5f, 2.3f, 1.8f), skin.middle);
    }
    fill(head, ellipse(12, 19.5f, 2.4f, 2.9f), skin.dark);
    fill(head, ellipse(12.4f, 19.2f, 1.7f, 2.2f), skin.middle);
    return head;
}

Canvas hairBack(const Ramp& hair) {
    Canvas head(size, size);
    for (const float x : {4.5f, 27.5f}) {
        fill(head, circle(x, 19, 2.4f), palette::skinLight);
    }
    fillLit(head, unite(ellipse(16, 15.5f, 11.6f, 12.2f), roundedBox(16, 19.5f, 10.6f, 7.2f, 6.0f)), hair, 6);
    for (const int x : {8, 12, 16, 20, 23}) {
        head.fillRect(x, 19, 1, 6, hair.dark);
    }
    return head;
}

void layFrontCap(Canvas& head) {
    const Shape dome = intersect(ellipse(16, 13, 12.4f, 11.2f), rectangle(0, 0, 32, 11));
    fillLit(head, dome, capCloth, 6);
    fill(head, rectangle(14.5f, 1.6f, 3, 2.4f, 1), palette::playerFold);
    // The seams of the dome and the peak over the brow.
    for (const int y : {5, 6, 7, 8, 9, 10}) {
        head.set(y < 8 ? 12 : 11, y, palette::playerShade);
        head.set(y < 8 ? 19 : 20, y, palette::playerShade);
    }
    const Shape peak = roundedBox(16, 12.0f, 12.4f, 2.0f, 1.9f);
    fill(head, grown(peak, 0.6f), palette::ink);
    fill(head, peak, palette::playerLit);
    fill(head, rectangle(5, 13, 22, 1), palette::playerShade);
}

void laySideCap(Canvas& head) {
    const Shape dome = intersect(ellipse(15, 13, 11.9f, 11.2f), rectangle(0, 0, 32, 13));
    fillLit(head, dome, capCloth, 6);
    fill(head, rectangle(13.5f, 1.6f, 3, 2.4f, 1), palette::playerFold);
    for (const int y : {5, 6, 7, 8, 9, 10, 11}) {
        head.set(y < 8 ? 18 : 19, y, palette::playerShade);
    }
    const Shape peak = roundedBox(23, 12.4f, 6.6f, 1.6f, 1.5f);
    fill(head, grown(unite(peak, rectangle(4, 11, 16, 3)), 0.6f), palette::ink);
    fill(head, peak, palette::playerLit);
    fill(head, rectangle(17, 13, 12, 1), palette::playerShade);
    fill(head, rectangle(4, 11, 13, 3), palette::playerShade);
}

void layBackCap(Canvas& head) {
    const Shape dome = intersect(ellipse(16, 13, 12.4f, 11.2f), rectangle(0, 0, 32, 15));
    fillLit(head, dome, capCloth, 6);
    fill(head, rectangle(14.5f, 1.6f, 3, 2.4f, 1), palette::playerFold);
    for (const int y : {5, 6, 7, 8, 9, 10, 11, 12}) {
        head.set(y < 8 ? 12 : 11, y, palette::playerShade);
        head.set(y < 8 ? 19 : 20, y, palette::playerShade);
    }
    fill(head, rectangle(3, 13, 26, 5, 2), palette::ink);
    fill(head, rectangle(4, 14, 24, 3, 1), palette::playerFold);
    // The strap with its buckle.
    fill(head, rectangle(13, 14, 6, 3), palette::gold);
    head.fillRect(14, 15, 4, 1, palette::ink);
}

void layEye(Canvas& head, int x, int y, Lids lids, Colour lid, int width, bool lookRight) {
    const auto left = static_cast<float>(x), top = static_cast<float>(y);
    if (lids == Lids::Shut) {
        head.line(x, y + 4, x + width - 1, y + 4, palette::ink);
        head.set(x, y + 3, palette::ink);
        head.set(x + width - 1, y + 3, palette::ink);
        return;
    }
    fill(head, rectangle(left, top, static_cast<float>(width), 7, 2), palette::white);
    const int pupil = lookRight ? x + width - 3 : x + (width - 2) / 2 + (width > 5 ? 0 : 1) - 1;
    head.fillRect(pupil, y + 2, lookRight ? 2 : 3, 4, palette::ink);
    head.set(pupil, y + 2, palette::white);
    if (lids == Lids::Half) {
        fill(head, rectangle(left, top, static_cast<float>(width), 3, 1), lid);
        head.line(x, y + 3, x + width - 1, y + 3, palette::ink);
    }
}

void layMarks(Canvas& head, int x, int y, const PixelRows& rows) {
    static const Legend legend{
        {'#', palette::ink}, {'w', palette::white}, {'r', palette::fireRed}, {'p', {232, 140, 112}}};
    drawMap(head, x, y, legend, rows);
}

}  // namespace vandrel::art
