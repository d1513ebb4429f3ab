// Updates a second of the headless simulation with random players, not recording, and the generation of levels.
#include <benchmark/benchmark.h>

#include <memory>
#include <random>

#include "arena/game.h"
#include "arena/level_generation.h"
#include "base/random.h"
#include "match/options/automatic_options.h"
#include "match/options/game_options.h"
#include "match/options/name_tables.h"
#include "players/player.h"
#include "shell/frame_counter.h"
#include "shell/log.h"

namespace vandrel {
namespace {

// Holds a random direction and the bomb button for some frames, as somebody who hits the keys at random would.
class RandomControls final : public Controls {
  public:
    explicit RandomControls(unsigned seed) : generator_(seed) {}
    bool isConnected() const override { return true; }
    bool leftPressed() const override {
        next();
        return direction_ == 0;
    }
    bool rightPressed() const override { return direction_ == 1; }
    bool upPressed() const override { return direction_ == 2; }
    bool downPressed() const override { return direction_ == 3; }
    bool bombPressed() const override { return bomb_; }
    bool button2Pressed() const override { return false; }
    bool pausePressed() const override { return false; }
    std::string description() const override { return "random"; }
    std::string buttonText(ControlInput /*input*/) const override { return ""; }

  private:
    void next() const {
        if (--frames_ > 0) {
            return;
        }
        const auto value = static_cast<unsigned>(generator_());
        direction_ = static_cast<int>(value % 5);
        bomb_ = value / 5 % 3 == 0;
        frames_ = static_cast<int>(value / 64 % 40) + 1;
    }

    mutable std::mt19937 generator_;
    mutable int frames_ = 0;
    mutable int direction_ = 0;
    mutable bool bomb_ = false;
};

// A round of Deathmatch, so that the dead come back and there is always something to do.
class RandomRound {
  public:
    RandomRound(int arenaSize, int playerCount) {
        gameOptions = GameOptions{};
        gameOptions.gameMode = GameMode::Deathmatch;
        gameOptions.arenaSize = arenaSize;
        gameOptions.gridBlocks = 2;
        gameOptions.auctions = 0;
        gameOptions.respawnTime = 1;
        gameOptions.numPlayers = playerCount;
        automaticOptions();
        players.clear();
        teams.clear();
        for (int i = 0; i < playerCount; ++i) {
            players.push_back(std::make_shared<Player>(i, 0, -1, PlayerLook{},
                                                       std::make_shared<RandomControls>(static_cast<unsigned>(i))));
        }
        start();
    }
    ~RandomRound() {
        game_ = nullptr;
        players.clear();
    }
    RandomRound(const RandomRound&) = delete;
    RandomRound& operator=(const RandomRound&) = delete;

    void update() {
        game_->update(roundOver_, replayEnded_, nullptr);
        ++frameCounter;
        if (roundOver_) {
            start();
        }
    }

  private:
    void start() {
        const ArenaSize& size = arenaSizes.at(static_cast<std::size_t>(gameOptions.arenaSizeResolved.value()));
        game_ = std::make_unique<Game>(PackagedReplayData{});
        setUpRound({size.width, size.height}, {}, *game_, false);
        game_->shrinkCountdown = gameOptions.timeBeforeShrinkingFrames.value();
        for (const auto& player : players) {
            player->startRound();
        }
        frameCounter = 0;
        roundOver_ = false;
    }

    std::unique_ptr<Game> game_;
    bool roundOver_ = false;
    bool replayEnded_ = false;
};

void updates(benchmark::State& state) {
    setDebugOutput([](const char* /*line*/, std::size_t /*length*/) {});
    RandomRound round(static_cast<int>(state.range(0)), static_cast<int>(state.range(1)));
    for ([[maybe_unused]] auto _ : state) {
        round.update();
    }
    state.SetItemsProcessed(state.iterations());
}
BENCHMARK(updates)->ArgNames({"arena", "players"})->Args({1, 4})->Args({3, 4})->Args({6, 32})->Args({8, 100});

void levelGeneration(benchmark::State& state) {
    setDebugOutput([](const char* /*line*/, std::size_t /*length*/) {});
    const RandomRound round(static_cast<int>(state.range(0)), static_cast<int>(state.range(1)));
    const ArenaSize& size = arenaSizes.at(static_cast<std::size_t>(state.range(0)));
    for ([[maybe_unused]] auto _ : state) {
        Game game(PackagedReplayData{});
        setUpRound({size.width, size.height}, {}, game, false);
    }
}
BENCHMARK(levelGeneration)->ArgNames({"arena", "players"})->Args({3, 4})->Args({8, 100})->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace vandrel

BENCHMARK_MAIN();
