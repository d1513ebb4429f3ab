// How fast replays are proved, and what recording adds to an update, to the game's own thread and to all.
#include <benchmark/benchmark.h>

#include <filesystem>
#include <memory>

#include "match/options/game_options.h"
#include "replay/tool/headless_playback.h"
#include "replay/tool/headless_recording.h"
#include "replay/unit/proof.h"
#include "shell/frame_counter.h"
#include "shell/log.h"
#include "shell/switches.h"

namespace vandrel {
namespace {

constexpr int framesPerRound = 3600;

// Deathmatch on 27x15 with four players who come back, so that there is always something to do.
RandomRoundSettings normalRound(const std::string& path) {
    setDebugOutput(nullptr);
    gameOptions = GameOptions{};
    gameOptions.gameMode = GameMode::Deathmatch;
    gameOptions.numPlayers = 4;
    gameOptions.arenaSize = 3;
    gameOptions.respawnTime = 1;
    gameOptions.shrinkingOn = false;
    RandomRoundSettings settings;
    settings.path = path;
    settings.seed = 5;
    return settings;
}

std::string scratchPath() {
    return (std::filesystem::temp_directory_path() / "vandrel-benchmark.replay").string();
}

void removeScratch() {
    for (const char* suffix : {"", ".verify", ".verifyZ"}) {
        std::filesystem::remove(scratchPath() + suffix);
    }
}

void playUpdates(benchmark::State& state, const std::string& path) {
    auto round = std::make_unique<HeadlessRecording>(normalRound(path));
    for (auto _ : state) {
        if (!round->step() || frameCounter >= framesPerRound) {
            state.PauseTiming();
            round.reset();
            round = std::make_unique<HeadlessRecording>(normalRound(path));
            state.ResumeTiming();
        }
    }
    round.reset();
    removeScratch();
    state.SetItemsProcessed(state.iterations());
}

void UpdateNotRecording(benchmark::State& state) {
    playUpdates(state, "");
}

void UpdateRecording(benchmark::State& state) {
    verifyEnabled = false;
    playUpdates(state, scratchPath());
    verifyEnabled = true;
}

void UpdateRecordingWithVerification(benchmark::State& state) {
    playUpdates(state, scratchPath());
}

// Items are frames; at 60 a second of play, so a rate of 12,000 is 200 times real time.
void VerifyRound(benchmark::State& state) {
    {
        HeadlessRecording round(normalRound(scratchPath()));
        while (round.step() && frameCounter < framesPerRound) {
        }
        round.finish();
    }
    std::int64_t frames = 0;
    for (auto _ : state) {
        HeadlessPlayback playback(scratchPath());
        while (playback.step()) {
        }
        playback.finish();
        frames += frameCounter;
    }
    removeScratch();
    state.SetItemsProcessed(frames);
}

BENCHMARK(UpdateNotRecording);
BENCHMARK(UpdateRecording);
BENCHMARK(UpdateRecordingWithVerification);
BENCHMARK(UpdateNotRecording)->MeasureProcessCPUTime();
BENCHMARK(UpdateRecordingWithVerification)->MeasureProcessCPUTime();  // with the thread that writes
BENCHMARK(VerifyRound)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace vandrel

BENCHMARK_MAIN();
