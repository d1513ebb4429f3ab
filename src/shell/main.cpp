#include "arena/team.h"
#include "frontend/lootbox_room.h"
#include "frontend/menu.h"
#include "players/player.h"
#include "shell/fatal_signals.h"
#include "shell/guard.h"
#include "shell/log.h"
#include "shell/open_log.h"
#include "shell/shutdown.h"
#include "shell/start_up.h"

// The life of the process. Everything fatal ends at the guard, and shutdown follows in any case.
int main(int argc, char** argv) {
    using namespace vandrel;
    openLog();
    logFatalSignals();
    logText("Log file opened\n");
    // The two objects that are made in numbers.
    logPrintf("Player: %zu, Team: %zu\n", sizeof(Player), sizeof(Team));
    runGuarded([argc, argv] {
        init(argc, argv);
        lootboxRoom();
        menu();
    });
    shutDown();
    return 0;
}
