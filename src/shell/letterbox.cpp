#include "shell/letterbox.h"

namespace vandrel {

ScreenRectangle letterboxRectangle(int displayWidth, int displayHeight, int gameWidth, int gameHeight) {
    const auto dw = static_cast<float>(displayWidth);
    const auto dh = static_cast<float>(displayHeight);
    const auto gw = static_cast<float>(gameWidth);
    const auto gh = static_cast<float>(gameHeight);
    ScreenRectangle rectangle{.x = 0, .y = 0, .width = displayWidth, .height = displayHeight};
    if (dw / dh > gw / gh) {
        rectangle.width = static_cast<int>(dh / gh * gw);
    } else {
        rectangle.height = static_cast<int>(dw / gw * gh);
    }
    rectangle.x = (displayWidth - rectangle.width) / 2;
    rectangle.y = (displayHeight - rectangle.height) / 2;
    return rectangle;
}

}  // namespace vandrel
