#include "frontend/menu.h"

#include "match/options/game_options.h"
#include "match/play_the_game.h"
#include "players/sprites_drawing.h"
#include "shell/game_screen.h"
#include "shell/switches.h"

namespace vandrel {

void menu() {
    setGameScreenSlot(menuScreenSlot);
    bool quit = false;
    while (!quit) {
        if (gameOptions.quickStartPlayers == 0) {
            gameOptions.quickStartPlayers = 1;  // the number of players minus one
        }
        quit = play_the_game(replayRecordingEnabled, "", {});
        setGameScreenSlot(menuScreenSlot);
        releaseSpriteCache();
    }
}

}  // namespace vandrel
