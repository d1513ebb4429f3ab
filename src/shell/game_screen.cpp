#include "shell/game_screen.h"

#include <allegro5/allegro.h>

#include <algorithm>

#include "base/checked.h"
#include "presentation/drawing.h"
#include "shell/letterbox.h"

namespace vandrel {

int gameScreenWidth = 0;
int gameScreenHeight = 0;
std::shared_ptr<BitmapWrapper> screen;
std::shared_ptr<BitmapWrapper> displayBitmap;

const std::unordered_map<int, std::pair<int, int>> gameScreenSlots{
    {menuScreenSlot, {1920, 1080}}, {1, {640, 480}}, {2, {640, 640}}, {3, {640, 720}}, {4, {640, 960}}};

void setGameScreenSlot(int slot) {
    const auto& [width, height] = checkedHashKey(gameScreenSlots, slot);
    setGameScreenSize(width, height);
}

void setGameScreenSize(int width, int height) {
    clearToBlack(*displayBitmap);
    gameScreenWidth = width;
    gameScreenHeight = height;
    renewGameScreen();
}

void renewGameScreen() {
    constexpr bool preserve = false;        // every screen redraws each frame
    constexpr bool shrinksSmoothly = true;  // or letters lose their strokes on a display smaller than the game
    // The size is 0 by 0 until the first slot, which not every driver takes; nothing shows that bitmap.
    screen = std::make_shared<BitmapWrapper>(std::max(gameScreenWidth, 1), std::max(gameScreenHeight, 1), preserve,
                                             shrinksSmoothly);
}

void presentFrame() {
    const int width = displayBitmap->width();
    const int height = displayBitmap->height();
    const ScreenRectangle picture = letterboxRectangle(width, height, gameScreenWidth, gameScreenHeight);
    if (picture.width != width || picture.height != height) {
        // What the back buffer holds after a flip is undefined, so the borders are drawn each time.
        clearToBlack(*displayBitmap);
    }
    {
        const DrawingBatch batch(*displayBitmap);
        drawScaled(*displayBitmap, screen->bitmap, 0, 0, gameScreenWidth, gameScreenHeight, picture.x, picture.y,
                   picture.width, picture.height);
    }
    al_flip_display();
}

}  // namespace vandrel
