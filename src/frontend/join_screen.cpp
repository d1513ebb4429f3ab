#include "frontend/join_screen.h"

#include <allegro5/keycodes.h>

#include <memory>

#include "arena/arena.h"
#include "frontend/lobby.h"
#include "frontend/lobby_drawing.h"
#include "frontend/pause_menu.h"
#include "input/controls_manager.h"
#include "input/keyboard.h"
#include "input/menu_input.h"
#include "match/options/game_options.h"
#include "presentation/music.h"
#include "shell/frame_pump.h"
#include "shell/game_screen.h"
#include "shell/log.h"

namespace vandrel {

bool playerJoinScreen() {
    logText("playerJoinScreen\n");
    Lobby lobby(theControlsManager->devices);
    bool cancelled = false;
    const auto matchDevices = [&] { lobby.setUp(theControlsManager->devices); };
    const auto update = [&] {
        if (pauseCheck()) {
            cancelled = pauseMenu(std::make_shared<NoMusic>(), true);
            // Of a device that came or went meanwhile only the pause menu has heard.
            if (lobby.devices() != theControlsManager->devices) {
                matchDevices();
            }
        } else {
            lobby.updateReadiness(wasKeyReleased(ALLEGRO_KEY_SPACE));
        }
        lobby.update();
    };
    const auto render = [&] {
        lobby.countFrame();
        drawLobby(lobby, *screen);
    };
    framePump(
        update, render, [&] { return lobby.isReady() || cancelled; }, matchDevices);
    if (cancelled) {
        return false;
    }
    Lobby::closeRanks();
    gameOptions.numPlayers = static_cast<int>(players.size());
    return true;
}

}  // namespace vandrel
