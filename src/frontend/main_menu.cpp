#include "frontend/main_menu.h"

#include <allegro5/keycodes.h>

#include "frontend/credits.h"
#include "frontend/message_screen.h"
#include "frontend/replay_browser.h"
#include "frontend/settings_menus.h"
#include "frontend/start_game.h"

namespace vandrel {

namespace {

bool confirmsQuitting() {
    return msgScreen({"Confirm quit to desktop", "ENTER or bomb button: quit", "ESC or button 2: don't quit"},
                     ALLEGRO_KEY_ENTER, ALLEGRO_KEY_ESCAPE);
}

}  // namespace

std::shared_ptr<VandrelMenu> mainMenu(MenuContext& context) {
    auto menu = std::make_shared<VandrelMenu>(&layoutDefault);
    const int x = context.x;
    menu->addAction(x, "Start Game", [&] { context.stack.push(startGameMenu(context)); });
    menu->addAction(x, "View Replays", [&] { context.stack.push(replayMenu(context)); });
    menu->addAction(x, "Settings", [&] { context.stack.push(settingsMenu(context)); });
    menu->addAction(x, "Credits", [] { credits(); });
    menu->addAction(x, "Quit to desktop", [&] { context.quit = confirmsQuitting(); });
    return menu;
}

}  // namespace vandrel
