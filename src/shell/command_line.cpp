#include "shell/command_line.h"

#include <fmt/format.h>

#include <cstdlib>
#include <sstream>
#include <string>

#include "match/options/automatic_options.h"
#include "match/options/game_options.h"
#include "shell/log.h"
#include "shell/message_box.h"
#include "shell/switches.h"

namespace vandrel {
namespace {

// 0 for a text that begins with no number.
int leadingInt(const std::string& text) {
    int value = 0;
    std::istringstream(text) >> value;
    return value;
}

[[noreturn]] void refuse(const std::string& argument) {
    showMessageBox(argument, "Unknown command");
    closeLog();
    std::exit(0);
}

}  // namespace

void processCommandLine(int argc, const char* const* argv) {
    for (int i = 1; i < argc; ++i) {
        const std::string argument = argv[i];
        if (argument == "/diag") {
            diagnostic = true;
        } else if (argument == "/fastForward") {
            fastForward = true;
        } else if (argument == "/autoRandomControls") {
            autoRandomControls = true;
        } else if (argument == "/advanceLimit") {
            if (i + 1 < argc) {
                ++i;
                advanceLimit = leadingInt(argv[i]);
            }
        } else if (argument == "/testAutoGameOptionsDistribution") {
            testAutoGameOptionsDistribution();
        } else {
            refuse(argument);
        }
    }
}

void testAutoGameOptionsDistribution() {
    constexpr int samples = 30;
    const int numPlayersBefore = gameOptions.numPlayers;
    const int randomnessBefore = gameOptions.randomness;
    logText("Testing auto level size distribution\n");
    for (const GameMode mode : {GameMode::Classic, GameMode::CaptureTheFlag}) {
        gameOptions.gameMode = mode;
        for (int players = 2; players <= 18; players += 2) {
            gameOptions.numPlayers = players;
            for (int randomness = 0; randomness <= 2; ++randomness) {
                gameOptions.randomness = randomness;
                logText(fmt::format("{} players, Team: {}, randomness {}\n", players, isTeamMode(mode) ? 1 : 0,
                                    randomness));
                for (int i = 0; i < samples; ++i) {
                    automaticOptions();
                }
            }
        }
    }
    gameOptions.numPlayers = numPlayersBefore;
    gameOptions.randomness = randomnessBefore;
}

}  // namespace vandrel
