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
    constexpr bool preserve = false;  // every screen redraws each frame
    // The size is 0 by 0 until the first slot, which not every driver takes; nothing shows that bitmap.
    const int width = std::max(gameScreenWidth, 1);
    const int height = std::max(gameScreenHeight, 1);
    const ScreenRectangle shown = letterboxRectangle(displayBitmap->width(), displayBitmap->height(), width, height);
    // Letters that shrink lose strokes unless pixels are mixed, which costs time where no graphics card helps.
    const bool shrinksSmoothly = shown.width < width || shown.height < height;
    screen = std::make_shared<BitmapWrapper>(width, height, preserve, shrinksSmoothly);
}

void followDisplay(ALLEGRO_BITMAP* backBuffer) {
    constexpr bool owned = false;
    displayBitmap = std::make_shared<BitmapWrapper>(backBuffer, owned);
    const std::shared_ptr<BitmapWrapper> before = screen;
    renewGameScreen();
    if (before != nullptr) {
        clearToBlack(*screen);
        drawWrapper(*before, *screen, 0, 0);  // a pause may want to show it before the next frame is drawn
    }
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
