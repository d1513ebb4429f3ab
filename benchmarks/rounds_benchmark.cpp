// Whole rounds with no screen, from the automatic options to the winners: every mode, with few and with many players
// who press at random. An iteration is one round; its rate is that of the updates, the set-up of the level included.
#include <benchmark/benchmark.h>

#include <stdexcept>
#include <string>

#include "match/options/game_options.h"
#include "match/options/name_tables.h"
#include "replay/tool/headless_recording.h"
#include "shell/frame_counter.h"
#include "shell/log.h"
#include "shell/switches.h"

namespace vandrel {
namespace {

constexpr int longestRound = 100'000;  // updates

void wholeRound(benchmark::State& state) {
    setDebugOutput([](const char* /*line*/, std::size_t /*length*/) {});
    fillTeamPalettes();
    verifyEnabled = false;
    long long updates = 0;
    std::string arena;
    for ([[maybe_unused]] auto _ : state) {
        gameOptions = GameOptions{};
        gameOptions.gameMode = static_cast<GameMode>(state.range(0));
        gameOptions.numPlayers = static_cast<int>(state.range(1));
        RandomRoundSettings settings;
        settings.seed = 1;
        settings.bombsEvery = 300;  // seldom enough that a round does not end with its first bombs
        HeadlessRecording round(settings);
        arena = arenaSizes.at(static_cast<std::size_t>(gameOptions.arenaSizeResolved.value())).name;
        while (round.step()) {
            if (frameCounter > longestRound) {
                throw std::runtime_error("The round does not end");
            }
        }
        updates += frameCounter;
    }
    state.SetItemsProcessed(updates);
    const auto& name = gameModeNames.at(static_cast<std::size_t>(state.range(0))).longName;
    state.SetLabel(std::string(name) + ", " + arena + ", " + std::to_string(updates / state.iterations()) + " updates");
}
BENCHMARK(wholeRound)
    ->ArgNames({"mode", "players"})
    ->ArgsProduct({benchmark::CreateDenseRange(0, gameModeCount - 1, 1), {2, 8, 32, 100}})
    ->Iterations(3)
    ->MeasureProcessCPUTime()  // the search of the snakes has threads of its own
    ->UseRealTime()
    ->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace vandrel

BENCHMARK_MAIN();
