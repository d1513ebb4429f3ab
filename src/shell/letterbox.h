// Where the game's picture stands on the display: as large as fits, in the middle, its proportions kept.
#pragma once

namespace vandrel {

// Pixels.
struct ScreenRectangle {
    int x = 0;
    int y = 0;
    int width = 0;
    int height = 0;

    friend bool operator==(const ScreenRectangle&, const ScreenRectangle&) = default;
};

// The rectangle of the display that a game picture of the given size fills. All sizes are at least 1.
ScreenRectangle letterboxRectangle(int displayWidth, int displayHeight, int gameWidth, int gameHeight);

}  // namespace vandrel
