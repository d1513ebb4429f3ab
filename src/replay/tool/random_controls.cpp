#include "replay/tool/random_controls.h"

#include "base/random.h"

namespace vandrel {

int RandomControls::draw(int count) {
    return uniformInt(generator_, 0, count - 1);
}

void RandomControls::advance() {
    constexpr int longestLeg = 40;  // frames in one direction
    constexpr int oneStandStillIn = 10;
    constexpr int oneDiagonalIn = 12;
    constexpr int longestPress = 12;  // frames; some presses steer or hold for longer than a tap
    constexpr int oneButton2In = 40;
    if (--legFrames_ < 1) {
        legFrames_ = draw(longestLeg) + 1;
        const bool horizontal = draw(2) == 0;
        const int direction = draw(2) == 0 ? -1 : 1;
        const bool stands = draw(oneStandStillIn) == 0;
        const bool diagonal = draw(oneDiagonalIn) == 0;
        x_ = !stands && (horizontal || diagonal) ? direction : 0;
        y_ = !stands && (!horizontal || diagonal) ? direction : 0;
    }
    if (--bombFrames_ < 1 && onePressIn_ > 0 && draw(onePressIn_) == 0) {
        bombFrames_ = draw(longestPress) + 1;
    }
    button2_ = draw(oneButton2In) == 0;
}

}  // namespace vandrel
