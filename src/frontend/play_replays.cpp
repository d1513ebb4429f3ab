#include "frontend/play_replays.h"

#include <fmt/format.h>

#include "frontend/menu_stack.h"
#include "match/play_the_game.h"
#include "replay/unit/replay_names.h"
#include "shell/log.h"
#include "shell/profiler.h"
#include "shell/switches.h"

namespace vandrel {

bool playReplay(const std::string& path, ReplayTestOptions testOptions, std::shared_ptr<Music>& music) {
    music.reset();
    const bool quit = play_the_game(replayRecordingEnabled, path, testOptions);
    returnToMenus(music);
    return quit;
}

void testAllReplays(std::shared_ptr<Music>& music, const ReplayPlayer& play) {
    theProfiler.start("testAllReplays");
    for (const ReplayInfo& info : getAllReplays(true)) {
        if (!info.errors.empty()) {
            logText(fmt::format("{} cannot be played and is passed by: {}\n", info.path, info.errors.front()));
            continue;
        }
        if (play(info.path, {.fastForward = true, .skipRoundEnd = true}, music)) {
            break;
        }
    }
    logPrintf("Test all replays: %f seconds\n", theProfiler.stop("testAllReplays"));
}

}  // namespace vandrel
