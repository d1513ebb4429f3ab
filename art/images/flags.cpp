// Flag0 to Flag5: six steps of a wave that runs along the cloth. The pole stands in column 12 with its foot in row 31,
// where a carrier's hand is. The cloth is one flat pure red, the only colour that the teams' colours replace; folds are
// ink lines.
#include <algorithm>
#include <cmath>
#include <numbers>
#include <string>

#include "images/recipe.h"

namespace vandrel::art {
namespace {

constexpr int frames = 6;
constexpr int poleColumn = 12;
constexpr int firstCloth = 14, lastCloth = 29;  // one column of ink on either side
constexpr int clothTop = 4, clothHeight = 10, foldLength = 3, foldInset = 1;
constexpr float wavesOnCloth = 1.15f;

// How far the cloth hangs above or below its middle line in a column. It is tied at the pole and swings free at the
// end.
int waveAt(int column, int frame) {
    const float along = static_cast<float>(column - firstCloth) / static_cast<float>(lastCloth - firstCloth);
    const float phase = along * wavesOnCloth - static_cast<float>(frame) / static_cast<float>(frames);
    return static_cast<int>(
        std::lround(1.7f * std::min(1.0f, along * 2.0f) * std::sin(phase * 2.0f * std::numbers::pi_v<float>)));
}

Canvas flag(int frame) {
    Canvas canvas(32, 32);
    for (int column = firstCloth; column <= lastCloth; ++column) {
        canvas.fillRect(column, clothTop + waveAt(column, frame), 1, clothHeight, palette::flagRed);
    }
    canvas.outline();
    // A crest folds from above, a trough from below; both travel with the wave.
    for (int half = 0; half < 4; ++half) {
        const float along =
            (0.25f + 0.5f * static_cast<float>(half) - 1.0f + static_cast<float>(frame) / frames) / wavesOnCloth;
        const int column =
            firstCloth + static_cast<int>(std::lround(along * static_cast<float>(lastCloth - firstCloth)));
        if (column > firstCloth + 1 && column < lastCloth - 1) {
            const bool trough = half % 2 == 0;
            const int first =
                clothTop + waveAt(column, frame) + (trough ? foldInset : clothHeight - foldLength - foldInset);
            canvas.fillRect(column, first, 1, foldLength, palette::ink);
        }
    }
    canvas.fillRect(poleColumn - 1, 1, 3, 31, palette::ink);
    canvas.fillRect(poleColumn, 3, 1, 29, palette::bone);
    for (int row = 17; row < 32; row += 5) {
        canvas.set(poleColumn, row, palette::boneShade);
    }
    canvas.fillRect(poleColumn - 2, 0, 5, 4, palette::ink);
    canvas.fillRect(poleColumn - 1, 0, 3, 3, palette::gold);
    canvas.set(poleColumn - 1, 0, palette::fireWhite);
    canvas.set(poleColumn + 1, 2, palette::goldDark);
    return canvas;
}

}  // namespace

Pictures paintFamily() {
    Pictures pictures;
    for (int frame = 0; frame < frames; ++frame) {
        pictures.push_back({"Flag" + std::to_string(frame), flag(frame)});
    }
    return pictures;
}

}  // namespace vandrel::art
