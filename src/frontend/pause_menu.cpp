#include "frontend/pause_menu.h"

#include <allegro5/allegro.h>

#include <algorithm>
#include <optional>

#include "arena/arena.h"
#include "frontend/control_assignment.h"
#include "frontend/menu_audio.h"
#include "frontend/menu_stack.h"
#include "input/menu_input.h"
#include "players/player.h"
#include "presentation/colours.h"
#include "presentation/drawing.h"
#include "presentation/text.h"
#include "shell/frame_pump.h"
#include "shell/game_screen.h"

namespace vandrel {

namespace {

constexpr int leastHeightOfLargeLayout = 301;  // pixels, as all below
constexpr int widestNarrowScreen = 900;
constexpr int narrowX = 40;
constexpr int rowsLeftOfMiddle = 300;
constexpr int dimming = 224;          // of 255: an eighth of the light is left
constexpr double graceSeconds = 0.1;  // for who has just let go

std::shared_ptr<BitmapWrapper> makeBackdrop(bool dim) {
    constexpr bool preserve = true;
    auto backdrop = std::make_shared<BitmapWrapper>(screen->width(), screen->height(), preserve);
    clearToBlack(*backdrop);
    drawWrapper(*screen, *backdrop, 0, 0);
    if (dim) {
        const BitmapWrapper darkness(screen->width(), screen->height(), preserve);
        clearToBlack(darkness);
        drawTinted(*backdrop, darkness.bitmap, 0, 0, dimming, dimming, dimming, dimming);
    }
    return backdrop;
}

bool anyBombButtonHeld() {
    return std::any_of(players.begin(), players.end(),
                       [](const auto& player) { return player->controls->bombPressed(); });
}

// The press that chose the row must not lay a bomb.
void waitForBombButtons(const BitmapWrapper& backdrop) {
    if (!anyBombButtonHeld()) {
        return;
    }
    al_rest(graceSeconds);
    if (!anyBombButtonHeld()) {
        return;
    }
    const auto draw = [&backdrop] {
        drawWrapper(backdrop, *screen, 0, 0);
        drawText(*screen, FontId::Font30, screen->width() / 2, screen->height() / 2, toColour(white),
                 "Release bomb button to resume!", alignCentre);
    };
    framePump([] {}, draw, [] { return !anyBombButtonHeld(); });
}

}  // namespace

bool pauseMenu(const std::shared_ptr<Music>& /*music*/, bool dim) {
    const std::shared_ptr<BitmapWrapper> backdrop = makeBackdrop(dim);
    const VandrelMenuLayoutOptions* const layout =
        screen->height() < leastHeightOfLargeLayout ? &layoutPauseSmall : &layoutPause;
    const int x = screen->width() <= widestNarrowScreen ? narrowX : screen->width() / 2 - rowsLeftOfMiddle;
    std::optional<bool> quit;  // the answer, once there is one
    MenuStack stack;
    auto root = std::make_shared<VandrelMenu>(layout);
    root->addAction(x, "Resume game", [&quit] { quit = false; });
    root->addAction(x, "Sound options", [&] { menuAudio(backdrop, layout, x); });
    root->addAction(x, "Reassign controls", [&] { controlAssignmentMenu(stack, x); });
    root->addAction(x, "Quit to main menu", [&quit] { quit = true; });
    stack.push(root);
    const auto update = [&] {
        const bool escape = menuKeyPressed(ALLEGRO_KEY_ESCAPE, menuControlMode, layout->includeHeldController);
        stack.takeLeave(escape, false);
        stack.update(screen->height() - 1);
    };
    const auto draw = [&] {
        drawWrapper(*backdrop, *screen, 0, 0);
        stack.menus.back()->draw(*screen);
    };
    framePump(update, draw, [&quit] { return quit.has_value(); });
    waitForBombButtons(*backdrop);
    return *quit;
}

}  // namespace vandrel
