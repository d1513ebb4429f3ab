#include "frontend/trophy_table.h"

#include <algorithm>
#include <array>

#include "base/numeric.h"

namespace vandrel {

namespace {

constexpr std::array<int, 3> mostRowsOfSlot{5, 10, 16};  // slots 1 to 3; slot 4 takes all others
constexpr int mostRowsAtEase = 5;
constexpr int square = 16;  // the table's grid

constexpr int firstTrophyLeft = 156;
constexpr int trophyStep = 48;

float real(int value) {
    return static_cast<float>(value);
}

}  // namespace

int trophyScreenSlot(int rows) {
    const auto slot = std::lower_bound(mostRowsOfSlot.begin(), mostRowsOfSlot.end(), rows);
    return static_cast<int>(slot - mostRowsOfSlot.begin()) + 1;
}

int trophyRowTop(int row, int rows, int screenHeight) {
    if (rows <= mostRowsAtEase) {
        return (row * 4 - rows + 10) * square;
    }
    const float height = real(screenHeight);
    const float top = mapRange(real(rows), 6.0f, 16.0f, 80.0f, 16.0f);
    const float bottom = mapRange(real(rows), 6.0f, 16.0f, height - 64.0f, height - 16.0f);
    return static_cast<int>(mapRange(real(row), 0.0f, real(rows), top, bottom));
}

int trophyFigureLeft(int index, int figures) {
    const int first = static_cast<int>(mapRange(real(figures), 1.0f, 20.0f, 70.0f, 0.0f));
    const int step = static_cast<int>(mapRange(real(figures), 1.0f, 50.0f, 16.0f, 2.0f));
    return first + step * index;
}

int trophyLeft(int index) {
    return firstTrophyLeft + trophyStep * index;
}

}  // namespace vandrel
